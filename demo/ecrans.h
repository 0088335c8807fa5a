#pragma once

#include "demo/capture.h"

namespace talor {
class Form1;
}

namespace talor::demo {

/// The pictures of the program, in the order in which they are taken. A new dialog is one entry.
QList<Ecran> ecrans(Form1& form1);

} // namespace talor::demo
