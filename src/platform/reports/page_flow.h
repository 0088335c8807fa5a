#pragma once

#include "platform/reports/band_layout.h"

namespace reports {

/// The page under way: bands fill it from the top, its heads above and its foots below. Pages that are closed go into
/// the document.
class PageFlow
{
public:
    PageFlow(const Template& report, Document& document);

    bool isOpen() const { return m_isOpen; }
    /// True once a band of the report itself stands on the page.
    bool hasBody() const { return m_hasBody; }
    /// Of the page that is open, or of the one that `open` would begin.
    int pageNumber() const;

    /// Begins a page with its heads. `startsDocument` begins the numbering anew.
    void open(Values values, bool startsDocument);
    /// Ends the page with its foots.
    void close(Values values);

    bool fits(double height) const { return m_cursor + height <= m_bottom + 0.5; }
    /// `repeated` bands, headings set again at the top of a page, don't count as the page's body.
    void place(const LaidBand& band, bool isRepeated = false);

    LaidBand lay(const Band& band, const Values& values, bool isShaded = false) const;

private:
    void add(const LaidBand& band, double top);

    const Template& m_report;
    Document& m_document;
    Page m_page;
    bool m_isOpen = false;
    bool m_hasBody = false;
    double m_cursor = 0; ///< where the next band goes
    double m_bottom = 0; ///< where the foots begin
    QList<int> m_foots;  ///< those whose condition held when the page began: for these room is kept
};

} // namespace reports
