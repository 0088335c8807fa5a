#pragma once

namespace reports {

/// Templates measure in millimetres and font sizes in points; a display list keeps tenths of a point, so that a font's
/// size is a whole number and one list serves screen, printer and PDF.
inline constexpr double unitsPerInch = 720.0;
inline constexpr double unitsPerPoint = 10.0;
inline constexpr double unitsPerMillimetre = unitsPerInch / 25.4;

} // namespace reports
