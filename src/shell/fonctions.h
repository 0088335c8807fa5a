#pragma once

namespace talor {

class Exercice;
class Form1;

/// Hooks every function of the program to its entry of the menu. Both must outlive the event loop.
void brancherFonctions(Form1& form1, Exercice& exercice);

} // namespace talor
