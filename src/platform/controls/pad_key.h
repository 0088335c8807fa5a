#pragma once

#include <QString>

class QPushButton;

namespace controls {

/// A large key for a finger, of the size that the style sheet gives to all keys of a pad. Pressing it leaves the focus
/// where it is.
QPushButton* padKey(const QString& caption = {});
/// The key that takes the last character away.
QPushButton* padBackspace();

} // namespace controls
