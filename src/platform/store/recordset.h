#pragma once

#include "platform/store/database.h"

#include <concepts>
#include <utility>

namespace store {

/// Hash of a field's name in any case; a literal's is worked out by the compiler.
struct NameHash
{
    static constexpr quint64 start = 14695981039346656037u;
    Q_ALWAYS_INLINE static constexpr quint64 add(quint64 hash, char c)
    {
        return (hash ^ quint64(uchar(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c))) * 1099511628211u;
    }
    /// Written out letter by letter and inline, so that the compiler is left with a number.
    template<std::size_t N, std::size_t... I>
    Q_ALWAYS_INLINE static constexpr quint64 ofLiteral(const char (&name)[N], std::index_sequence<I...>)
    {
        quint64 hash = start;
        bool inside = true; // a text in a larger array ends at its zero
        ((inside = inside && name[I] != 0, hash = inside ? add(hash, name[I]) : hash), ...);
        return hash;
    }
    static constexpr quint64 of(const char* name)
    {
        quint64 hash = start;
        for (; *name != 0; ++name)
            hash = add(hash, *name);
        return hash;
    }
};

/// The rows of a table or a query, one of which is current. Rows are streamed forward; nothing is copied to be read.
///
/// A field is named in any case, or by its position counted from 0. Reading with no current row throws
/// `Error::NoCurrentRow`; a name that is not there, `Error::UnknownField`.
///
/// Writes made while rows are being read, by this recordset or any other way, disturb nothing: the rows still to come
/// are those that stood there before the write (a whole table also shows the rows added to it), less those deleted
/// since. A row that can be written to is read as it stands in the file now; the rows of any other query, as they
/// stood when the query came to them.
class Recordset
{
public:
    /// A field by name or by position.
    struct FieldRef
    {
        template<std::size_t N>
        Q_ALWAYS_INLINE FieldRef(const char (&literal)[N])
            : name(literal)
            , hash(NameHash::ofLiteral(literal, std::make_index_sequence<N - 1>()))
        {}
        template<class T>
        requires(std::same_as<T, const char*> || std::same_as<T, char*>) FieldRef(const T& fieldName)
            : name(fieldName)
            , hash(NameHash::of(fieldName))
        {}
        FieldRef(const QByteArray& fieldName)
            : FieldRef(fieldName.constData())
        {}
        FieldRef(int fieldPosition)
            : hash(quint64(fieldPosition))
        {}

        const char* name = nullptr; ///< null: given by its position
        quint64 hash = 0;           ///< of the name; or the position
    };

    Recordset(); ///< closed: only `isOpen` may be asked
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    bool isOpen() const; ///< false too once its database is closed
    void close();

    // Moving. Each returns whether there is a current row afterwards, and gives up what was set and not yet written.
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

    // Reading the current row. A null reads as an empty text, 0 or false. Between `addNew` or `edit` and `update`
    // the row being written is read, with what has been set so far.
    bool isNull(FieldRef field) const;
    QString text(FieldRef field) const;   ///< dates as dd/MM/yyyy, numbers with "."
    qint64 integer(FieldRef field) const; ///< rounded half to even; of a text, the number that it begins with
    double real(FieldRef field) const;    ///< of a text, the number that it begins with
    bool flag(FieldRef field) const;
    QVariant value(FieldRef field) const; ///< invalid when null; dates as dd/MM/yyyy
    qint64 num() const; ///< the key of the current row (the hidden row number where a table has no `num`)
    int fieldCount() const;
    QString fieldName(int position) const;

    // Writing. `addNew` or `edit`, then `set`, then `update`.
    void addNew();
    void edit();
    /// Takes dates as dd/MM/yyyy, flags as bool; an invalid QVariant stores null. Whole numbers are rounded half to
    /// even, an empty text leaves a date null. `Error::BadValue` where the field cannot hold the value.
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
    Impl& open() const;
    std::unique_ptr<Impl> m_impl;
};

} // namespace store
