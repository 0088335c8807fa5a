#pragma once

#include "core/paquet.h"

#include <functional>

namespace talor {

/// What the choice of the folder asks of the screen; a test answers in its place.
struct EcranDossier
{
    std::function<bool(const Refus& question)> confirmer;
    std::function<void(const Refus&)> montrer;
    std::function<QString(const QString& depart)> choisir; ///< a folder, empty when the person gave up
};

/// The user's folder in which a packaged program works, with the delivered files in it. The first start proposes
/// one, a later start goes straight to the one remembered; one that is gone or cannot be written to is told and asked
/// for again. Empty when the person gave up.
QString choisirDossier(const Paquet& paquet, const EcranDossier& ecran);

} // namespace talor
