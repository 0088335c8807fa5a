#pragma once

#include "platform/reports/fonts.h"

#include <QList>
#include <QPageSize>
#include <QRectF>
#include <QRgb>

namespace reports {

enum class Align
{
    Left,
    Center,
    Right
};

/// Stands in a laid-out text for the number of pages, until it is painted.
inline constexpr QChar pagesMark(0xE000);

/// One line of text at its place. Lengths on a page are tenths of a point from the sheet's upper left corner.
struct TextRun
{
    double x = 0; ///< where the text starts, ends or has its middle, by `align`
    double baseline = 0;
    QString text; ///< may hold `pagesMark`
    FontKey font;
    QRgb color = 0xFF000000;
    Align align = Align::Left; ///< Left once laid out, unless the text holds `pagesMark`
};

/// A rule, or a frame that may be filled. Stands behind all texts of its page.
struct Shape
{
    QRectF rect; ///< a rule runs from its upper left to its lower right corner
    bool isRule = false;
    double width = 0; ///< of the pen; 0: no outline
    QRgb stroke = 0;
    QRgb fill = 0; ///< 0: not filled
    double radius = 0;
};

struct Page
{
    QPageSize::PageSizeId size = QPageSize::A4;
    bool landscape = false;
    int number = 1; ///< within its part
    int part = 0;
    QList<Shape> shapes;
    QList<TextRun> texts;

    QSizeF extent() const;
};

/// Pages that are laid out, ready to be shown, printed or saved. A document has parts, each with page numbers of its
/// own: the invoices of a batch. Copies share their content.
class Document
{
public:
    const QList<Page>& pages() const { return m_pages; }
    int pageCount() const { return static_cast<int>(m_pages.size()); }
    /// How many pages the part of this page has: the N of "page n / N".
    int pagesOfPart(const Page& page) const { return m_partSizes[page.part]; }
    int partCount() const { return static_cast<int>(m_partSizes.size()); }

    /// False when no row answered the selection; there is one page all the same, which says so.
    bool hasRows() const { return m_hasRows; }
    const QString& title() const { return m_title; }
    void setTitle(const QString& title) { m_title = title; }

    /// Puts the pages of the other behind these, each part keeping its own numbering.
    void append(const Document& other);

    // What the layout calls to fill it.
    void startPart() { m_partSizes.append(0); }
    void addPage(Page page);
    void setHasRows() { m_hasRows = true; }

private:
    QString m_title;
    QList<Page> m_pages;
    QList<int> m_partSizes;
    bool m_hasRows = false;
};

} // namespace reports
