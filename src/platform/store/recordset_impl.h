#pragma once

#include "platform/store/database_impl.h"

namespace store {

struct Recordset::Impl
{
    Impl(Database::Impl& owner, std::shared_ptr<const Query> translated, Values bound);
    ~Impl();

    // Moving (recordset.cpp)
    bool start();
    bool next();
    bool last();
    bool find(const QString& criterion, const QVariantList& given);
    bool seek(qint64 wanted);
    void putByRowsAhead();
    void detach();

    // Reading (recordset_fields.cpp)
    int column(FieldRef field) const;
    Cell cell(int column);
    void needRow();
    bool needsReload() const { return query->table && (!row || seen != *writes); }
    /// The statement to read the current row from as it is, or null when that takes more care.
    sqlite3_stmt* readyRow() const { return editing == No && (!writes || seen == *writes) ? row : nullptr; }
    int offset() const { return query->table ? 1 : 0; } ///< the key comes before the columns

    // Writing (recordset_fields.cpp)
    void needWritable() const;
    qint64 writeNew();
    void writeChanges();
    void removeRow();
    void drop();

    Database::Impl* database; ///< null once it is closed
    std::shared_ptr<const Query> query;
    Values values;
    const quint64* writes = nullptr; ///< count of the writes to its table, where its rows can be written to
    quint64 seen = 0;                ///< that count when the current row was read

    enum Place
    {
        OnRow,
        Removed,
        After
    } place = After;
    sqlite3_stmt* row = nullptr; ///< holds the current row: `stream`, `held`, or null when it is elsewhere
    qint64 key = 0;              ///< of the current or removed row
    Statement stream;            ///< the query, on the row that it came to last
    Statement held;              ///< a row found by key or criterion

    /// Where the next row comes from.
    enum Ahead
    {
        Nothing,
        Stream,
        Keys,
        Kept,
        AfterKey
    } ahead = Nothing;
    std::vector<qint64> keys; ///< Keys: those of the rows still to come, from `nextKey` on
    std::size_t nextKey = 0;
    std::vector<Values> kept; ///< Kept: the current row and those still to come
    std::size_t keptRow = 0;
    std::vector<qint64> added; ///< keys of the rows added since the query ran

    enum Editing
    {
        No,
        Adding,
        Changing
    } editing = No;
    std::vector<std::optional<Value>> changes; ///< what has been set, a place a field

private:
    bool onStream();
    bool onHeld(Statement found, Ahead then);
    bool onKept(std::size_t at);
    bool load(qint64 wanted);
    bool end();
    bool continueAfterKey();
    bool lastKept();
    bool findTested(const QString& criterion, const QVariantList& given);
    Statement select(QByteArrayView condition, QByteArrayView order);
    Statement run();
    QByteArray conditionAnd(const QByteArray& condition) const;
    void collectKeys();
};

} // namespace store
