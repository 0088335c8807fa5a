#pragma once

#include "platform/store/dialect.h"

#include <deque>

struct sqlite3;
struct sqlite3_stmt;

namespace store {

class Connection;

/// A prepared statement on loan: it goes back to its connection, reset, when this one is destroyed.
class Statement
{
public:
    Statement() = default;
    Statement(Connection& connection, QByteArray sql, sqlite3_stmt* statement);
    ~Statement() { release(); }
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&& other) noexcept;

    explicit operator bool() const { return m_statement != nullptr; }
    sqlite3_stmt* get() const { return m_statement; }
    void release();

    /// Binds from the first parameter on, or after those bound already.
    void bind(const Value& value);
    void bind(const Values& values);
    /// Goes to the next row; false after the last. Throws `Error`.
    bool step();
    /// Before the first row, with its parameters as they are.
    void reset();

private:
    Connection* m_connection = nullptr;
    QByteArray m_sql;
    sqlite3_stmt* m_statement = nullptr;
    int m_bound = 0;
};

/// An open SQLite connection with the settings of the store and its text functions.
/// Keeps prepared statements for their next use: a query is prepared once.
class Connection
{
public:
    enum Mode
    {
        ReadOnly,
        ReadWrite,
        Create
    };

    /// Throws `Error`, naming the file.
    Connection(const QString& path, Mode mode);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    sqlite3* get() const { return m_connection; }
    const QString& path() const { return m_path; }

    /// Runs statements that return nothing.
    void run(const QByteArray& sql);
    /// First column of the first row as a number, 0 when there is none.
    qint64 number(const char* sql);
    /// First column of all rows.
    QStringList texts(const char* sql);

    Statement prepare(const QByteArray& sql);
    void keep(const QByteArray& sql, sqlite3_stmt* statement);
    int preparedSoFar() const { return m_prepared; }

    [[noreturn]] void fail() const;

private:
    struct Idle
    {
        QByteArray sql;
        sqlite3_stmt* statement;
    };
    static constexpr std::size_t maximumIdle = 64;

    QString m_path;
    sqlite3* m_connection = nullptr;
    std::deque<Idle> m_idle; ///< the longest unused first
    int m_prepared = 0;
};

} // namespace store
