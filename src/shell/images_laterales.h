#pragma once

#include "core/installation.h"
#include "core/refus.h"

#include <optional>

/// The trader's own pictures at the sides of the main window. Beside a picture, Photos/Droit.BMP, an empty marker,
/// Photos/Droit_V.BMP, says that it is not wanted for the moment.
namespace talor {

enum class Cote
{
    Gauche,
    Droite
};

/// Where the picture of a side lies, whether it is there or not.
QString cheminImage(const Installation& installation, Cote cote);
/// The picture to show: nothing when there is none, or when its marker stands.
std::optional<QString> imageLaterale(const Installation& installation, Cote cote);

bool estEcartee(const Installation& installation, Cote cote);
std::optional<Refus> ecarterImage(const Installation& installation, Cote cote, bool ecartee);

} // namespace talor
