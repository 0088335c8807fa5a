#pragma once

#include "platform/store/database.h"

namespace store {

/// The rows of a table or a query, one of which is current. Rows are streamed forward; nothing is copied to be read.
///
/// A field is named in any case, or by its position counted from 0. Reading with no current row throws
/// `Error::NoCurrentRow`; a name that is not there, `Error::UnknownField`.
class Recordset {
public:
    /// A field by name or by position.
    struct FieldRef
    {
        FieldRef(const char* fieldName) : name(fieldName) {}
        FieldRef(int fieldPosition) : position(fieldPosition) {}
        const char* name = nullptr;
        int position = -1;
    };

    Recordset(); ///< closed: only `isOpen` may be asked
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    bool isOpen() const;
    void close();

    // Moving. Each returns whether there is a current row afterwards.
    bool moveFirst();
    bool moveNext();
    /// The last row in the recordset's order; after an addition, the row added last, wherever its order would put it.
    bool moveLast();
    bool eof() const;

    /// First row, in the recordset's order, for which the criterion holds ("num = 12"). Not found: false, and the
    /// current row stays.
    bool findFirst(const QString& criterion, const QVariantList& values = {});
    /// The row with this key. Not found: false, and the current row stays.
    bool seek(qint64 num);

    /// Number of rows, whatever the current one.
    qint64 recordCount();
    /// Runs the query again and stands on its first row.
    bool requery();

    // Reading the current row. A null reads as an empty text, 0 or false.
    bool isNull(FieldRef field) const;
    QString text(FieldRef field) const; ///< dates as dd/MM/yyyy, numbers with "."
    qint64 integer(FieldRef field) const;
    double real(FieldRef field) const;
    bool flag(FieldRef field) const;
    QVariant value(FieldRef field) const; ///< invalid when null; dates as dd/MM/yyyy
    qint64 num() const;                   ///< the key of the current row (the hidden row number where a table has no `num`)
    int fieldCount() const;
    QString fieldName(int position) const;

    // Writing. `addNew` or `edit`, then `set`, then `update`.
    void addNew();
    void edit();
    /// Takes dates as dd/MM/yyyy, flags as bool; an invalid QVariant stores null.
    void set(FieldRef field, const QVariant& value);
    /// Writes the row and returns its `num`. After `edit` the row stays current with its new values; after `addNew`
    /// the current row is the one from before.
    qint64 update();
    void cancelUpdate();
    /// Deletes the current row; there is none until the next move.
    void remove();

private:
    friend class Database;
    struct Impl;
    explicit Recordset(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> m_impl;
};

} // namespace store
