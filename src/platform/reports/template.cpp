#include "platform/reports/template.h"

#include <algorithm>

namespace reports {

bool Source::contains(QStringView tableName) const
{
    const auto isIt = [tableName](QStringView name) { return name.compare(tableName, Qt::CaseInsensitive) == 0; };
    return isIt(table) || std::any_of(joins.begin(), joins.end(), [&](const Join& join) { return isIt(join.table); });
}

QStringList Template::fields() const
{
    QStringList all = fieldNames;
    for (const Section& section : sections) {
        for (const Source::Join& join : section.source.joins)
            all << join.left << join.right;
        for (const QString& field : section.source.order)
            all << (field.startsWith(u'-') ? field.sliced(1) : field);
        for (const Level& level : section.levels) {
            if (!level.orderBy.isEmpty())
                all << level.orderBy;
        }
    }
    all.removeDuplicates();
    return all;
}

} // namespace reports
