#include "platform/reports/paint.h"

#include "platform/reports/error.h"
#include "platform/reports/units.h"

#include <QFileInfo>
#include <QHash>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <cmath>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

void paintShape(QPainter& painter, const Shape& shape)
{
    if (shape.width > 0) {
        QPen pen(QColor::fromRgb(shape.stroke), shape.width);
        pen.setCapStyle(Qt::FlatCap);
        pen.setJoinStyle(Qt::MiterJoin);
        painter.setPen(pen);
    } else {
        painter.setPen(Qt::NoPen);
    }
    if (shape.isRule) {
        painter.drawLine(shape.rect.topLeft(), shape.rect.bottomRight());
        return;
    }
    painter.setBrush(shape.fill ? QBrush(QColor::fromRgb(shape.fill)) : QBrush(Qt::NoBrush));
    if (shape.radius > 0)
        painter.drawRoundedRect(shape.rect, shape.radius, shape.radius);
    else
        painter.drawRect(shape.rect);
}

/// Fonts are made once and set only when they change.
class TextPainter
{
public:
    TextPainter(QPainter& painter, int pagesOfPart)
        : m_painter(painter)
        , m_pages(QString::number(pagesOfPart))
    {}

    void paint(const TextRun& run)
    {
        if (run.font.packed() != m_font) {
            m_font = run.font.packed();
            m_painter.setFont(fontFor(run.font));
        }
        if (run.color != m_color) {
            m_color = run.color;
            m_painter.setPen(QColor::fromRgb(run.color));
        }
        if (!run.text.contains(pagesMark)) {
            m_painter.drawText(QPointF(run.x, run.baseline), run.text);
            return;
        }
        const QString text = QString(run.text).replace(pagesMark, m_pages);
        const double width = textWidth(run.font, text);
        const double shift = run.align == Align::Right ? width : run.align == Align::Center ? width / 2 : 0;
        m_painter.drawText(QPointF(run.x - shift, run.baseline), text);
    }

private:
    QPainter& m_painter;
    QString m_pages;
    quint32 m_font = ~0U;
    QRgb m_color = 0;
};

QPageLayout sheetOf(const Page& page)
{
    QPageLayout layout(QPageSize(page.size), page.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                       QMarginsF());
    layout.setMode(QPageLayout::FullPageMode); // the margins are the template's
    return layout;
}

} // namespace

void paintPage(QPainter& painter, const Document& document, int page)
{
    const Page& content = document.pages()[page];
    for (const Shape& shape : content.shapes)
        paintShape(painter, shape);
    TextPainter texts(painter, document.pagesOfPart(content));
    for (const TextRun& run : content.texts)
        texts.paint(run);
}

QImage renderPage(const Document& document, int page, double dpi)
{
    const double scale = dpi / unitsPerInch;
    const QSizeF extent = document.pages()[page].extent() * scale;
    QImage image(qRound(extent.width()), qRound(extent.height()), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    paintPage(painter, document, page);
    return image;
}

bool paint(const Document& document, QPagedPaintDevice& device, int first, int last, const Progress& progress)
{
    device.setPageLayout(sheetOf(document.pages()[first]));
    QPainter painter;
    if (!painter.begin(&device))
        throw Error(u"L'impression n'a pas pu commencer : l'imprimante ne répond pas"_s);
    for (int page = first; page <= last; ++page) {
        if (page > first) {
            if (const QPageLayout sheet = sheetOf(document.pages()[page]); !sheet.isEquivalentTo(device.pageLayout()))
                device.setPageLayout(sheet);
            if (!device.newPage())
                throw Error(u"L'impression s'est arrêtée à la page %1"_s.arg(page));
        }
        painter.save();
        painter.scale(device.logicalDpiX() / unitsPerInch, device.logicalDpiY() / unitsPerInch);
        paintPage(painter, document, page);
        painter.restore();
        if (progress && !progress(page - first + 1))
            return false;
    }
    if (!painter.end())
        throw Error(u"L'impression n'a pas pu être terminée"_s);
    return true;
}

bool writePdf(const Document& document, const QString& path, const Progress& progress)
{
    const auto refuse = [&](const QString& reason) {
        throw Error(u"Le fichier '%1' n'a pas pu être écrit : %2"_s.arg(QFileInfo(path).fileName(), reason));
    };
    QSaveFile file(path); // remembers a write that failed, which the PDF writer does not tell
    if (!file.open(QIODevice::WriteOnly))
        refuse(file.errorString());
    {
        QPdfWriter writer(&file);
        writer.setResolution(static_cast<int>(unitsPerInch));
        writer.setTitle(document.title());
        if (!paint(document, writer, 0, document.pageCount() - 1, progress)) {
            file.cancelWriting();
            return false;
        }
    }
    if (!file.commit())
        refuse(file.errorString());
    return true;
}

} // namespace reports
