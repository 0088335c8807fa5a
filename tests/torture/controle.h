#pragma once

#include <QStringList>

namespace torture {

/// What must hold in any exercise file, whatever was announced: the file is whole, and no posting stands by half.
/// The file must be closed. Returns what does not hold, a line each.
QStringList controler(const QString& base);

/// The names of the rules, each with a change by hand that breaks it on a file with invoices in it: to show that the
/// control sees it.
struct Falsification
{
    QString regle;
    QByteArray sql;
};
QList<Falsification> falsifications();

} // namespace torture
