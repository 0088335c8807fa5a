#pragma once

class QComboBox;

namespace talor {

class ListeChoix;

/// A combo for clients, boats or fish, as wide as a usual name however long the names in it are.
QComboBox* creerComboChoix();
/// Offers the entries of a list, each at its rank, and selects the first. Typing the number of an entry, or the
/// beginning of its name, selects it.
void remplirCombo(QComboBox* combo, const ListeChoix& liste);

} // namespace talor
