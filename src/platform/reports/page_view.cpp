#include "platform/reports/page_view.h"

#include "platform/reports/paint.h"
#include "platform/reports/units.h"

#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace reports {

namespace {

constexpr int gap = 18; // around and between the sheets
constexpr std::array steps = {0.25, 0.33, 0.5, 0.67, 0.75, 0.9, 1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 4.0};
constexpr QColor desk(0xD9, 0xDF, 0xE3);
constexpr QColor edge(0xB4, 0xBE, 0xC5);

void paintSheet(QPainter& painter, const QRect& sheet)
{
    painter.setPen(Qt::NoPen);
    for (int depth = 4; depth > 0; --depth) { // a soft shadow
        painter.setBrush(QColor(20, 40, 60, 10));
        painter.drawRoundedRect(sheet.adjusted(-depth + 1, -depth + 3, depth - 1, depth + 1), 3, 3);
    }
    painter.fillRect(sheet, Qt::white);
    painter.setPen(QPen(edge, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(sheet.adjusted(0, 0, -1, -1));
}

} // namespace

PageView::PageView(Document document, QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_document(std::move(document))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    verticalScrollBar()->setSingleStep(40);
    arrange();
}

// --- size ------------------------------------------------------------------------------------------------------------

double PageView::scale() const
{
    return m_factor * logicalDpiY() / unitsPerInch;
}

void PageView::setZoomFactor(double factor)
{
    m_zoom = Zoom::Free;
    changeFactor(factor, viewport()->rect().center());
}

void PageView::fit(Zoom zoom)
{
    m_zoom = zoom;
    applyFit();
}

void PageView::zoomIn()
{
    const auto next = std::find_if(steps.begin(), steps.end(), [this](double s) { return s > m_factor + 0.005; });
    setZoomFactor(next == steps.end() ? steps.back() : *next);
}

void PageView::zoomOut()
{
    const auto next = std::find_if(steps.rbegin(), steps.rend(), [this](double s) { return s < m_factor - 0.005; });
    setZoomFactor(next == steps.rend() ? steps.front() : *next);
}

void PageView::applyFit()
{
    if (m_zoom == Zoom::Free || m_document.pageCount() == 0)
        return;
    const QSizeF sheet = m_document.pages()[m_current].extent() * (logicalDpiY() / unitsPerInch);
    // The scroll bar's room is kept whether it shows or not: else it could come and go with every size.
    const double width = (contentsRect().width() - 2 * gap - verticalScrollBar()->sizeHint().width()) / sheet.width();
    const double height = (viewport()->height() - 2 * gap) / sheet.height();
    changeFactor(m_zoom == Zoom::PageWidth ? width : std::min(width, height), QPoint());
    goToPage(m_current);
}

/// What lies under the fixed point stays there.
void PageView::changeFactor(double factor, QPoint fixedPoint)
{
    factor = std::clamp(factor, steps.front() / 2, steps.back());
    const double growth = factor / m_factor;
    const QPointF before(horizontalScrollBar()->value() + fixedPoint.x(),
                         verticalScrollBar()->value() + fixedPoint.y());
    const QScopedValueRollback keeping(m_keepsPage, true);
    m_factor = factor;
    arrange();
    horizontalScrollBar()->setValue(qRound(before.x() * growth - fixedPoint.x()));
    verticalScrollBar()->setValue(qRound(before.y() * growth - fixedPoint.y()));
    viewport()->update();
    emit zoomChanged();
}

void PageView::arrange()
{
    m_tops.clear();
    m_contentWidth = 0;
    int top = gap;
    for (const Page& page : m_document.pages()) {
        const QSizeF size = page.extent() * scale();
        m_tops.append(top);
        m_contentWidth = std::max(m_contentWidth, qRound(size.width()) + 2 * gap);
        top += qRound(size.height()) + gap;
    }
    m_tops.append(top);
    verticalScrollBar()->setRange(0, std::max(0, top - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    horizontalScrollBar()->setRange(0, std::max(0, m_contentWidth - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
}

void PageView::resizeEvent(QResizeEvent*)
{
    const QScopedValueRollback keeping(m_keepsPage, true);
    arrange();
    applyFit();
}

// --- turning pages ---------------------------------------------------------------------------------------------------

void PageView::goToPage(int page)
{
    page = std::clamp(page, 0, std::max(0, m_document.pageCount() - 1));
    // Near the end a page can't always come to the top: the page asked for is the current one all the same.
    const QScopedValueRollback keeping(m_keepsPage, true);
    verticalScrollBar()->setValue(m_tops[page] - gap);
    setCurrent(page);
}

void PageView::setCurrent(int page)
{
    if (std::exchange(m_current, page) != page)
        emit currentPageChanged(page);
}

int PageView::pageAt(int contentY) const
{
    const auto after = std::upper_bound(m_tops.begin(), m_tops.end() - 1, contentY);
    return std::max(0, static_cast<int>(after - m_tops.begin()) - 1);
}

void PageView::scrollContentsBy(int, int)
{
    viewport()->update();
    if (!m_keepsPage)
        setCurrent(pageAt(verticalScrollBar()->value() + viewport()->height() / 2));
}

void PageView::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    m_zoom = Zoom::Free;
    changeFactor(m_factor * std::pow(1.1, event->angleDelta().y() / 120.0), event->position().toPoint());
    event->accept();
}

// --- painting --------------------------------------------------------------------------------------------------------

QRect PageView::pageRect(int page) const
{
    const QSizeF size = m_document.pages()[page].extent() * scale();
    const int width = qRound(size.width());
    const int room = std::max(m_contentWidth, viewport()->width());
    return {(room - width) / 2 - horizontalScrollBar()->value(), m_tops[page] - verticalScrollBar()->value(), width,
            qRound(size.height())};
}

void PageView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.fillRect(event->rect(), desk);
    for (int page = pageAt(verticalScrollBar()->value()); page < m_document.pageCount(); ++page) {
        const QRect sheet = pageRect(page);
        if (sheet.top() > event->rect().bottom())
            break;
        paintSheet(painter, sheet);
        painter.save();
        painter.setClipRect(sheet);
        painter.translate(sheet.topLeft());
        painter.scale(scale(), scale());
        paintPage(painter, m_document, page);
        painter.restore();
    }
}

} // namespace reports
