#pragma once

#include "core/configuration.h"
#include "core/installation.h"

namespace talor {

/// First and last year that an exercise may bear.
inline constexpr int anneeExerciceMin = 1994;
inline constexpr int anneeExerciceMax = 9999;

/// True when the pointer names a year that can be opened; one that was overwritten or cut may name any.
bool pointeurPlausible(const PointeurAnnee& pointeur);

/// Makes the first exercise of a new business: the year's file, unless it is there already, then the year pointer.
/// A refusal leaves no pointer behind, so that the question is asked again at the next start.
Resultat<PointeurAnnee> ouvrirPremierExercice(const Installation& installation, const QString& CodeFichier,
                                              const QString& annee);

/// Copies the empty exercise to the file of a year that has none.
std::optional<Refus> creerFichierAnnee(const Installation& installation, int annee);

} // namespace talor
