#pragma once

#include "platform/store/catalogue.h"
#include "platform/store/error.h"

#include <QVariantList>

#include <memory>

namespace store {

class Recordset;

/// One open database file. A commit survives a power cut, and after a clean close the file stands alone in its folder.
///
/// Queries are written in the program's own dialect: dates between "#" as mm/dd/yyyy, `Delete * from`,
/// `Table!field`, `True` and `False`, `like` with "*". A "?" takes the next of the bound values. What a person
/// typed is always bound (or goes through `likeLiteral`), never joined into the text.
/// Text compares, sorts and matches with case and accents folded, as a French reader expects.
///
/// A file that was moved, replaced or deleted while it is open takes no more writes, so that nothing is announced that
/// would be found nowhere.
///
/// Every member throws `Error`; nothing here shows anything.
class Database
{
public:
    /// Makes an empty file with every table of the catalogue. An existing file is refused.
    static void create(const QString& path, const Catalogue& catalogue);

    /// Opens an existing file for the only writer. Refused, with the file left as it is: a file that is absent, is no
    /// database, bears another application's mark, or lacks a table or a field of the catalogue.
    /// The catalogue must outlive the database.
    Database(const QString& path, const Catalogue& catalogue);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    const QString& path() const;
    const Catalogue& catalogue() const;

    /// A table-type recordset: every row in the order of `num`, with `seek`. Stands on the first row.
    Recordset openTable(const QString& table);

    /// The rows of a query, standing on the first. "select * from <one table> ..." can be written to; any other
    /// (named fields, sums, distinct, several tables) is read only.
    Recordset openRecordset(const QString& query, const QVariantList& values = {});

    /// Runs an action query and returns how many rows it touched.
    qint64 execute(const QString& query, const QVariantList& values = {});

    /// First field of the first row; an invalid QVariant when there is no row or it is null.
    QVariant scalar(const QString& query, const QVariantList& values = {});

    /// True when the query yields at least one row.
    bool exists(const QString& query, const QVariantList& values = {});

    /// How the engine would run a query, a line a step: for tests of the indexes.
    QStringList plan(const QString& query, const QVariantList& values = {});

    /// How many statements have been prepared so far: a query used again, with other constants or values, adds none.
    int preparedStatements() const;

    /// Writes a whole, checked copy of the live database: beside the target first, then renamed over it.
    void copyTo(const QString& target);

    struct Impl;
    Impl& impl() { return *m_impl; }

private:
    std::unique_ptr<Impl> m_impl;
};

/// What a user's action writes: it stands whole after `commit`, or not at all. Destroyed without a commit it rolls
/// back. One inside another is a savepoint of the outer one. It must not outlive its database.
/// When SQLite gives a transaction up by itself (a full disk), what is written next throws `Error::Interrupted`.
class Transaction
{
public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void commit();

private:
    Database& m_database;
    bool m_open = true;
};

/// A text for the right side of `like`, in which the pattern characters * ? # [ stand for themselves.
QString likeLiteral(const QString& text);

/// Case- and accent-insensitive form of a text: "Œil-de-bœuf" and "OEIL-DE-BOEUF" have the same one.
QString fold(const QString& text);

/// Date texts: "15/11/2026" to "2026-11-15" and back, by characters, so that a text which names no day of the
/// calendar comes back as it went in. Anything that has not the form gives an empty text.
QString isoDate(QStringView ddMMyyyy);
QString displayDate(QStringView iso);

} // namespace store
