#pragma once

class QWidget;

namespace talor {

class Exercice;

/// `F_HLP`: what the program does and how it is worked, in one page.
void montrerAide(QWidget* parent);

/// "A propos": name, version, and where the exercise in view lies.
void montrerAPropos(QWidget* parent, const Exercice& exercice);

} // namespace talor
