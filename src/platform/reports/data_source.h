#pragma once

#include "platform/reports/condition.h"
#include "platform/reports/template.h"

#include <memory>

namespace reports {

/// What a report asks of the data: one query a section.
struct Query
{
    QString report; ///< name of the template that asks, for messages
    const Source* source = nullptr;
    QStringList fields; ///< "Table.field", in the order in which a row gives its values
    Condition selection;
    QStringList order; ///< "Table.field", behind "-" when descending
};

/// The rows of a query, each read once from the first to the last.
class RowSource
{
public:
    virtual ~RowSource() = default;

    /// Stands on the next row, the first time on the first; false when there is none.
    virtual bool next() = 0;
    /// Of the row stood on: invalid when null, a date as dd/MM/yyyy, a flag as 0 or 1.
    virtual QVariant value(int field) const = 0;
};

/// Where the layout takes its rows from: the open database, or rows that a test sets up.
class DataSource
{
public:
    virtual ~DataSource() = default;

    virtual std::unique_ptr<RowSource> open(const Query& query) = 0;
};

} // namespace reports
