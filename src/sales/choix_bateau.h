#pragma once

class QComboBox;
class QWidget;

namespace talor {

class Exercice;
class RegistreBordereaux;

/// Asks for a boat and selects it in the combo, which lists the boats of the register: "Embarcation introuvable" when
/// they do not have it.
void choisirBateau(QWidget* parent, Exercice& exercice, const RegistreBordereaux& registre, QComboBox* combo);

} // namespace talor
