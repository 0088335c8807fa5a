#include "platform/store/translator.h"

using namespace Qt::StringLiterals;

namespace store {

/// Reads the table that an action writes; returns the place after it.
int Translator::target(int at)
{
    m_result.table = &tableAt(at);
    m_scopes.push_back({{{m_result.table, m_result.table->name, m_result.table->name}}, {}});
    return at + 1;
}

/// "Update <table> set ... [where ...]"
void Translator::update()
{
    const int set = target(1);
    if (!token(set).is(Word::Set))
        fail(u"« set » y manque"_s);
    write("update");
    write(quoted(m_result.table->name));
    write("set");
    const int where = find({set, end()}, Word::Where);
    setList({set + 1, where});
    condition(where);
}

/// "Delete [*] from <table> [where ...]"
void Translator::remove()
{
    const int from = find({0, end()}, Word::From);
    const bool plain = from == 1 || (from == 2 && token(1).is(u"*"));
    if (!plain || from == end())
        fail(u"« from » y manque"_s);
    const int where = target(from + 1);
    write("delete from");
    write(quoted(m_result.table->name));
    condition(where);
}

/// "Insert into <table> [(fields)] values (...)" or "... select ..."
void Translator::insert()
{
    if (!token(1).is(Word::Into))
        fail(u"« into » y manque"_s);
    int at = target(2);
    write("insert into");
    write(quoted(m_result.table->name));
    std::vector<const Field*> fields;
    if (token(at).is(u"(")) {
        const int close = closing(at);
        QByteArray names;
        for (const Range part : parts({at + 1, close})) {
            int length = 0;
            const Found found = token(part.first).kind == Token::Name ? column(part.first, length) : Found();
            if (!found.field || part.first + length != part.last)
                fail(u"« %1 » n'est pas un champ"_s.arg(token(part.first).text));
            fields.push_back(found.field);
            names += (names.isEmpty() ? "" : ", ") + quoted(found.field->name);
        }
        write('(' + names + ')');
        at = close + 1;
    } else {
        for (const Field& field : m_result.table->fields)
            fields.push_back(&field);
    }
    if (token(at).is(Word::Select)) {
        if (select(at, true) != end())
            fail(u"une parenthèse se ferme sans s'ouvrir"_s);
    } else if (token(at).is(Word::Values)) {
        valueList(at + 1, fields);
    } else {
        fail(u"« values » y manque"_s);
    }
}

void Translator::valueList(int at, const std::vector<const Field*>& fields)
{
    if (!token(at).is(u"(") || closing(at) + 1 != end())
        fail(u"les valeurs y manquent"_s);
    const auto values = parts({at + 1, closing(at)});
    if (values.size() != fields.size())
        fail(u"elle donne %1 valeurs pour %2 champs"_s.arg(values.size()).arg(fields.size()));
    write("values (");
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0)
            m_sql += ',';
        expression(values[i], Use::Compared, fields[i]->type == FieldType::Date);
    }
    m_sql += ')';
}

void Translator::setList(Range list)
{
    if (list.isEmpty())
        fail(u"rien n'y suit « set »"_s);
    bool first = true;
    for (const Range part : parts(list)) {
        int length = 0;
        const Found found = token(part.first).kind == Token::Name ? column(part.first, length) : Found();
        if (!found.field || !token(part.first + length).is(u"="))
            fail(u"« %1 » n'est pas un champ auquel on donne une valeur"_s.arg(token(part.first).text));
        if (!first)
            m_sql += ',';
        first = false;
        write(quoted(found.field->name));
        write("=");
        expression({part.first + length + 1, part.last}, Use::Compared, found.field->type == FieldType::Date);
    }
}

void Translator::condition(int at)
{
    if (at == end())
        return;
    if (!token(at).is(Word::Where) || at + 1 == end())
        fail(u"« %1 » n'y est pas à sa place"_s.arg(token(at).text));
    write("where");
    expression({at + 1, end()}, Use::Compared);
}

} // namespace store
