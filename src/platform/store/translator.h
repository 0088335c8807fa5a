#pragma once

#include "platform/store/dialect.h"

namespace store {

/// One query's way from the dialect to SQLite's text: from left to right over its tokens, each select knowing the
/// tables that it names. Used once.
class Translator
{
public:
    Translator(const Catalogue& catalogue, const QString& query, const Lexed& lexed);

    Query statement();
    Condition criterion(const Table& table);
    Condition criterion(const std::vector<Column>& columns);

private:
    /// Tokens from `first` up to, not with, `last`.
    struct Range
    {
        int first, last;
        bool isEmpty() const { return first >= last; }
    };
    /// A table in a `from`, and the name that the query gives it.
    struct Source
    {
        const Table* table;
        QString name;    ///< in the query
        QString written; ///< in SQLite's text
    };
    struct Found
    {
        const Source* source = nullptr;
        const Field* field = nullptr;
    };
    struct Alias
    {
        QString name;
        Range expression;
    };
    /// What names mean within one select or action.
    struct Scope
    {
        std::vector<Source> sources;
        std::vector<Alias> aliases;
    };
    /// The clauses of a select, each without its word; an absent one is empty.
    struct Clauses
    {
        Range items, from, where, group, having, order, limit;
        int end;
        bool distinct;
    };
    /// Compared columns of text carry the French order; shown ones have no need of it.
    enum class Use
    {
        Shown,
        Compared
    };

    // Selects (translator.cpp)
    int select(int first, bool inner);
    Clauses clauses(int first) const;
    bool showsRows(const Clauses& at) const;
    void writeRows(const Clauses& at);
    void writeItems(const Clauses& at, bool inner);
    void writeItem(Range item, Use use, bool inner);
    void writeStar(const Source* only, bool inner);
    void readSources(Range from);
    void readAliases(Range items);
    void writeFrom(Range from);
    void writeOrder(Range order);

    // Actions (translator_actions.cpp)
    void update();
    void remove();
    void insert();
    int target(int at);
    void condition(int at);
    void setList(Range list);
    void valueList(int at, const std::vector<const Field*>& fields);

    // Expressions (translator_expressions.cpp)
    void expression(Range range, Use use, bool nextToDate = false);
    int name(Range range, int at, Use use, bool& nextToDate);
    void parameter(bool nextToDate);
    void writeColumn(const Found& found, Use use);
    bool writeTested(QStringView name);
    Found column(int at, int& length);
    Found unqualified(QStringView name);
    const Alias* alias(QStringView name) const;
    bool namesColumn(Range range) const;
    CellType itemType(Range item);

    // Tokens
    const Token& token(int at) const { return m_lexed.tokens[std::size_t(at)]; }
    int end() const { return int(m_lexed.tokens.size()) - 1; }
    int find(Range range, Word word) const;
    int closing(int open) const;
    std::vector<Range> parts(Range range) const;
    const Table& tableAt(int at);
    void write(QByteArrayView text);
    [[noreturn]] void fail(const QString& why) const;

    const Catalogue& m_catalogue;
    const QString& m_query;
    const Lexed& m_lexed;
    QByteArray m_sql;
    std::vector<Parameter> m_parameters;
    std::vector<Scope> m_scopes;
    const std::vector<Column>* m_tested = nullptr; ///< the result whose row a criterion tests
    Query m_result;
};

} // namespace store
