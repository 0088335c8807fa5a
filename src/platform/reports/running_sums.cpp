#include "platform/reports/running_sums.h"

#include <algorithm>

namespace reports {

RunningSums::RunningSums(const QList<Sum>& sums)
    : m_sums(sums)
    , m_current(std::size_t(sums.size()))
    , m_placed(m_current)
    , m_shares(m_current)
{}

void RunningSums::startGroups(const QList<Level>& levels, int firstOpened)
{
    for (std::size_t i = 0; i < m_current.size(); ++i) {
        const Sum& sum = m_sums[qsizetype(i)];
        if (sum.reset == Sum::Reset::Group && std::any_of(levels.begin() + firstOpened, levels.end(),
                                                          [&](const Level& level) { return level.name == sum.group; }))
            m_current[i] = 0;
    }
}

void RunningSums::add(const Row& row)
{
    for (std::size_t i = 0; i < m_current.size(); ++i) {
        const Sum& sum = m_sums[qsizetype(i)];
        m_shares[i] = share(sum, row);
        m_current[i] = sum.reset == Sum::Reset::Row ? m_shares[i] : m_current[i] + m_shares[i];
    }
}

void RunningSums::place()
{
    m_placed = m_current;
    std::fill(m_shares.begin(), m_shares.end(), 0.0L);
}

/// A row in hand that did not fit belongs to the next page's sum.
void RunningSums::endPage()
{
    for (std::size_t i = 0; i < m_current.size(); ++i) {
        if (m_sums[qsizetype(i)].reset == Sum::Reset::Page) {
            m_placed[i] = 0;
            m_current[i] = m_shares[i];
        }
    }
}

long double RunningSums::share(const Sum& sum, const Row& row)
{
    if (sum.isCount && sum.parts.isEmpty())
        return 1;
    long double share = 0;
    for (const Sum::Part& part : sum.parts) {
        const QVariant& value = row[std::size_t(part.field.index)];
        if (sum.isCount)
            share += value.isValid() && !value.isNull() ? 1 : 0;
        else
            share += (part.isSubtracted ? -1 : 1) * static_cast<long double>(value.toDouble());
    }
    return share;
}

} // namespace reports
