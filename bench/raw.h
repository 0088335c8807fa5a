#pragma once

#include <QString>

#include <sqlite3.h>

#include <vector>

namespace talor::bench {

/// SQLite's C interface with nothing in between but a check of its answers: what the program is measured against. Same
/// settings as the store, statements prepared once.
class Raw
{
public:
    /// Settings of a file that is filled from nothing and may be thrown away.
    enum Use
    {
        AsTheStore,
        Filling
    };

    explicit Raw(const QString& path, Use use = AsTheStore);
    ~Raw();
    Raw(const Raw&) = delete;
    Raw& operator=(const Raw&) = delete;

    sqlite3* get() const { return m_connection; }
    /// Lives as long as the connection.
    sqlite3_stmt* prepare(const char* sql);
    void run(const char* sql);
    /// Runs a statement that returns nothing, and resets it.
    void execute(sqlite3_stmt* statement);
    /// First column of the first row.
    qint64 number(const char* sql);
    double real(const char* sql);

private:
    [[noreturn]] void fail() const;

    sqlite3* m_connection = nullptr;
    std::vector<sqlite3_stmt*> m_statements;
};

inline void bind(sqlite3_stmt* statement, int place, qint64 value)
{
    sqlite3_bind_int64(statement, place, value);
}
inline void bind(sqlite3_stmt* statement, int place, int value)
{
    sqlite3_bind_int(statement, place, value);
}
inline void bind(sqlite3_stmt* statement, int place, double value)
{
    sqlite3_bind_double(statement, place, value);
}
inline void bind(sqlite3_stmt* statement, int place, const QByteArray& text)
{
    sqlite3_bind_text(statement, place, text.constData(), int(text.size()), SQLITE_TRANSIENT);
}

/// Binds all parameters in their order.
template<class... Values> void bindAll(sqlite3_stmt* statement, const Values&... values)
{
    int place = 0;
    (bind(statement, ++place, values), ...);
}

inline QString textOf(sqlite3_stmt* row, int column)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row, column)),
                             sqlite3_column_bytes(row, column));
}

/// An ISO date as the program shows it.
QString dateOf(sqlite3_stmt* row, int column);

} // namespace talor::bench
