#pragma once

#include <QString>

/// Texts, numbers and dates as the dialogs type and show them. The separator is "." and dates read dd/MM/yyyy on
/// every machine, whatever its own settings.
namespace talor {

/// Number at the start of a text: blanks are skipped, the first other character ends it, an empty text is 0.
/// "1 250.50 DA" is 1250.5.
double Valeur(QStringView texte);
/// The same for whole numbers, towards zero; what no 64-bit number holds is cut to its ends.
qint64 ValeurEntiere(QStringView texte);

/// A whole number with one blank before it where it is not negative: "Ligne N° " + it reads "Ligne N°  3".
QString NombreAvecBlanc(qint64 nombre);
/// A number without a mask: no group separators, "." and as few decimals as it has.
QString NombreSimple(double nombre);

/// Amounts through a mask ("### ###.00"); an amount that is zero, or not above zero, may be shown as nothing.
QString Format(double montant, const QString& masque);
QString FormatSiPositif(double montant, const QString& masque);
QString FormatSiNonNul(double montant, const QString& masque);

/// 0 for a date text dd/MM/yyyy that is accepted, 1 otherwise. February has 29 days in every year divisible by 4.
int DateValide(const QString& texte);
/// "15/11/2026" gives "2026/11/15"; an empty text gives "..../.../...".
QString DateInversee(const QString& texte);
/// A date text as it enters a query between "#" signs: month first, 11/15/2026.
QString DateRequete(const QString& texte);
/// Month of a date text: its characters 4 and 5.
int MoisDe(const QString& texte);
/// Days from one date text to another, negative when the second lies before the first.
qint64 EcartJours(const QString& premiere, const QString& seconde);
/// Days of a month by the same rule as `DateValide`; month 1 to 12.
int JoursDuMois(int mois, int annee);

/// True when the path names a file (or a folder), in any case of its last component.
bool FichierExiste(const QString& chemin);
/// The path under which it stands on this disk, whatever its case; the path as given when nothing stands there.
QString CheminReel(const QString& chemin);

} // namespace talor
