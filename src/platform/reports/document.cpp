#include "platform/reports/document.h"

#include "platform/reports/units.h"

namespace reports {

QSizeF Page::extent() const
{
    const QSizeF upright = QPageSize::size(size, QPageSize::Millimeter) * unitsPerMillimetre;
    return landscape ? upright.transposed() : upright;
}

void Document::append(const Document& other)
{
    const int firstPart = partCount();
    m_pages.reserve(m_pages.size() + other.m_pages.size());
    for (Page page : other.m_pages) {
        page.part += firstPart;
        m_pages.append(std::move(page));
    }
    m_partSizes += other.m_partSizes;
    m_hasRows |= other.m_hasRows;
    if (m_title.isEmpty())
        m_title = other.m_title;
}

void Document::addPage(Page page)
{
    page.part = partCount() - 1;
    page.number = ++m_partSizes.last();
    m_pages.append(std::move(page));
}

} // namespace reports
