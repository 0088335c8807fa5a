#pragma once

#include <QString>
#include <QStringList>

/// Amounts in words, in capitals inside a frame of stars, as invoices and statements print them. The wording departs
/// from French grammar in places (QUATRE-VINGT ET UN, MILLE DINAR): the printed forms rest on it as it is.
namespace talor {

/// The framed lines of an amount in dinars and centimes: each at least 68 characters, at most five.
QStringList MontantEnLettres(double montant);

/// The words of a whole number. Afterwards n holds what stood below its last thousand, without its sign: the plural
/// of what follows the number is decided on that rest.
QString EntierEnLettres(qint64& n);

/// Cuts a text at blanks into lines of at most 60 characters and frames each with stars.
QStringList EncadrerLignes(const QString& texte);

} // namespace talor
