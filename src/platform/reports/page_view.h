#pragma once

#include "platform/reports/document.h"

#include <QAbstractScrollArea>

namespace reports {

/// The pages of a document one under the other, painted straight from its display list. Ctrl and the wheel change
/// the size.
class PageView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    enum class Zoom
    {
        Free,
        PageWidth,
        WholePage
    };

    explicit PageView(Document document, QWidget* parent = nullptr);

    const Document& document() const { return m_document; }

    /// Page in view, counted from 0.
    int currentPage() const { return m_current; }
    void goToPage(int page);

    /// 1 is the size on paper.
    double zoomFactor() const { return m_factor; }
    Zoom zoom() const { return m_zoom; }
    void setZoomFactor(double factor);
    void fit(Zoom zoom);
    void zoomIn();
    void zoomOut();

signals:
    void currentPageChanged(int page);
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    /// Pixels of the screen for one unit of the display list.
    double scale() const;
    void applyFit();
    void changeFactor(double factor, QPoint fixedPoint);
    /// Puts the pages at their places and tells the scroll bars.
    void arrange();
    QRect pageRect(int page) const; ///< in the viewport
    int pageAt(int contentY) const;
    void setCurrent(int page);

    Document m_document;
    Zoom m_zoom = Zoom::WholePage;
    double m_factor = 1;
    QList<int> m_tops; ///< of each page, in the content; one more for the end
    int m_contentWidth = 0;
    int m_current = 0;
    bool m_keepsPage = false; ///< while the content moves and the current page is known
};

} // namespace reports
