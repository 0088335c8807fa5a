#pragma once

#include "core/state.h"
#include "demo/capture.h"
#include "demo/saison.h"

namespace talor {
class Form1;
}

namespace talor::demo {

/// A piece of work done at the keyboard in the real windows, its picture taken when the last key is pressed. Scenes are
/// played after the season and before its books are held to it.
struct Scene
{
    QString recit; ///< what is done, as the summary tells it
    Ecran ecran;
    /// What the store should hold afterwards and does not; nothing when all is as it should be.
    std::function<std::optional<QString>(Exercice&)> verifier;
};

/// The last bordereau of the season and the invoices of its day are among them.
QList<Scene> scenes(Form1& form1, Exercice& exercice, const Saison& saison);

} // namespace talor::demo
