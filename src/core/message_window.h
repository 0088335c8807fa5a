#pragma once

#include "core/refus.h"

class QWidget;

namespace talor {

/// Shows a message that the logic returned.
void montrer(QWidget* parent, const Refus& refus);

} // namespace talor
