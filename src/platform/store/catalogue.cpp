#include "platform/store/catalogue.h"

#include <algorithm>

namespace store {

namespace {

template<class List> int positionOf(const List& list, QStringView name)
{
    const auto found = std::find_if(list.cbegin(), list.cend(), [name](const auto& entry) {
        return name.compare(entry.name, Qt::CaseInsensitive) == 0;
    });
    return found == list.cend() ? -1 : int(found - list.cbegin());
}

} // namespace

int Table::position(QStringView fieldName) const
{
    return positionOf(fields, fieldName);
}

Catalogue::Catalogue(quint32 applicationId, int version, QList<Table> tables)
    : m_applicationId(applicationId)
    , m_version(version)
    , m_tables(std::move(tables))
{}

const Table* Catalogue::find(QStringView tableName) const
{
    const int position = positionOf(m_tables, tableName);
    return position < 0 ? nullptr : &m_tables[position];
}

} // namespace store
