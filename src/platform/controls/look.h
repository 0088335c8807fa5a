#pragma once

#include <QColor>

class QApplication;
class QWidget;

/// The one look of the program: one palette, one style sheet, one type size.
namespace controls {

namespace colour {
inline constexpr QColor ink{0x1D, 0x2B, 0x36};   ///< text
inline constexpr QColor muted{0x5C, 0x6B, 0x77}; ///< captions and hints
inline constexpr QColor disabled{0xA3, 0xAB, 0xB1};
inline constexpr QColor sand{0xF5, 0xF1, 0xE8};      ///< behind everything
inline constexpr QColor sandDeep{0xE9, 0xE2, 0xD2};  ///< marked rows, pressed surfaces
inline constexpr QColor line{0xD3, 0xCC, 0xBC};      ///< borders
inline constexpr QColor paper{0xFF, 0xFF, 0xFF};     ///< fields, lists, panels
inline constexpr QColor band{0xF6, 0xF9, 0xFB};      ///< every second row of a list
inline constexpr QColor navy{0x17, 0x43, 0x5E};      ///< title bands
inline constexpr QColor blue{0x25, 0x64, 0x8A};      ///< pictures, links, headings
inline constexpr QColor blueLight{0xE3, 0xEE, 0xF5}; ///< heads of lists, surfaces under the pointer
inline constexpr QColor selected{0xC7, 0xDF, 0xEE};
inline constexpr QColor focus{0x2E, 0x86, 0xC1};  ///< the ring around what has the focus
inline constexpr QColor accent{0xBD, 0x56, 0x1C}; ///< the action that counts
inline constexpr QColor accentDeep{0x9C, 0x45, 0x14};
inline constexpr QColor owed{0xB3, 0x26, 0x1E}; ///< what is owed or refused, and nothing else
} // namespace colour

/// What a widget stands for; the style sheet gives each its look.
enum class Role
{
    Primary,  ///< the button of the action that counts
    Title,    ///< heading of a dialog's title band
    Subtitle, ///< second text of a title band
    Section,  ///< heading of a panel
    Caption,  ///< beside a field
    Value,    ///< a computed figure or text, in a box like a field that cannot be typed into
    Total,    ///< the figure of a total
    Hint,     ///< small quiet text
    Panel,    ///< a frame around fields, on paper
    Sheet,    ///< under texts that stand on a drawing
    Display,  ///< the figures of a number pad
};

void setRole(QWidget* widget, Role role);
/// Red text for what is owed, or ink again.
void setOwed(QWidget* label, bool owed);
/// The ring of the focus around a value that what is typed goes into.
void setInHand(QWidget* label, bool inHand);

/// Dresses the application: style, palette, fonts, style sheet, icon, French texts of the standard dialogs, and numbers
/// read and written with "." whatever the machine's settings. Once, before the first window.
void applyLook(QApplication& application);

} // namespace controls
