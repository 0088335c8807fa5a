#include "platform/store/recordset_impl.h"

#include "platform/store/failure.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace store {

namespace {

/// True for the fields that the file keeps as whole numbers only.
bool isWhole(CellType type)
{
    return type == FieldType::Long || type == FieldType::Counter || type == FieldType::Integer ||
           type == FieldType::YesNo;
}

} // namespace

int Recordset::Impl::column(FieldRef field) const
{
    const int found = field.name ? query->names.find(field.hash) : int(field.hash);
    if (found < 0 || found >= int(query->columns.size())) {
        const QString shown = field.name ? QString::fromUtf8(field.name) : QString::number(int(field.hash));
        throw Error(Error::UnknownField, u"Le champ « %1 » n'existe pas"_s.arg(shown));
    }
    return found;
}

/// Makes sure that there is a current row, read as it now stands.
void Recordset::Impl::needRow()
{
    const bool there = place == OnRow && (!needsReload() || load(key));
    if (!there)
        throw Error(Error::NoCurrentRow, u"Aucun enregistrement en cours"_s);
}

/// A value of the current row, or of the row being written.
Cell Recordset::Impl::cell(int at)
{
    if (editing != No && changes[std::size_t(at)])
        return Cell(*changes[std::size_t(at)]);
    if (editing == Adding)
        return {};
    needRow();
    return row ? Cell(row, at + offset()) : Cell(kept[keptRow][std::size_t(at)]);
}

void Recordset::Impl::needWritable() const
{
    if (!query->table)
        throw Error(Error::BadQuery, u"Les lignes de cette requête ne peuvent pas être modifiées : « %1 »"_s.arg(
                                         QString::fromUtf8(query->sql)));
}

/// Gives up what was set and not written.
void Recordset::Impl::drop()
{
    if (editing == No)
        return;
    editing = No;
    changes.clear();
}

qint64 Recordset::Impl::writeNew()
{
    Values row;
    row.reserve(changes.size());
    for (const std::optional<Value>& change : changes)
        row.push_back(change ? *change : Value());
    database->write(*query->table, query->insert, row);
    added.push_back(sqlite3_last_insert_rowid(database->connection.get()));
    return added.back();
}

void Recordset::Impl::writeChanges()
{
    QByteArray list;
    Values written;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        if (!changes[i])
            continue;
        list += (list.isEmpty() ? "" : ", ") + quoted(query->columns[i].name) + " = ?";
        written.push_back(*changes[i]);
    }
    if (written.empty())
        return;
    written.emplace_back(key);
    const QByteArray sql = "update " + quoted(query->table->name) + " set " + list + " where rowid = ?";
    if (database->write(*query->table, sql, written) == 0)
        throw Error(Error::NoCurrentRow, u"L'enregistrement en cours n'existe plus"_s);
}

bool Recordset::isNull(FieldRef field) const
{
    Impl& d = open();
    return d.cell(d.column(field)).kind == Cell::Null;
}

QString Recordset::text(FieldRef field) const
{
    Impl& d = open();
    const int at = d.column(field);
    const CellType type = d.query->columns[std::size_t(at)].type;
    if (sqlite3_stmt* row = type == FieldType::Text ? d.readyRow() : nullptr) {
        const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(row, at + d.offset()));
        return QString::fromUtf8(bytes, sqlite3_column_bytes(row, at + d.offset()));
    }
    return textOf(d.cell(at), type);
}

qint64 Recordset::integer(FieldRef field) const
{
    Impl& d = open();
    const int at = d.column(field);
    if (sqlite3_stmt* row = isWhole(d.query->columns[std::size_t(at)].type) ? d.readyRow() : nullptr)
        return sqlite3_column_int64(row, at + d.offset());
    return integerOf(d.cell(at));
}

double Recordset::real(FieldRef field) const
{
    Impl& d = open();
    const int at = d.column(field);
    const CellType type = d.query->columns[std::size_t(at)].type;
    if (sqlite3_stmt* row = type == FieldType::Double || type == FieldType::Single ? d.readyRow() : nullptr)
        return sqlite3_column_double(row, at + d.offset());
    return realOf(d.cell(at));
}

bool Recordset::flag(FieldRef field) const
{
    return real(field) != 0;
}

QVariant Recordset::value(FieldRef field) const
{
    Impl& d = open();
    const int at = d.column(field);
    return variantOf(d.cell(at), d.query->columns[std::size_t(at)].type);
}

qint64 Recordset::num() const
{
    Impl& d = open();
    if (!d.query->table)
        return integer("num");
    if (d.place != Impl::OnRow)
        throw Error(Error::NoCurrentRow, u"Aucun enregistrement en cours"_s);
    return d.key;
}

int Recordset::fieldCount() const
{
    return int(open().query->columns.size());
}

QString Recordset::fieldName(int position) const
{
    Impl& d = open();
    return d.query->columns[std::size_t(d.column(position))].name;
}

void Recordset::addNew()
{
    Impl& d = open();
    d.needWritable();
    d.drop();
    for (const Field& field : d.query->table->fields) {
        const bool given = field.defaultValue.isValid() || field.type == FieldType::YesNo;
        d.changes.push_back(given ? std::optional(fieldValue(field, field.defaultValue)) : std::nullopt);
    }
    d.editing = Impl::Adding;
}

void Recordset::edit()
{
    Impl& d = open();
    d.needWritable();
    d.drop();
    d.needRow();
    d.changes.resize(d.query->columns.size());
    d.editing = Impl::Changing;
}

void Recordset::set(FieldRef field, const QVariant& value)
{
    Impl& d = open();
    const int at = d.column(field);
    if (d.editing == Impl::No)
        throw Error(Error::NoCurrentRow, u"Le champ « %1 » n'est pas en cours de modification"_s.arg(fieldName(at)));
    const Field& target = d.query->table->fields[at];
    if (d.editing == Impl::Changing && target.type == FieldType::Counter)
        throw Error(Error::BadValue, u"Le champ « %1 » ne peut pas être modifié"_s.arg(target.name));
    d.changes[std::size_t(at)] = fieldValue(target, value);
}

qint64 Recordset::update()
{
    Impl& d = open();
    if (d.editing == Impl::No)
        throw Error(Error::NoCurrentRow, u"Aucun enregistrement n'est en cours de modification"_s);
    const bool adding = d.editing == Impl::Adding;
    if (!adding)
        d.writeChanges();
    const qint64 written = adding ? d.writeNew() : d.key;
    d.drop();
    return written;
}

void Recordset::cancelUpdate()
{
    open().drop();
}

void Recordset::remove()
{
    Impl& d = open();
    d.needWritable();
    d.drop();
    d.removeRow();
}

} // namespace store
