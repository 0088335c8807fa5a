#pragma once

#include "platform/store/value.h"

#include <QStringView>

namespace store {

/// Words with a meaning of their own in the dialect. Any other word names a table, a field or a function; between
/// square brackets these do too.
enum class Word
{
    None,
    And,
    As,
    Asc,
    Between,
    By,
    Case,
    Delete,
    Desc,
    Distinct,
    Else,
    EndCase,
    Exists,
    From,
    Group,
    Having,
    In,
    Inner,
    Insert,
    Into,
    Is,
    Join,
    Left,
    Like,
    Limit,
    Not,
    Null,
    On,
    Or,
    Order,
    Outer,
    Select,
    Set,
    Then,
    Update,
    Values,
    When,
    Where,
};

struct Token
{
    enum Kind
    {
        Name,
        Keyword,
        Constant,
        Parameter,
        Symbol,
        End
    } kind = End;
    Word word = Word::None;
    QStringView text; ///< a name without its brackets

    bool is(Word other) const { return kind == Keyword && word == other; }
    bool is(QStringView symbol) const { return kind == Symbol && text == symbol; }
};

/// A query cut into its tokens. Constants are lifted out, so that two queries that differ by a number, a text or a
/// date only have the same `shape`.
struct Lexed
{
    std::vector<Token> tokens; ///< closed by one of kind End
    Values constants;          ///< the value of each Constant token, in order
    QString shape;             ///< the tokens, single-spaced, in lower case, "?" for each constant and parameter
};

/// Throws `Error::BadQuery`. The tokens point into the query's text.
Lexed lex(const QString& query);

} // namespace store
