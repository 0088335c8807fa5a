#pragma once

#include "core/refus.h"

class QWidget;

namespace talor {

/// Shows what the logic returned: its text under its title with its icon, and one button.
void montrer(QWidget* parent, const Refus& message);
/// The same when there is something to show; returns whether there was.
bool montrerSi(QWidget* parent, const std::optional<Refus>& message);
/// Asks a question of the logic's; true for "Oui".
bool confirmer(QWidget* parent, const Refus& question);

} // namespace talor
