#include "platform/store/recordset_impl.h"

#include "platform/store/failure.h"

#include <sqlite3.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace store {

Recordset::Impl::Impl(Database::Impl& owner, std::shared_ptr<const Query> translated, Values bound)
    : database(&owner)
    , query(std::move(translated))
    , values(std::move(bound))
    , writes(query->table ? &owner.writesOf(*query->table) : nullptr)
{
    owner.recordsets.push_back(this);
}

Recordset::Impl::~Impl()
{
    if (!database)
        return;
    auto& open = database->recordsets;
    open.erase(std::find(open.begin(), open.end(), this));
}

void Recordset::Impl::detach()
{
    end();
    added.clear();
    editing = No;
    database = nullptr;
}

/// A run of the query, before its first row.
Statement Recordset::Impl::run()
{
    Statement statement = database->connection.prepare(query->sql);
    statement.bind(values);
    return statement;
}

bool Recordset::Impl::start()
{
    end();
    added.clear();
    stream = run();
    ahead = Stream;
    return onStream();
}

/// Leaves the current row, and nothing is ahead.
bool Recordset::Impl::end()
{
    stream.release();
    held.release();
    keys.clear();
    kept.clear();
    row = nullptr;
    place = After;
    ahead = Nothing;
    return false;
}

/// Takes the next row of the stream.
bool Recordset::Impl::onStream()
{
    if (!stream.step())
        return end();
    row = stream.get();
    place = OnRow;
    if (query->table) {
        key = sqlite3_column_int64(row, 0);
        seen = *writes;
    }
    return true;
}

/// Takes the row on which `found` stands.
bool Recordset::Impl::onHeld(Statement found, Ahead then)
{
    if (ahead != then || then == AfterKey)
        end();
    held = std::move(found);
    row = held.get();
    key = sqlite3_column_int64(row, 0);
    seen = *writes;
    place = OnRow;
    ahead = then;
    return true;
}

bool Recordset::Impl::onKept(std::size_t at)
{
    if (at >= kept.size())
        return end();
    keptRow = at;
    row = nullptr;
    place = OnRow;
    return true;
}

/// Reads the row with this key as it now stands; what is ahead stays.
bool Recordset::Impl::load(qint64 wanted)
{
    held.release();
    row = nullptr;
    Statement found = database->connection.prepare(query->row);
    found.bind(wanted);
    if (!found.step())
        return false;
    held = std::move(found);
    row = held.get();
    key = wanted;
    seen = *writes;
    return true;
}

bool Recordset::Impl::next()
{
    switch (ahead) {
    case Nothing:
        return end();
    case Stream:
        held.release();
        return onStream();
    case Keys:
        while (nextKey < keys.size()) {
            if (load(keys[nextKey++])) {
                place = OnRow;
                return true;
            }
        }
        return end();
    case Kept:
        return onKept(keptRow + 1);
    case AfterKey:
        return continueAfterKey();
    }
    return false;
}

/// Goes on from a row that was found out of turn.
bool Recordset::Impl::continueAfterKey()
{
    const qint64 from = key;
    end();
    if (query->wholeTable) {
        stream = database->connection.prepare(query->rows + " where rowid > ? order by rowid");
        stream.bind(from);
        ahead = Stream;
        return onStream();
    }
    stream = run();
    while (stream.step()) {
        if (sqlite3_column_int64(stream.get(), 0) == from) {
            ahead = Stream;
            return onStream();
        }
    }
    return end();
}

/// The condition of the query and one more.
QByteArray Recordset::Impl::conditionAnd(const QByteArray& condition) const
{
    return " where " + (query->where.isEmpty() ? condition : query->where + " and " + condition);
}

bool Recordset::Impl::last()
{
    if (!query->table)
        return lastKept();
    while (!added.empty()) {
        const qint64 newest = added.back();
        Statement found = database->connection.prepare(query->row);
        found.bind(newest);
        if (found.step()) {
            end();
            return onHeld(std::move(found), query->wholeTable ? AfterKey : Nothing);
        }
        added.pop_back();
    }
    const QByteArray where = query->where.isEmpty() ? QByteArray() : " where " + query->where;
    Statement found =
        database->connection.prepare(query->rows + where + " order by " + query->reverseOrder + " limit 1");
    found.bind(values);
    if (!found.step())
        return end();
    end();
    return onHeld(std::move(found), query->wholeTable ? AfterKey : Nothing);
}

/// The last row of a query that only shows: all that are ahead are read.
bool Recordset::Impl::lastKept()
{
    if (place != OnRow && !start())
        return false;
    putByRowsAhead();
    return kept.empty() || onKept(kept.size() - 1);
}

bool Recordset::Impl::find(const QString& criterion, const QVariantList& given)
{
    if (!query->table)
        return findTested(criterion, given);
    const Lexed lexed = lex(criterion);
    const Condition condition = translateCriterion(database->catalogue, *query->table, criterion, lexed);
    Statement found = database->prepare(
        query->rows + conditionAnd(condition.sql) + " order by " + query->order + " limit 1", criterion);
    found.bind(values);
    found.bind(parameterValues(condition.parameters, lexed, given, criterion));
    return found.step() && onHeld(std::move(found), AfterKey);
}

/// Goes over the rows of a query that only shows until the criterion holds for one.
bool Recordset::Impl::findTested(const QString& criterion, const QVariantList& given)
{
    const Lexed lexed = lex(criterion);
    const Condition condition = translateCriterion(query->columns, criterion, lexed);
    const Values constants = parameterValues(condition.parameters, lexed, given, criterion);
    Statement test = database->prepare(condition.sql, criterion);
    for (Statement scan = run(); scan.step();) {
        test.reset();
        for (std::size_t i = 0; i < constants.size(); ++i) {
            const int tested = condition.parameters[i].column;
            bindValue(test.get(), int(i) + 1, tested < 0 ? constants[i] : Cell(scan.get(), tested).copy());
        }
        if (test.step() && sqlite3_column_double(test.get(), 0) != 0) {
            end();
            stream = std::move(scan);
            row = stream.get();
            place = OnRow;
            ahead = Stream;
            return true;
        }
    }
    return false;
}

bool Recordset::Impl::seek(qint64 wanted)
{
    needWritable();
    Statement found = database->connection.prepare(query->rows + conditionAnd("rowid = ?"));
    found.bind(values);
    found.bind(wanted);
    return found.step() && onHeld(std::move(found), AfterKey);
}

/// Called before a write: what is still to be shown is fixed, so that the write changes neither which rows come nor
/// their order. A whole table needs nothing: its rows come in the order of their keys, whatever happens to them.
void Recordset::Impl::putByRowsAhead()
{
    if (ahead != Stream || query->wholeTable)
        return;
    if (query->table)
        return collectKeys();
    const int columns = int(query->columns.size());
    const auto copyRow = [this, columns] {
        Values copied;
        for (int i = 0; i < columns; ++i)
            copied.push_back(Cell(stream.get(), i).copy());
        kept.push_back(std::move(copied));
    };
    copyRow();
    while (stream.step())
        copyRow();
    stream.release();
    ahead = Kept;
    onKept(0);
}

/// Puts by the keys of the rows that the stream has still to show.
void Recordset::Impl::collectKeys()
{
    keys.clear();
    nextKey = 0;
    while (stream.step())
        keys.push_back(sqlite3_column_int64(stream.get(), 0));
    if (row == stream.get())
        row = nullptr;
    stream.release();
    ahead = Keys;
}

void Recordset::Impl::removeRow()
{
    needRow();
    if (ahead == AfterKey && !query->wholeTable) {
        // The row will not be there any more to go on from.
        const qint64 current = key;
        Statement all = run();
        bool passed = false;
        std::vector<qint64> rest;
        while (all.step()) {
            const qint64 each = sqlite3_column_int64(all.get(), 0);
            if (passed)
                rest.push_back(each);
            passed = passed || each == current;
        }
        keys = std::move(rest);
        nextKey = 0;
        ahead = Keys;
    }
    const QByteArray sql = "delete from " + quoted(query->table->name) + " where rowid = ?";
    database->write(*query->table, sql, {key});
    held.release();
    row = nullptr;
    place = Removed;
}

Recordset::Recordset() = default;
Recordset::Recordset(std::unique_ptr<Impl> impl)
    : m_impl(std::move(impl))
{}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

Recordset::Impl& Recordset::open() const
{
    if (!isOpen())
        throw Error(Error::Interrupted, u"La base de données est fermée"_s);
    return *m_impl;
}

bool Recordset::isOpen() const
{
    return m_impl && m_impl->database;
}

void Recordset::close()
{
    m_impl.reset();
}

bool Recordset::moveFirst()
{
    Impl& d = open();
    d.drop();
    const auto added = d.added;
    const bool found = d.start();
    d.added = added;
    return found;
}

bool Recordset::moveNext()
{
    Impl& d = open();
    d.drop();
    return d.next();
}

bool Recordset::moveLast()
{
    Impl& d = open();
    d.drop();
    return d.last();
}

bool Recordset::eof() const
{
    return open().place == Impl::After;
}

bool Recordset::findFirst(const QString& criterion, const QVariantList& values)
{
    Impl& d = open();
    d.drop();
    return d.find(criterion, values);
}

bool Recordset::seek(qint64 num)
{
    Impl& d = open();
    d.drop();
    return d.seek(num);
}

qint64 Recordset::recordCount()
{
    Impl& d = open();
    const QByteArray where = d.query->where.isEmpty() ? QByteArray() : " where " + d.query->where;
    const QByteArray from = d.query->table ? quoted(d.query->table->name) + where : '(' + d.query->sql + ')';
    Statement count = d.database->connection.prepare("select count(*) from " + from);
    count.bind(d.values);
    return count.step() ? sqlite3_column_int64(count.get(), 0) : 0;
}

bool Recordset::requery()
{
    Impl& d = open();
    d.drop();
    return d.start();
}

} // namespace store
