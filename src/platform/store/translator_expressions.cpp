#include "platform/store/translator.h"

using namespace Qt::StringLiterals;

namespace store {

Condition Translator::criterion(const Table& table)
{
    m_scopes.push_back({{{&table, table.name, table.name}}, {}});
    m_sql = "(";
    expression({0, end()}, Use::Compared);
    return {m_sql + ')', m_parameters};
}

Condition Translator::criterion(const std::vector<Column>& columns)
{
    m_tested = &columns;
    m_sql = "select";
    expression({0, end()}, Use::Compared);
    return {m_sql, m_parameters};
}

/// Writes an expression or a list of them. `nextToDate`: a value standing alone in it is meant for a Date field.
void Translator::expression(Range range, Use use, bool nextToDate)
{
    if (range.isEmpty())
        fail(u"une expression y manque"_s);
    bool between = false; // its "and" still belongs to the comparison
    for (int i = range.first; i < range.last; ++i) {
        const Token& here = token(i);
        switch (here.kind) {
        case Token::Name:
            i = name(range, i, use, nextToDate);
            break;
        case Token::Constant:
        case Token::Parameter:
            parameter(nextToDate);
            break;
        case Token::Keyword:
            if (here.is(Word::Select)) {
                i = select(i, true) - 1;
                break;
            }
            nextToDate = nextToDate && (here.is(Word::Between) || here.is(Word::In) || here.is(Word::Not) ||
                                        (here.is(Word::And) && between));
            between = here.is(Word::Between);
            write(here.word == Word::EndCase ? "end" : here.text.toUtf8());
            break;
        case Token::Symbol:
            if (here.is(u")") || here.is(u",")) {
                m_sql += here.text.toUtf8();
            } else {
                nextToDate = nextToDate && !here.is(u"+") && !here.is(u"-");
                write(here.is(u"&") ? "||" : here.text.toUtf8());
            }
            break;
        case Token::End:
            break;
        }
    }
}

/// Writes the function or the column that stands at `at`; returns its last token.
int Translator::name(Range range, int at, Use use, bool& nextToDate)
{
    const Token& here = token(at);
    if (at + 1 < range.last && token(at + 1).is(u"(")) {
        write(here.text.toUtf8());
        m_sql += '(';
        nextToDate = false;
        return at + 1;
    }
    if (m_tested) {
        if (!writeTested(here.text))
            fail(u"la colonne « %1 » n'existe pas"_s.arg(here.text));
        return at;
    }
    int length = 0;
    const Found found = column(at, length);
    if (found.field) {
        writeColumn(found, use);
        nextToDate = found.field->type == FieldType::Date;
        return at + length - 1;
    }
    const Alias* computed = length == 1 ? alias(here.text) : nullptr;
    if (!computed)
        fail(u"le champ « %1 » n'existe pas"_s.arg(here.text));
    write(quoted(computed->name));
    nextToDate = false;
    return at;
}

void Translator::parameter(bool nextToDate)
{
    write("?");
    m_parameters.push_back({nextToDate, -1});
}

bool Translator::writeTested(QStringView name)
{
    for (const Column& tested : *m_tested) {
        if (name.compare(tested.name, Qt::CaseInsensitive) != 0)
            continue;
        parameter(false);
        m_parameters.back().column = int(&tested - m_tested->data());
        if (tested.type == FieldType::Text)
            write("collate FRENCH");
        return true;
    }
    return false;
}

void Translator::writeColumn(const Found& found, Use use)
{
    const bool alone = m_scopes.size() == 1 && m_scopes.back().sources.size() == 1;
    write((alone ? QByteArray() : quoted(found.source->written) + '.') + quoted(found.field->name));
    if (use == Use::Compared && found.field->type == FieldType::Text)
        write("collate FRENCH");
}

/// The column named at `at`: "field", "table!field" or "table.field"; `length` tells how many tokens name it.
Translator::Found Translator::column(int at, int& length)
{
    length = 1;
    const bool qualified = token(at + 1).is(u"!") || token(at + 1).is(u".");
    if (!qualified)
        return unqualified(token(at).text);
    length = 3;
    for (auto scope = m_scopes.rbegin(); scope != m_scopes.rend(); ++scope) {
        for (const Source& source : scope->sources) {
            if (source.name.compare(token(at).text, Qt::CaseInsensitive) != 0)
                continue;
            const int position = source.table->position(token(at + 2).text);
            if (position < 0)
                fail(u"le champ « %1 » n'existe pas dans « %2 »"_s.arg(token(at + 2).text, source.name));
            return {&source, &source.table->fields[position]};
        }
    }
    fail(u"la table « %1 » n'y est pas nommée"_s.arg(token(at).text));
}

/// A field that only one of the tables has; where several have it, the one that a column of this name shows.
Translator::Found Translator::unqualified(QStringView name)
{
    for (auto scope = m_scopes.rbegin(); scope != m_scopes.rend(); ++scope) {
        Found found;
        int times = 0;
        for (const Source& source : scope->sources) {
            const int position = source.table->position(name);
            if (position >= 0 && times++ == 0)
                found = {&source, &source.table->fields[position]};
        }
        if (times == 1)
            return found;
        if (times == 0)
            continue;
        const Alias* shown = scope == m_scopes.rbegin() ? alias(name) : nullptr;
        int length = 0;
        if (!shown || !namesColumn(shown->expression) || shown->expression.last - shown->expression.first != 3)
            fail(u"le champ « %1 » est dans plusieurs tables"_s.arg(name));
        return column(shown->expression.first, length);
    }
    return {};
}

const Translator::Alias* Translator::alias(QStringView name) const
{
    if (m_scopes.empty())
        return nullptr;
    for (const Alias& entry : m_scopes.back().aliases) {
        if (name.compare(entry.name, Qt::CaseInsensitive) == 0)
            return &entry;
    }
    return nullptr;
}

/// True for a single "field" or "table!field".
bool Translator::namesColumn(Range range) const
{
    const int length = range.last - range.first;
    const bool qualified = length == 3 && (token(range.first + 1).is(u"!") || token(range.first + 1).is(u"."));
    return (length == 1 || qualified) && token(range.first).kind == Token::Name;
}

/// The type of a column that shows a field, its least or its greatest value.
CellType Translator::itemType(Range item)
{
    int first = item.first;
    int last = item.last;
    const bool extreme = token(first).text.compare(u"max", Qt::CaseInsensitive) == 0 ||
                         token(first).text.compare(u"min", Qt::CaseInsensitive) == 0;
    if (extreme && token(first + 1).is(u"(")) {
        first += 2;
        last -= 1;
    }
    if (first >= last || token(first).kind != Token::Name || token(first + 1).is(u"("))
        return {};
    int length = 0;
    const Found found = column(first, length);
    return found.field && first + length == last ? CellType(found.field->type) : CellType();
}

} // namespace store
