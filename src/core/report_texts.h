#pragma once

#include "core/state.h"

#include <utility>

namespace talor {

/// Fields of `textes` that a print rewrites ("ch4") with their texts; the others stay as the last print left them.
using TextesEtat = QList<std::pair<const char*, QString>>;

void ecrireTextes(Exercice& exercice, const TextesEtat& champs);

} // namespace talor
