#pragma once

#include "platform/store/catalogue.h"

namespace talor {

/// Every table of an exercise with its fields in their order, and the indexes of its lookups. The settlement copies
/// its rows by position, so the order of the fields is part of the design.
const store::Catalogue& schema();

/// Positions of fields that have no name in the trade's vocabulary, counted from 0.
namespace position {

/// `Permn`: telephone, fax, trade register, tax identifier, tax article, bank account.
inline constexpr int identiteFiscale = 0;
inline constexpr int nbIdentiteFiscale = 6;

/// `Bordereaux`: the ten expense labels and the ten expense amounts; label i and amount i belong together.
inline constexpr int libellesFrais = 12;
inline constexpr int montantsFrais = 22;
inline constexpr int nbFrais = 10;

} // namespace position

/// `L_Vente.Num_Facture` of a line that no invoice has taken yet.
inline constexpr qint64 nonFacture = -1;
/// `Num_Chalutier` of the working rows that belong to the simulated settlement.
inline constexpr qint64 chalutierSimulation = -1;

/// Makes the empty exercise file from which each year's file is copied: every table, the one row of `textes` and the
/// working rows of the simulated settlement. Throws `store::Error`.
void creerExerciceVide(const QString& chemin);

} // namespace talor
