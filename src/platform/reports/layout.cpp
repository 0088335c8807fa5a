#include "platform/reports/layout.h"

#include "platform/reports/page_flow.h"
#include "platform/reports/running_sums.h"
#include "platform/services/clock.h"

#include <functional>

namespace reports {

namespace {

/// One report on its way from rows to pages.
///
/// With each row it is known which groups it opens and which it closes. A row and what belongs to it, the heads of the
/// groups that it opens and the foots of those that it closes, are one block that no page break parts: thus no
/// heading stands alone at the bottom of a page and no total alone at the top.
class LayoutRun
{
public:
    LayoutRun(const Template& report, DataSource& data, const Request& request)
        : m_report(report)
        , m_rows(report, data, request)
        , m_sums(report.sums)
        , m_flow(report, m_document)
        , m_placedRow(m_rows.row())
        , m_today(services::clock::todayText())
    {
        m_document.setTitle(report.title);
    }

    Document run()
    {
        for (const Section& section : m_report.sections) {
            if (m_rows.answers(section))
                runSection(section);
        }
        if (m_document.pageCount() == 0 && !m_flow.isOpen())
            beginPage(0);
        endPage();
        return std::move(m_document);
    }

private:
    /// Bands that a page break must not part.
    using Segment = std::vector<LaidBand>;
    using Block = std::vector<Segment>;

    void runSection(const Section& section)
    {
        m_section = &section;
        m_rows.open(section);
        if (section.startsPage)
            endPage();
        if (!m_rows.hasNext()) {
            if (!section.emptyBands.isEmpty())
                placeBlock([this] { return emptyBlock(); }, 0);
            return;
        }
        m_document.setHasRows();
        for (int opened = 0; m_rows.hasNext();) {
            m_rows.advance();
            const int closed = m_rows.firstLevelToClose();
            startGroups(opened);
            m_sums.add(m_rows.row());
            placeBlock([=, this] { return rowBlock(opened, closed); }, opened);
            m_isShaded = !m_isShaded;
            opened = closed;
        }
    }

    void startGroups(int opened)
    {
        const auto& levels = m_section->levels;
        if (opened == levels.size())
            return;
        bool startsPage = false;
        for (qsizetype i = opened; i < levels.size(); ++i) {
            startsPage |= levels[i].startsPage;
            m_startsDocument |= levels[i].startsDocument;
        }
        if (startsPage)
            endPage();
        m_sums.startGroups(levels, opened);
        if (startsPage) // the head of the new page must not carry over what another group came to
            m_sums.place();
        m_isShaded = false;
    }

    // --- what belongs to a row

    Block rowBlock(int opened, int closed) const
    {
        Block block(1);
        const auto& levels = m_section->levels;
        for (qsizetype i = opened; i < levels.size(); ++i) {
            addBands(levels[i].heads, &block);
            addBands(levels[i].columns, &block);
        }
        addBands(m_section->details, &block, m_isShaded);
        for (qsizetype i = levels.size() - 1; i >= closed; --i)
            addBands(levels[i].foots, &block);
        return block;
    }

    Block emptyBlock() const
    {
        Block block(1);
        addBands(m_section->emptyBands, &block);
        return block;
    }

    void addBands(const Bands& bands, Block* block, bool isShaded = false) const
    {
        const Values values = rowValues();
        for (const Band& band : bands) {
            if (!band.when.holds(values))
                continue;
            if (!band.keeps)
                block->emplace_back();
            block->back().push_back(m_flow.lay(band, values, isShaded));
        }
    }

    // --- pages

    /// `build` is called again behind a page break, since a band may show the number of its page.
    void placeBlock(const std::function<Block()>& build, int opened)
    {
        if (!m_flow.isOpen())
            beginPage(opened);
        Block block = build();
        if (!m_flow.fits(heightOf(block.front())) && m_flow.hasBody()) {
            endPage();
            beginPage(opened);
            block = build();
        }
        for (const Segment& segment : block) {
            const bool isFirst = &segment == &block.front();
            if (!isFirst && !m_flow.fits(heightOf(segment)))
                turnPage();
            for (const LaidBand& band : segment) {
                if (!m_flow.fits(band.height)) // what no page holds in one piece is parted where it must
                    turnPage();
                m_flow.place(band);
            }
            if (isFirst)
                markPlaced();
        }
    }

    static double heightOf(const Segment& segment)
    {
        double height = 0;
        for (const LaidBand& band : segment)
            height += band.height;
        return height;
    }

    void markPlaced()
    {
        m_placedRow = m_rows.row();
        m_sums.place();
    }

    void turnPage()
    {
        if (!m_flow.hasBody())
            return;
        endPage();
        beginPage(static_cast<int>(m_section->levels.size()));
    }

    void endPage()
    {
        if (m_flow.isOpen())
            m_flow.close({&m_placedRow, &m_sums.placed(), 0, m_today});
        m_sums.endPage();
    }

    /// The page's heads, then the headings of the groups that were open before it: those outside level `opened`.
    void beginPage(int opened)
    {
        m_flow.open({&m_rows.row(), &m_sums.placed(), 0, m_today}, std::exchange(m_startsDocument, false));
        const Values values = rowValues();
        for (qsizetype i = 0; i < opened; ++i) {
            const Level& level = m_section->levels[i];
            for (const Band& band : level.heads) {
                if (band.repeats && band.when.holds(values))
                    m_flow.place(m_flow.lay(band, values), true);
            }
            for (const Band& band : level.columns) {
                if (band.when.holds(values))
                    m_flow.place(m_flow.lay(band, values), true);
            }
        }
        m_isShaded = false;
    }

    Values rowValues() const { return {&m_rows.row(), &m_sums.current(), m_flow.pageNumber(), m_today}; }

    const Template& m_report;
    Document m_document;
    ReportRows m_rows;
    RunningSums m_sums;
    PageFlow m_flow;
    const Section* m_section = nullptr;
    Row m_placedRow; ///< the last row that stands on a page: what a page's foot shows
    QString m_today;
    bool m_isShaded = false;       ///< whether the row in hand has the ground of every second row
    bool m_startsDocument = false; ///< whether the next page begins the numbering anew
};

} // namespace

Document layOut(const Template& report, DataSource& data, const Request& request)
{
    return LayoutRun(report, data, request).run();
}

} // namespace reports
