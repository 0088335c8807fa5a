#pragma once

#include "core/state.h"

#include <QList>

namespace talor {

/// The resolution that the menu "Résolution d'écran" remembers. It is kept from one run to the next and changes
/// nothing: the windows adapt to the screen.
enum class Resolution
{
    Origine,
    Petite,
    Grande
};

/// Reads R_Ecran.TXT: three integers, one a line, for the three entries of the menu; 1 marks the chosen one. An
/// absent, short or foreign file reads as `Origine`.
Resolution lireResolution(const Installation& installation);

/// The exit: closes the exercise, leaves a whole copy of it in Archives and keeps the resolution. Each step is done
/// whatever became of the one before; what failed comes back, a message each.
QList<Refus> arreterExercice(Exercice& exercice, Resolution resolution);

} // namespace talor
