#pragma once

#include "platform/reports/layout.h"

namespace reports {

/// A row of a report: a value for each of Template::fieldNames, those of the tables of one row among them.
using Row = std::vector<QVariant>;

/// The rows that a report goes through, section by section, read one ahead.
class ReportRows
{
public:
    /// Reads the formula, the sort fields and the tables of one row.
    ReportRows(const Template& report, DataSource& data, const Request& request);

    /// False for a section whose source has nothing of what the formula asks for.
    bool answers(const Section& section) const;
    /// Stands before the first row of the section.
    void open(const Section& section);

    bool hasNext() const { return m_hasNext; }
    void advance();
    const Row& row() const { return m_row; }

    /// The outermost level that the next row is in another group of: their number when it is in none, 0 when there is
    /// no next row.
    int firstLevelToClose() const;

private:
    void checkNames() const;
    void readRowTables();
    std::vector<std::size_t> ask(const Source& source, Query* query) const;
    QStringList orderOf(const Section& section) const;
    void readNext();

    const Template& m_report;
    DataSource& m_data;
    Condition m_selection;
    QStringList m_sortFields;

    const Section* m_section = nullptr;
    std::unique_ptr<RowSource> m_rows;
    std::vector<std::size_t> m_places; ///< where in a row each value of the source goes
    Row m_constants;                   ///< of the tables of one row; the rest invalid
    Row m_row, m_next;
    bool m_hasNext = false;
};

} // namespace reports
