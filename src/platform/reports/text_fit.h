#pragma once

#include "platform/reports/fonts.h"

namespace reports {

/// The text, or as much of it as fits into the width with "…" behind.
QString elided(const FontKey& font, const QString& text, double width);

/// The text on lines no wider than the width, parted between words; a word too wide for a line is parted where it must.
/// Line breaks in the text stay.
QStringList wrapped(const FontKey& font, const QString& text, double width);

/// The font made smaller, if need be, so that the text fits into the width, to no less than `least` times its size.
FontKey shrunk(FontKey font, const QString& text, double width, double least);

} // namespace reports
