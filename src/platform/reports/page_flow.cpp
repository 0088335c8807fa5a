#include "platform/reports/page_flow.h"

namespace reports {

PageFlow::PageFlow(const Template& report, Document& document)
    : m_report(report)
    , m_document(document)
{}

int PageFlow::pageNumber() const
{
    const auto& pages = m_document.pages();
    const bool beginsPart = pages.isEmpty() || pages.last().part != m_document.partCount() - 1;
    return beginsPart ? 1 : pages.last().number + 1;
}

void PageFlow::open(Values values, bool startsDocument)
{
    if (startsDocument || m_document.partCount() == 0)
        m_document.startPart();
    m_page = Page();
    m_page.size = m_report.pageSize;
    m_page.landscape = m_report.landscape;
    m_isOpen = true;
    m_hasBody = false;
    m_cursor = m_report.margins.top();
    m_bottom = m_page.extent().height() - m_report.margins.bottom();

    values.page = pageNumber();
    m_foots.clear();
    for (int i = 0; i < m_report.pageFoots.size(); ++i) {
        if (m_report.pageFoots[i].when.holds(values)) {
            m_foots.append(i);
            m_bottom -= m_report.pageFoots[i].height;
        }
    }
    for (const Band& band : m_report.pageHeads) {
        if (band.when.holds(values))
            place(lay(band, values), true);
    }
}

void PageFlow::close(Values values)
{
    values.page = pageNumber();
    double top = m_bottom;
    for (const int i : std::as_const(m_foots)) {
        const Band& band = m_report.pageFoots[i];
        add(layBand(band, values, m_page.extent().width() - m_report.margins.left() - m_report.margins.right(),
                    band.height, false),
            top);
        top += band.height;
    }
    m_document.addPage(std::move(m_page));
    m_isOpen = false;
}

void PageFlow::place(const LaidBand& band, bool isRepeated)
{
    add(band, m_cursor);
    m_cursor += band.height;
    m_hasBody |= !isRepeated;
}

LaidBand PageFlow::lay(const Band& band, const Values& values, bool isShaded) const
{
    const QSizeF extent = m_page.extent();
    const double width = extent.width() - m_report.margins.left() - m_report.margins.right();
    // However long a text is, its band leaves room for the headings above it.
    const double maximalHeight = (m_bottom - m_report.margins.top()) * 0.75;
    return layBand(band, values, width, maximalHeight, isShaded);
}

void PageFlow::add(const LaidBand& band, double top)
{
    const QPointF corner(m_report.margins.left(), top);
    for (Shape shape : band.shapes) {
        shape.rect.translate(corner);
        m_page.shapes.append(std::move(shape));
    }
    for (TextRun run : band.texts) {
        run.x += corner.x();
        run.baseline += corner.y();
        m_page.texts.append(std::move(run));
    }
}

} // namespace reports
