#pragma once

#include "platform/reports/report_rows.h"

namespace reports {

/// The sums of a report while its rows go by.
///
/// They are kept twice: with the row in hand, for the bands that belong to it, and with the rows that stand on a page,
/// for the foot of a page which the row in hand may not reach.
class RunningSums
{
public:
    explicit RunningSums(const QList<Sum>& sums);

    /// The groups of these levels begin: their sums start from nothing.
    void startGroups(const QList<Level>& levels, int firstOpened);
    /// The next row is in hand.
    void add(const Row& row);
    /// The row in hand stands on the page.
    void place();
    void endPage();

    const std::vector<long double>& current() const { return m_current; }
    const std::vector<long double>& placed() const { return m_placed; }

private:
    static long double share(const Sum& sum, const Row& row);

    const QList<Sum>& m_sums;
    std::vector<long double> m_current; ///< long: a day's cents must not drift
    std::vector<long double> m_placed;
    std::vector<long double> m_shares; ///< what the row in hand brought; nothing once it is placed
};

} // namespace reports
