#pragma once

#include <QIcon>

namespace reports {

/// The line drawings of the preview's buttons, by the name of the button; an empty icon for a name without one.
QIcon previewIcon(const QString& name);

} // namespace reports
