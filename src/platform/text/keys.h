#pragma once

#include <QString>

/// The rules by which an entry field takes or refuses a typed key. A key is the code of the character typed; the
/// codes up to 32 are the control keys (8 backspace, 13 Enter) and the blank. The text given is what the field holds
/// without its selection, which the key would replace.
namespace text {

/// `ToucheChiffre`: digits pass, and so do the control keys and the blank.
bool acceptsDigit(int key);

/// `ToucheMontant`: the key to insert into an amount, or 0 when it is swallowed. A comma becomes the point; a second
/// point and a blank are swallowed; the minus sign passes anywhere.
int filterAmount(const QString& current, int key);

/// `ToucheDate`: true when a date text of this length takes the key. Backspace always passes.
bool acceptsDateKey(qsizetype length, int key);
/// `BarreDate`: the date text after a typed key: a bar is added behind the day and behind the month.
QString barDate(const QString& text);

/// The letters a to z raised to capitals. Accented letters are left as typed.
int capital(int key);
/// The same for the first letter of a text only.
int firstCapital(const QString& current, int key);

/// The display of a number pad after a digit or the point: at most 12 characters and one point, any other key and what
/// does not fit being refused.
QString padDisplay(const QString& display, QChar key);

} // namespace text
