#pragma once

#include "platform/reports/template.h"

namespace reports {

/// A band with its values in, at height 0; placing it on a page moves it down.
struct LaidBand
{
    double height = 0;
    QList<Shape> shapes;
    QList<TextRun> texts;
};

/// Lays a band out. It grows with texts that wrap, up to `maximalHeight`, where the text is cut.
/// `width` is that of the page between its margins; `isShaded` gives the ground of every second row.
LaidBand layBand(const Band& band, const Values& values, double width, double maximalHeight, bool isShaded);

} // namespace reports
