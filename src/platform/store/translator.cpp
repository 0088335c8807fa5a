#include "platform/store/translator.h"

#include "platform/store/failure.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace store {

Translator::Translator(const Catalogue& catalogue, const QString& query, const Lexed& lexed)
    : m_catalogue(catalogue)
    , m_query(query)
    , m_lexed(lexed)
{}

Query Translator::statement()
{
    const Token& first = token(0);
    if (first.is(Word::Select)) {
        m_result.reads = true;
        if (select(0, false) != end())
            fail(u"une parenthèse se ferme sans s'ouvrir"_s);
    } else if (first.is(Word::Update)) {
        update();
    } else if (first.is(Word::Delete)) {
        remove();
    } else if (first.is(Word::Insert)) {
        insert();
    } else {
        fail(u"elle commence par « %1 »"_s.arg(first.text));
    }
    QStringList names;
    for (const Column& shown : m_result.columns)
        names += shown.name;
    m_result.names.build(names);
    m_result.sql = m_sql;
    m_result.parameters = m_parameters;
    return m_result;
}

/// Writes the select that begins at `first`; returns where it ends: the end of the query or a closing parenthesis.
int Translator::select(int first, bool inner)
{
    const Clauses at = clauses(first);
    m_scopes.emplace_back();
    readSources(at.from);
    if (!inner && showsRows(at)) {
        writeRows(at);
        return at.end;
    }
    readAliases(at.items);
    write(at.distinct ? "select distinct" : "select");
    writeItems(at, inner);
    write("from");
    writeFrom(at.from);
    const auto clause = [this](QByteArrayView word, Range range) {
        if (range.isEmpty())
            return;
        write(word);
        expression(range, Use::Compared);
    };
    clause("where", at.where);
    clause("group by", at.group);
    clause("having", at.having);
    if (!at.order.isEmpty()) {
        write("order by");
        writeOrder(at.order);
    }
    clause("limit", at.limit);
    m_scopes.pop_back();
    return at.end;
}

Translator::Clauses Translator::clauses(int first) const
{
    struct Mark
    {
        Range Clauses::*clause;
        Word word;
        int words; ///< "group by" and "order by" have two
    };
    static constexpr Mark marks[] = {
        {&Clauses::from, Word::From, 1},     {&Clauses::where, Word::Where, 1}, {&Clauses::group, Word::Group, 2},
        {&Clauses::having, Word::Having, 1}, {&Clauses::order, Word::Order, 2}, {&Clauses::limit, Word::Limit, 1},
    };

    Clauses at{};
    at.distinct = token(first + 1).is(Word::Distinct);
    at.items.first = first + (at.distinct ? 2 : 1);
    Range Clauses::*current = &Clauses::items;
    const Mark* next = std::begin(marks);
    int depth = 0;
    int i = first;
    for (;; ++i) {
        const Token& here = token(i);
        depth += here.is(u"(") ? 1 : here.is(u")") ? -1 : 0;
        if (here.kind == Token::End || depth < 0)
            break;
        const auto* mark =
            std::find_if(std::begin(marks), std::end(marks), [&here](const Mark& m) { return here.is(m.word); });
        if (depth > 0 || mark == std::end(marks))
            continue;
        if (mark < next)
            fail(u"« %1 » n'y est pas à sa place"_s.arg(here.text));
        if (mark->words == 2 && !token(i + 1).is(Word::By))
            fail(u"« by » manque après « %1 »"_s.arg(here.text));
        (at.*current).last = i;
        current = mark->clause;
        (at.*current).first = i + mark->words;
        if (i + mark->words > end())
            fail(u"elle s'arrête après « %1 »"_s.arg(here.text));
        next = mark + 1;
    }
    (at.*current).last = i;
    at.end = i;
    if (at.from.isEmpty())
        fail(u"« from » y manque"_s);
    if ((at.*current).isEmpty())
        fail(u"elle s'arrête trop tôt"_s);
    return at;
}

/// True for "select * from <one table>" with at most a condition and an order: its rows can be written to.
bool Translator::showsRows(const Clauses& at) const
{
    const bool star = at.items.last - at.items.first == 1 && token(at.items.first).is(u"*");
    return star && !at.distinct && m_scopes.back().sources.size() == 1 && at.group.isEmpty() && at.having.isEmpty() &&
           at.limit.isEmpty();
}

void Translator::writeRows(const Clauses& at)
{
    Source& source = m_scopes.back().sources.front();
    const Table& table = *source.table;
    source.written = table.name;
    m_result.table = &table;
    for (const Field& field : table.fields)
        m_result.columns.push_back({field.name, field.type});

    if (!at.where.isEmpty()) {
        m_sql = "(";
        expression(at.where, Use::Compared);
        m_result.where = m_sql + ')';
    }
    const std::size_t conditions = m_parameters.size();
    bool byKey = true;
    for (const Range term : parts(at.order)) {
        const bool descending = token(term.last - 1).is(Word::Desc);
        const bool directed = descending || token(term.last - 1).is(Word::Asc);
        m_sql.clear();
        expression({term.first, term.last - int(directed)}, Use::Compared);
        m_result.order += m_sql + (descending ? " desc, " : ", ");
        m_result.reverseOrder += m_sql + (descending ? ", " : " desc, ");
        byKey = byKey && !descending && itemType({term.first, term.last - int(directed)}) == FieldType::Counter;
    }
    if (m_parameters.size() > conditions)
        fail(u"une valeur ne peut pas donner l'ordre"_s);
    m_result.wholeTable = at.where.isEmpty() && byKey;
    m_result.order += "rowid";
    m_result.reverseOrder += "rowid desc";
    m_result.rows = selectRows(table);
    m_result.row = m_result.rows + " where rowid = ?";
    m_result.insert = insertRow(table);
    m_sql = m_result.rows;
    if (!m_result.where.isEmpty())
        m_sql += " where " + m_result.where;
    m_sql += " order by " + m_result.order;
}

void Translator::readSources(Range from)
{
    bool expected = true; // a table's name
    for (int i = from.first; i < from.last; ++i) {
        const Token& here = token(i);
        if (here.is(u",") || here.is(Word::Join)) {
            expected = true;
        } else if (here.is(u"(")) {
            i = closing(i);
        } else if (expected && here.kind == Token::Name) {
            const Table& table = tableAt(i);
            const int named = token(i + 1).is(Word::As) ? i + 2 : i + 1;
            const bool renamed = named < from.last && token(named).kind == Token::Name;
            const QString name = renamed ? token(named).text.toString() : table.name;
            m_scopes.back().sources.push_back({&table, name, name});
            i = renamed ? named : i;
            expected = false;
        }
    }
    if (m_scopes.back().sources.empty())
        fail(u"elle ne nomme aucune table"_s);
}

void Translator::readAliases(Range items)
{
    for (const Range item : parts(items)) {
        const int as = find(item, Word::As);
        if (as < item.last - 1)
            m_scopes.back().aliases.push_back({token(item.last - 1).text.toString(), {item.first, as}});
    }
}

void Translator::writeItems(const Clauses& at, bool inner)
{
    const Use use = at.distinct ? Use::Compared : Use::Shown;
    bool first = true;
    for (const Range item : parts(at.items)) {
        if (!first)
            m_sql += ',';
        first = false;
        writeItem(item, use, inner);
    }
}

void Translator::writeItem(Range item, Use use, bool inner)
{
    const Token& last = token(item.last - 1);
    if (last.is(u"*") && item.last - item.first == 1)
        return writeStar(nullptr, inner);
    if (last.is(u"*") && item.last - item.first == 3 && token(item.first).kind == Token::Name) {
        for (const Source& source : m_scopes.back().sources) {
            if (source.name.compare(token(item.first).text, Qt::CaseInsensitive) == 0)
                return writeStar(&source, inner);
        }
        fail(u"la table « %1 » n'y est pas nommée"_s.arg(token(item.first).text));
    }
    const int as = find(item, Word::As);
    const Range shown{item.first, as};
    QString name;
    if (as < item.last) {
        if (as + 2 != item.last || token(as + 1).kind != Token::Name)
            fail(u"un nom manque après « as »"_s);
        name = token(as + 1).text.toString();
    }
    expression(shown, use);
    int length = 0;
    if (name.isEmpty() && token(item.first).kind == Token::Name) {
        const Found found = column(item.first, length);
        if (found.field && item.first + length == item.last)
            name = found.field->name;
    }
    if (as < item.last) {
        write("as");
        write(quoted(name));
    }
    if (!inner)
        m_result.columns.push_back({name, itemType(shown)});
}

/// All fields of one of the tables, or of each.
void Translator::writeStar(const Source* only, bool inner)
{
    bool first = true;
    for (const Source& source : m_scopes.back().sources) {
        if (only && &source != only)
            continue;
        for (const Field& field : source.table->fields) {
            if (!first)
                m_sql += ',';
            first = false;
            writeColumn({&source, &field}, Use::Shown);
            if (!inner)
                m_result.columns.push_back({field.name, field.type});
        }
    }
}

void Translator::writeFrom(Range from)
{
    std::size_t source = 0;
    for (int i = from.first; i < from.last; ++i) {
        const Token& here = token(i);
        if (here.is(Word::On)) {
            int last = i + 1;
            for (int depth = 0; last < from.last; ++last) {
                const Token& t = token(last);
                depth += t.is(u"(") ? 1 : t.is(u")") ? -1 : 0;
                if (depth == 0 && (t.is(u",") || t.is(Word::Inner) || t.is(Word::Left) || t.is(Word::Join)))
                    break;
            }
            write("on");
            expression({i + 1, last}, Use::Compared);
            i = last - 1;
        } else if (here.kind == Token::Name && source < m_scopes.back().sources.size()) {
            const Source& named = m_scopes.back().sources[source++];
            write(quoted(named.table->name));
            const int alias = token(i + 1).is(Word::As) ? i + 2 : i + 1;
            if (alias < from.last && token(alias).kind == Token::Name) {
                write("as");
                write(quoted(named.name));
                i = alias;
            }
        } else if (here.kind == Token::Keyword || here.is(u",")) {
            write(here.text.toUtf8());
        } else {
            fail(u"« %1 » n'a pas de sens après « from »"_s.arg(here.text));
        }
    }
}

void Translator::writeOrder(Range order)
{
    bool first = true;
    for (const Range term : parts(order)) {
        if (!first)
            m_sql += ',';
        first = false;
        const Token& last = token(term.last - 1);
        const bool directed = last.is(Word::Asc) || last.is(Word::Desc);
        const Range key{term.first, term.last - int(directed)};
        // A column's own name goes before a table's field of the same name.
        const Alias* named = key.last - key.first == 1 ? alias(token(key.first).text) : nullptr;
        if (key.isEmpty() || token(key.first).kind == Token::Constant)
            fail(u"une valeur ne peut pas donner l'ordre"_s);
        if (named && !namesColumn(named->expression))
            write(quoted(named->name));
        else
            expression(named ? named->expression : key, Use::Compared);
        if (last.is(Word::Desc))
            write("desc");
    }
}

int Translator::find(Range range, Word word) const
{
    int depth = 0;
    for (int i = range.first; i < range.last; ++i) {
        depth += token(i).is(u"(") ? 1 : token(i).is(u")") ? -1 : 0;
        if (depth == 0 && token(i).is(word))
            return i;
    }
    return range.last;
}

int Translator::closing(int open) const
{
    int depth = 0;
    for (int i = open; i < end(); ++i) {
        depth += token(i).is(u"(") ? 1 : token(i).is(u")") ? -1 : 0;
        if (depth == 0)
            return i;
    }
    fail(u"une parenthèse n'est pas fermée"_s);
}

/// Cuts a list at its commas.
std::vector<Translator::Range> Translator::parts(Range range) const
{
    std::vector<Range> found;
    int first = range.first;
    int depth = 0;
    for (int i = range.first; i < range.last; ++i) {
        depth += token(i).is(u"(") ? 1 : token(i).is(u")") ? -1 : 0;
        if (depth == 0 && token(i).is(u",")) {
            found.push_back({first, i});
            first = i + 1;
        }
    }
    if (!range.isEmpty())
        found.push_back({first, range.last});
    for (const Range part : found) {
        if (part.isEmpty())
            fail(u"une virgule y est de trop"_s);
    }
    return found;
}

const Table& Translator::tableAt(int at)
{
    const Token& here = token(at);
    const Table* table = here.kind == Token::Name ? m_catalogue.find(here.text) : nullptr;
    if (!table)
        fail(here.kind == Token::Name ? u"la table « %1 » n'existe pas"_s.arg(here.text) : u"une table y manque"_s);
    m_result.tables |= tableBit(m_catalogue, table);
    return *table;
}

void Translator::write(QByteArrayView text)
{
    if (!m_sql.isEmpty() && m_sql.back() != '(')
        m_sql += ' ';
    m_sql += text;
}

void Translator::fail(const QString& why) const
{
    failQuery(m_query, why);
}

} // namespace store
