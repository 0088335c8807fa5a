#include "platform/store/schema.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace store {

namespace {

QByteArray literal(const Field& field)
{
    const Value value = fieldValue(field, field.defaultValue);
    if (const auto* text = std::get_if<QByteArray>(&value))
        return '\'' + QByteArray(*text).replace('\'', "''") + '\'';
    return textOf(Cell(value), {}).toUtf8();
}

QByteArray definition(const Field& field)
{
    const QByteArray name = quoted(field.name);
    const QByteArray byDefault = field.defaultValue.isValid() ? " default " + literal(field) : QByteArray();
    switch (field.type) {
    case FieldType::Counter:
        return name + " integer primary key autoincrement";
    case FieldType::Long:
    case FieldType::Integer:
        return name + " integer" + byDefault;
    case FieldType::Single:
    case FieldType::Double:
        return name + " real" + byDefault;
    case FieldType::Text:
    case FieldType::Date:
        return name + " text" + byDefault;
    case FieldType::YesNo:
        return name + " integer not null" + (byDefault.isEmpty() ? " default 0" : byDefault) + " check (" + name +
               " in (0, 1))";
    }
    return {};
}

/// What the column's own type does not tell.
const char* remark(FieldType type)
{
    switch (type) {
    case FieldType::Integer:
        return " -- 16-bit";
    case FieldType::Single:
        return " -- single precision";
    case FieldType::Date:
        return " -- date: yyyy-MM-dd";
    case FieldType::YesNo:
        return " -- yes/no";
    default:
        return "";
    }
}

QByteArray definition(const Table& table)
{
    QByteArray sql = "create table " + quoted(table.name) + " (\n";
    for (const Field& field : table.fields) {
        const bool last = &field == &table.fields.last();
        sql += "    " + definition(field) + (last ? "" : ",") + remark(field.type) + '\n';
    }
    return sql + ") strict;\n";
}

QByteArray definition(const Table& table, const QStringList& index)
{
    QByteArray fields;
    for (const QString& field : index)
        fields += (fields.isEmpty() ? "" : ", ") + quoted(field);
    return "create index " + quoted(u"ix_%1_%2"_s.arg(table.name, index.join(u'_'))) + " on " + quoted(table.name) +
           " (" + fields + ");\n";
}

} // namespace

QByteArray schemaOf(const Catalogue& catalogue)
{
    QByteArray sql;
    for (const Table& table : catalogue.tables())
        sql += definition(table);
    for (const Table& table : catalogue.tables()) {
        for (const QStringList& index : table.indexes)
            sql += definition(table, index);
    }
    return sql;
}

void makeSchema(Connection& connection, const Catalogue& catalogue)
{
    const QByteArray marks = "pragma application_id = " + QByteArray::number(qint32(catalogue.applicationId())) +
                             "; pragma user_version = " + QByteArray::number(catalogue.version()) + ";\n";
    connection.run("begin;\n" + marks + schemaOf(catalogue) + "commit;");
}

void checkSchema(Connection& connection, const Catalogue& catalogue)
{
    const QString& path = connection.path();
    if (quint32(connection.number("pragma application_id")) != catalogue.applicationId())
        throw Error(Error::ForeignFile, u"Le fichier « %1 » n'est pas une base de ce programme"_s.arg(path));
    const qint64 version = connection.number("pragma user_version");
    if (version != catalogue.version())
        throw Error(
            Error::OtherVersion,
            u"Le fichier « %1 » est de la version %2 ; ce programme attend la version %3"_s.arg(path).arg(version).arg(
                catalogue.version()));
    const auto isThere = [&connection](const Table& table, const char* field) {
        return sqlite3_table_column_metadata(connection.get(), "main", table.name.toUtf8().constData(), field, nullptr,
                                             nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
    };
    for (const Table& table : catalogue.tables()) {
        if (!isThere(table, nullptr))
            throw Error(Error::MissingTable, u"La table « %1 » manque dans le fichier « %2 »"_s.arg(table.name, path));
        for (const Field& field : table.fields) {
            if (!isThere(table, field.name.toUtf8().constData()))
                throw Error(Error::UnknownField,
                            u"Le champ « %1 » de la table « %2 » manque dans le fichier « %3 »"_s.arg(
                                field.name, table.name, path));
        }
    }
}

} // namespace store
