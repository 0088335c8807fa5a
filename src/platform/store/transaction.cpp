#include "platform/store/database_impl.h"

#include <sqlite3.h>

namespace store {

namespace {

/// The outermost transaction is SQLite's own, one inside another a savepoint named for its depth.
QByteArray savepoint(int depth)
{
    return "inner" + QByteArray::number(depth);
}

} // namespace

Transaction::Transaction(Database& database)
    : m_database(database)
{
    Database::Impl& d = database.impl();
    d.checkStanding();
    d.connection.run(d.transactions == 0 ? QByteArray("begin immediate") : "savepoint " + savepoint(d.transactions));
    ++d.transactions;
}

Transaction::~Transaction()
{
    if (!m_open)
        return;
    Database::Impl& d = m_database.impl();
    --d.transactions;
    try {
        if (sqlite3_get_autocommit(d.connection.get()))
            return; // SQLite has undone it already
        if (d.transactions == 0)
            d.undo("rollback");
        else
            d.undo("rollback to " + savepoint(d.transactions) + "; release " + savepoint(d.transactions));
    } catch (const Error&) {
        // The journal stays, and undoes it when the file is next opened.
    }
}

void Transaction::commit()
{
    Database::Impl& d = m_database.impl();
    d.checkStanding();
    d.connection.run(d.transactions == 1 ? QByteArray("commit") : "release " + savepoint(d.transactions - 1));
    --d.transactions;
    m_open = false;
}

} // namespace store
