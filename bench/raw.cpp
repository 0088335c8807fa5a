#include "bench/raw.h"

#include "platform/store/text.h"

#include <stdexcept>

namespace talor::bench {

Raw::Raw(const QString& path, Use use)
{
    if (sqlite3_open_v2(path.toUtf8().constData(), &m_connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                        nullptr) != SQLITE_OK)
        fail();
    sqlite3_extended_result_codes(m_connection, 1);
    store::addTextFunctions(m_connection); // sorting by name is part of the work
    if (use == Filling)
        run("pragma journal_mode = off; pragma synchronous = off; pragma cache_size = -262144");
    else
        run("pragma locking_mode = exclusive; pragma journal_mode = delete; pragma synchronous = extra;"
            "pragma cache_size = -65536; pragma temp_store = memory; pragma foreign_keys = off;"
            "pragma cell_size_check = on; pragma secure_delete = on; begin exclusive; commit");
}

Raw::~Raw()
{
    for (sqlite3_stmt* statement : m_statements)
        sqlite3_finalize(statement);
    sqlite3_close(m_connection);
}

sqlite3_stmt* Raw::prepare(const char* sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(m_connection, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
        fail();
    m_statements.push_back(statement);
    return statement;
}

void Raw::run(const char* sql)
{
    if (sqlite3_exec(m_connection, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        fail();
}

void Raw::execute(sqlite3_stmt* statement)
{
    if (sqlite3_step(statement) != SQLITE_DONE)
        fail();
    sqlite3_reset(statement);
}

qint64 Raw::number(const char* sql)
{
    sqlite3_stmt* statement = prepare(sql);
    const qint64 found = sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_int64(statement, 0) : 0;
    sqlite3_reset(statement);
    return found;
}

double Raw::real(const char* sql)
{
    sqlite3_stmt* statement = prepare(sql);
    const double found = sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_double(statement, 0) : 0;
    sqlite3_reset(statement);
    return found;
}

void Raw::fail() const
{
    throw std::runtime_error(sqlite3_errmsg(m_connection));
}

QString dateOf(sqlite3_stmt* row, int column)
{
    const auto* iso = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
    if (sqlite3_column_bytes(row, column) != 10)
        return {};
    const char shown[] = {iso[8], iso[9], '/', iso[5], iso[6], '/', iso[0], iso[1], iso[2], iso[3]};
    return QString::fromLatin1(shown, sizeof shown);
}

} // namespace talor::bench
