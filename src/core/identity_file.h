#pragma once

#include "core/configuration.h"

namespace talor {

/// Reads the text file in which a new user writes his trade's name and the lines of its heading: "clé = valeur" lines
/// in UTF-8, "#" before a remark. A line that can't be understood, or a text too long for its place on paper, is
/// refused with its line number.
Resultat<Configuration> lireFichierIdentite(const QString& chemin);

} // namespace talor
