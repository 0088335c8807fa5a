#pragma once

#include "platform/reports/data_source.h"

namespace store {
class Database;
}

namespace reports {

/// What a print asks for.
struct Request
{
    QString templatePath;
    QString selectionFormula; ///< "{Factures.num} = 12", see Condition; empty: every row
    QStringList sortFields;   ///< "+ {Clients.nom} ", "-" for descending; empty: the template's own order
};

/// Lays a report out. Throws Error for what is wrong with the template, the formula or the sort fields, and
/// store::Error for the data.
Document layOut(const Template& report, DataSource& data, const Request& request);
Document layOut(const Template& report, store::Database& database, const Request& request);
/// The same with the template read from the request's path.
Document layOut(store::Database& database, const Request& request);

} // namespace reports
