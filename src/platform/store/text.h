#pragma once

#include <QByteArrayView>
#include <QCollator>
#include <QString>

#include <array>
#include <vector>

struct sqlite3;

/// How texts compare, sort and match in queries. All of it lives in the connection: the file names no collation.
namespace store {

/// The order of a French reader: case and accents count for nothing, a blank comes before a letter.
class FrenchOrder
{
public:
    FrenchOrder();

    /// Less than 0, 0 or more than 0, for two texts in UTF-8.
    int compare(QByteArrayView left, QByteArrayView right) const;

private:
    using Folded = QVarLengthArray<char, 128>;
    bool foldLatin(QByteArrayView text, Folded& folded) const;
    int compareFolded(const Folded& left, const Folded& right) const;

    QCollator m_collator;
    std::array<quint8, 128> m_rank{};                 ///< place of an ASCII character; 0: not a printable one
    std::array<std::array<char, 2>, 0x180> m_latin{}; ///< ASCII form of a Latin letter; empty: it has none
};

/// A pattern of `like`: "*" any characters, "?" one, "#" one digit, "[a-c]" one of these, "[!a-c]" none of these.
class Pattern
{
public:
    explicit Pattern(const QString& pattern);

    bool matches(const QString& text) const;

private:
    struct Element
    {
        enum Kind
        {
            Literal,
            Any,
            One,
            Digit,
            OneOf,
            NoneOf
        } kind;
        QString characters; ///< OneOf and NoneOf: first and last character of each range
        QChar character;
    };

    qsizetype readClass(const QString& pattern, qsizetype from);
    static bool accepts(const Element& element, QChar character);

    std::vector<Element> m_elements;
};

/// Gives a connection the collation FRENCH and the program's own `like`.
void addTextFunctions(sqlite3* connection);

} // namespace store
