#pragma once

#include "platform/store/connection.h"
#include "platform/store/database.h"
#include "platform/store/recordset.h"

#include <QCache>

#include <memory>

namespace store {

/// What an open database shares with its recordsets and transactions.
///
/// Every write passes through `write`, which tells the recordsets of the table beforehand: each puts by the rows that
/// it has still to show, so that none is shown twice or passed over, and knows that its current row may have changed.
struct Database::Impl
{
    Impl(const QString& path, const Catalogue& catalogue);
    ~Impl();

    std::shared_ptr<const Query> translated(const QString& query, const Lexed& lexed);
    Statement prepare(const QByteArray& sql, const QString& query);

    qint64 write(const Table& table, const QByteArray& sql, const Values& values);
    void undo(const QByteArray& sql);
    void checkStanding() const;

    quint64& writesOf(const Table& table) { return m_writes[std::size_t(&table - catalogue.tables().constData())]; }

    const Catalogue& catalogue;
    Connection connection;
    std::vector<Recordset::Impl*> recordsets; ///< the open ones
    int transactions = 0;                     ///< open, each within the one before

private:
    void aboutToWrite(quint64 tables);

    QCache<QString, std::shared_ptr<const Query>> m_translations{256};
    std::vector<quint64> m_writes; ///< how many there have been, for each table of the catalogue
};

/// The values for the parameters of a translated query: its constants and the values handed in, in their order. Those
/// that take a column are left null.
Values parameterValues(const std::vector<Parameter>& parameters, const Lexed& lexed, const QVariantList& values,
                       const QString& query);

} // namespace store
