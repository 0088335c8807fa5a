#include "platform/store/connection.h"

#include "platform/store/failure.h"
#include "platform/store/text.h"

#include <QFile>

#include <sqlite3.h>

#include <algorithm>

namespace store {

Statement::Statement(Connection& connection, QByteArray sql, sqlite3_stmt* statement)
    : m_connection(&connection)
    , m_sql(std::move(sql))
    , m_statement(statement)
{}

Statement::Statement(Statement&& other) noexcept
    : m_connection(other.m_connection)
    , m_sql(std::move(other.m_sql))
    , m_statement(std::exchange(other.m_statement, nullptr))
    , m_bound(other.m_bound)
{}

Statement& Statement::operator=(Statement&& other) noexcept
{
    if (this != &other) {
        release();
        m_connection = other.m_connection;
        m_sql = std::move(other.m_sql);
        m_statement = std::exchange(other.m_statement, nullptr);
        m_bound = other.m_bound;
    }
    return *this;
}

void Statement::release()
{
    if (m_statement)
        m_connection->keep(m_sql, std::exchange(m_statement, nullptr));
    m_bound = 0;
}

void Statement::bind(const Value& value)
{
    bindValue(m_statement, ++m_bound, value);
}

void Statement::bind(const Values& values)
{
    for (const Value& value : values)
        bind(value);
}

bool Statement::step()
{
    const int result = sqlite3_step(m_statement);
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        m_connection->fail();
    return false;
}

void Statement::reset()
{
    sqlite3_reset(m_statement);
}

Connection::Connection(const QString& path, Mode mode)
    : m_path(path)
{
    const int access = mode == ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    const int flags = access | (mode == Create ? SQLITE_OPEN_CREATE : 0) | SQLITE_OPEN_NOMUTEX;
    const int result = sqlite3_open_v2(path.toUtf8().constData(), &m_connection, flags, nullptr);
    if (result != SQLITE_OK) {
        const QString detail = QString::fromUtf8(sqlite3_errmsg(m_connection));
        sqlite3_close(m_connection);
        failFile(result, detail, path);
    }
    sqlite3_extended_result_codes(m_connection, 1);
    sqlite3_busy_timeout(m_connection, 200);
    sqlite3_db_config(m_connection, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(m_connection, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_db_config(m_connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    addTextFunctions(m_connection);
    if (mode == Create)
        run("pragma journal_mode = off; pragma synchronous = off; pragma cache_size = -65536");
}

Connection::~Connection()
{
    for (const Idle& idle : m_idle)
        sqlite3_finalize(idle.statement);
    sqlite3_close_v2(m_connection);
}

void Connection::run(const QByteArray& sql)
{
    if (sqlite3_exec(m_connection, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail();
}

qint64 Connection::number(const char* sql)
{
    Statement statement = prepare(sql);
    return statement.step() ? sqlite3_column_int64(statement.get(), 0) : 0;
}

QStringList Connection::texts(const char* sql)
{
    QStringList found;
    for (Statement statement = prepare(sql); statement.step();)
        found += textOf(Cell(statement.get(), 0), {});
    return found;
}

Statement Connection::prepare(const QByteArray& sql)
{
    // The last put back is the likeliest to be wanted.
    const auto kept =
        std::find_if(m_idle.rbegin(), m_idle.rend(), [&sql](const Idle& idle) { return idle.sql == sql; });
    if (kept != m_idle.rend()) {
        const Idle idle = *kept;
        m_idle.erase(std::next(kept).base());
        return Statement(*this, idle.sql, idle.statement);
    }
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(m_connection, sql.constData(), int(sql.size()) + 1, SQLITE_PREPARE_PERSISTENT, &statement,
                           nullptr) != SQLITE_OK)
        fail();
    ++m_prepared;
    return Statement(*this, sql, statement);
}

void Connection::keep(const QByteArray& sql, sqlite3_stmt* statement)
{
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    m_idle.push_back({sql, statement});
    if (m_idle.size() > maximumIdle) {
        sqlite3_finalize(m_idle.front().statement);
        m_idle.pop_front();
    }
}

void Connection::fail() const
{
    failFile(m_connection, m_path);
}

} // namespace store
