#pragma once

#include "platform/reports/data_source.h"
#include "platform/store/database.h"

namespace reports {

/// Reads a report's rows from the store, each section by one query, checked against the schema beforehand: an unknown
/// table or field is an Error that names it.
class StoreSource : public DataSource
{
public:
    explicit StoreSource(store::Database& database)
        : m_database(database)
    {}

    std::unique_ptr<RowSource> open(const Query& query) override;

private:
    store::Database& m_database;
};

/// A query in the store's dialect. `values` takes what is to be bound.
QString queryText(const Query& query, QVariantList* values);

/// Those of the names "Table.field" that the schema lacks.
QStringList unknownFields(const QStringList& names, const store::Catalogue& catalogue);

} // namespace reports
