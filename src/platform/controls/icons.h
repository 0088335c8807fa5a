#pragma once

#include <QColor>
#include <QIcon>
#include <QStringView>

/// The pictures of the program: line drawings kept as SVG, rendered at the size and the scaling asked for.
namespace controls {

/// A picture of the family ("nouveau", "quitter"...), in the family's blue, grey where it is disabled. An unknown name
/// gives an empty picture in a release and stops a debug build.
QIcon icon(QStringView name);
/// The same in another colour.
QIcon icon(QStringView name, QColor colour);

/// The program's own icon, in colours.
QIcon applicationIcon();

} // namespace controls
