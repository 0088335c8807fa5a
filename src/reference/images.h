#pragma once

#include "core/refus.h"
#include "core/state.h"

#include <optional>

namespace talor {

/// The picture of a product: Photos/<num>.BMP, whether it is there or not.
QString photoProduit(const Exercice& exercice, qint64 num);

/// Puts a copy of a picture (BMP, GIF or JPEG) at the target, whatever the target's ending says; what stood there is
/// replaced whole or stays. A file that cannot be read, or is no such picture, is refused by name.
std::optional<Refus> copierImage(const QString& source, const QString& cible);
/// Deletes a picture where there is one.
std::optional<Refus> supprimerImage(const QString& chemin);

} // namespace talor
