#include "platform/store/dialect.h"

#include "platform/store/translator.h"

#include <sqlite3.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace store {

void ColumnIndex::build(const QStringList& names)
{
    std::size_t size = 4;
    while (size < std::size_t(names.size()) * 2)
        size *= 2;
    m_places.assign(size, {});
    for (int column = 0; column < names.size(); ++column) {
        const quint64 hash = NameHash::of(names[column].toUtf8().constData());
        if (find(hash) >= 0)
            continue; // of two columns with one name the first is found
        std::size_t place = hash & (size - 1);
        while (m_places[place].column >= 0)
            place = (place + 1) & (size - 1);
        m_places[place] = {hash, column};
    }
}

quint64 tableBit(const Catalogue& catalogue, const Table* table)
{
    return quint64(1) << ((table - catalogue.tables().constData()) % 64);
}

QByteArray quoted(const QString& name)
{
    const QByteArray bytes = name.toUtf8();
    const bool plain = std::all_of(bytes.cbegin(), bytes.cend(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    });
    const bool digitFirst = !bytes.isEmpty() && bytes[0] >= '0' && bytes[0] <= '9';
    if (plain && !digitFirst && !sqlite3_keyword_check(bytes.constData(), int(bytes.size())))
        return bytes;
    return '"' + QByteArray(bytes).replace('"', "\"\"") + '"';
}

QByteArray selectRows(const Table& table)
{
    QByteArray sql = "select rowid";
    for (const Field& field : table.fields)
        sql += ", " + quoted(field.name);
    return sql + " from " + quoted(table.name);
}

QByteArray insertRow(const Table& table)
{
    QByteArray names;
    QByteArray places;
    for (const Field& field : table.fields) {
        names += (names.isEmpty() ? "" : ", ") + quoted(field.name);
        places += places.isEmpty() ? "?" : ", ?";
    }
    return "insert into " + quoted(table.name) + " (" + names + ") values (" + places + ')';
}

Query translate(const Catalogue& catalogue, const QString& query, const Lexed& lexed)
{
    return Translator(catalogue, query, lexed).statement();
}

Query wholeTable(const Catalogue& catalogue, const Table& table)
{
    const QString text = u"select * from ["_s + table.name + u']';
    return translate(catalogue, text, lex(text));
}

Condition translateCriterion(const Catalogue& catalogue, const Table& table, const QString& criterion,
                             const Lexed& lexed)
{
    return Translator(catalogue, criterion, lexed).criterion(table);
}

Condition translateCriterion(const std::vector<Column>& columns, const QString& criterion, const Lexed& lexed)
{
    return Translator(Catalogue(0, 0, {}), criterion, lexed).criterion(columns);
}

} // namespace store
