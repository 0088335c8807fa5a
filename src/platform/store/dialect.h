#pragma once

#include "platform/store/lexer.h"
#include "platform/store/recordset.h"

/// The program's query dialect turned into SQLite's. A query is turned once for its shape; what differs from one use
/// to the next is bound.
namespace store {

/// Finds the columns of a result by name: a name hashed beforehand costs one look.
class ColumnIndex
{
public:
    void build(const QStringList& names);
    /// -1 when there is none.
    int find(quint64 hash) const
    {
        const std::size_t mask = m_places.size() - 1;
        std::size_t place = hash & mask;
        while (m_places[place].column >= 0 && m_places[place].hash != hash)
            place = (place + 1) & mask;
        return m_places[place].column;
    }

private:
    struct Place
    {
        quint64 hash = 0;
        int column = -1;
    };
    std::vector<Place> m_places = std::vector<Place>(1); ///< one free place at least
};

struct Column
{
    QString name;
    CellType type; ///< none for a computed column
};

/// What a "?" of the translated text takes: a constant or value of the query in order, or a column of the row under
/// test.
struct Parameter
{
    bool nextToDate = false;
    int column = -1;
};

struct Query
{
    QByteArray sql;
    std::vector<Parameter> parameters;
    bool reads = false; ///< a select
    quint64 tables = 0; ///< bits of the tables that it reads or writes, as given by `tableBit`
    const Table* table =
        nullptr; ///< the one that it writes; or the only one whose rows it shows, when they can be written to

    // A select's result. The rows that can be written to bear their key before the columns.
    std::vector<Column> columns;
    ColumnIndex names;

    // The parts of a select whose rows can be written to, for the queries that move about in it.
    bool wholeTable = false; ///< every row, in the order of the key
    QByteArray rows;         ///< "select <key, all fields> from <table>"
    QByteArray row;          ///< the same for one key, a parameter
    QByteArray insert;       ///< a new row, a parameter for each field
    QByteArray where;        ///< empty, or the condition in parentheses
    QByteArray order;        ///< ends with the key, so that no two rows are equal
    QByteArray reverseOrder;
};

quint64 tableBit(const Catalogue& catalogue, const Table* table);

/// Throws `Error::BadQuery`, naming the query.
Query translate(const Catalogue& catalogue, const QString& query, const Lexed& lexed);

/// The rows of a whole table in the order of their keys.
Query wholeTable(const Catalogue& catalogue, const Table& table);

/// A condition on one row.
struct Condition
{
    QByteArray sql;
    std::vector<Parameter> parameters;
};

/// A search criterion as a condition on a table's fields.
Condition translateCriterion(const Catalogue& catalogue, const Table& table, const QString& criterion,
                             const Lexed& lexed);
/// A search criterion as a condition on a result's columns, each of which becomes a parameter.
Condition translateCriterion(const std::vector<Column>& columns, const QString& criterion, const Lexed& lexed);

/// A name as SQLite's text has to write it.
QByteArray quoted(const QString& name);

/// "select <key, all fields> from <table>"
QByteArray selectRows(const Table& table);
/// "insert into <table> (<all fields>) values (<a parameter each>)"
QByteArray insertRow(const Table& table);

} // namespace store
