#pragma once

#include "demo/capture.h"

namespace talor {
class Exercice;
class Form1;
} // namespace talor

namespace talor::demo {

/// The pictures of the program, in the order in which they are taken. A new dialog is one entry: opened from the menu
/// where it has an entry there, else as the dialog that calls it would.
QList<Ecran> ecrans(Form1& form1, Exercice& exercice);

} // namespace talor::demo
