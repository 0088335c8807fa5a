#pragma once

namespace reports {

/// Templates and laid-out pages measure in millimetres; a display list keeps tenths of a point.
inline constexpr double pointsPerMillimetre = 72.0 / 25.4;

} // namespace reports
