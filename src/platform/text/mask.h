#pragma once

#include <QString>

namespace text {

/// A number as a mask shows it, such as "### ### ###.00" or "##0.00".
///
/// `#` is a digit written where it is significant, `0` a digit always written, "." the decimal separator. A blank
/// separates groups of digits and is written only where a digit stands to its left; figures that outgrow the mask are
/// written in front of it. Rounds half away from zero on the decimal value that the number reads as (1.005 with
/// "0.00" is "1.01"). Zero with "###.00" is ".00", with "###" an empty text. A negative has "-" in front, unless it
/// rounds to nothing. What is no finite number gives an empty text.
QString formatMask(double value, QStringView mask);

} // namespace text
