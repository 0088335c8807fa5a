#pragma once

#include <QString>

class QWidget;

namespace talor {

/// Dials a number through the telephone service, and says so when there is no number or the call fails.
void Composer(QWidget* parent, const QString& numero);

} // namespace talor
