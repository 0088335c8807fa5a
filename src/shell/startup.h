#pragma once

#include "core/state.h"

#include <functional>
#include <memory>

namespace talor {

/// What the start asks of the screen on its way; a test answers in its place.
struct EcranDemarrage
{
    std::function<void()> TestImprimante;      ///< a machine without a printer is told so, and the start goes on
    std::function<void(const Refus&)> montrer; ///< a message after which the start goes on
    std::function<std::optional<PointeurAnnee>(const Configuration&)> demanderPremierExercice; ///< `Form12`
};

struct Demarrage
{
    enum class Issue
    {
        Ouvert,    ///< the exercise is open and its parameters are read
        Arrete,    ///< the process ends, after `message` where there is one
        Endommage, ///< the file could not be opened: `message`, then the repair dialog, then the process ends
    };

    Issue issue = Issue::Arrete;
    std::optional<Refus> message;
    bool bip = false;                   ///< the message is followed by a beep
    std::unique_ptr<Exercice> exercice; ///< null when `Arrete`; closed when `Endommage`
};

/// The start order from the files that must exist to the open exercise, each step only after the one before it.
Demarrage demarrer(const Installation& installation, const EcranDemarrage& ecran);

} // namespace talor
