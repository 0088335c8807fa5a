#pragma once

#include "platform/reports/document.h"

#include <QImage>

#include <functional>

class QPagedPaintDevice;
class QPainter;

namespace reports {

/// Told after each page; answering false stops the work.
using Progress = std::function<bool(int pagesDone)>;

/// Draws one page, the painter's unit being that of the display list and its origin the sheet's corner. `page` counts
/// from 0, as everywhere.
void paintPage(QPainter& painter, const Document& document, int page);

/// One page as a picture.
QImage renderPage(const Document& document, int page, double dpi);

/// Paints the pages from `first` to `last` on a printer or a PDF writer, setting its paper page by page. Throws Error
/// when the device refuses. False when `progress` stopped it.
bool paint(const Document& document, QPagedPaintDevice& device, int first, int last, const Progress& progress = {});

/// Writes the document to a PDF, beside the file first and then in its place. Throws Error when it can't be written
/// whole, and then what stood there stays. False, with the file left as it was, when `progress` stopped it.
bool writePdf(const Document& document, const QString& path, const Progress& progress = {});

} // namespace reports
