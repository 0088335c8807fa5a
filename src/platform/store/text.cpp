#include "platform/store/text.h"

#include "platform/store/database.h"

#include <sqlite3.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace store {

namespace {

constexpr QStringView patternCharacters = u"*?#[";

bool isAscii(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80; });
}

/// Letters that decomposition leaves whole, and apostrophes, in the form that a keyboard gives.
QStringView plainForm(QChar character)
{
    switch (character.unicode()) {
    case u'œ':
    case u'Œ':
        return u"oe";
    case u'æ':
    case u'Æ':
        return u"ae";
    case u'ø':
    case u'Ø':
        return u"o";
    case u'ß':
        return u"ss";
    case u'ł':
    case u'Ł':
        return u"l";
    case u'đ':
    case u'Đ':
        return u"d";
    case u'\u2018':
    case u'\u2019':
    case u'\u02BC':
        return u"'";
    default:
        return {};
    }
}

/// Marks over and under letters, the Arabic lengthening stroke and the invisible signs of direction.
bool isDropped(QChar character)
{
    switch (character.category()) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return true;
    default:
        return character == u'\u0640';
    }
}

} // namespace

QString fold(const QString& text)
{
    if (isAscii(text))
        return text.toLower();
    QString plain;
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    for (const QChar character : decomposed) {
        const QStringView replacement = plainForm(character);
        if (!replacement.isEmpty())
            plain += replacement;
        else if (!isDropped(character))
            plain += character;
    }
    return plain.toCaseFolded();
}

FrenchOrder::FrenchOrder()
    : m_collator(QLocale(QLocale::French, QLocale::France))
{
    m_collator.setIgnorePunctuation(false);

    // The collator itself ranks the characters of ASCII, so that the quick way and the slow one agree.
    std::vector<char> printable;
    for (char c = 0x20; c < 0x7f; ++c) {
        if (c < 'A' || c > 'Z')
            printable.push_back(c);
    }
    std::sort(printable.begin(), printable.end(), [this](char left, char right) {
        return m_collator.compare(QString(QLatin1Char(left)), QString(QLatin1Char(right))) < 0;
    });
    for (std::size_t i = 0; i < printable.size(); ++i)
        m_rank[uchar(printable[i])] = quint8(i + 1);
    for (char c = 'A'; c <= 'Z'; ++c)
        m_rank[uchar(c)] = m_rank[uchar(c | 0x20)];

    for (std::size_t c = 0xa0; c < m_latin.size(); ++c) {
        const QByteArray plain = fold(QString(QChar(char16_t(c)))).toUtf8();
        const bool fits = !plain.isEmpty() && plain.size() <= 2;
        if (fits && std::all_of(plain.cbegin(), plain.cend(), [this](char p) { return p > 0 && m_rank[uchar(p)] > 0; }))
            std::copy(plain.cbegin(), plain.cend(), m_latin[c].begin());
    }
}

/// Folds a text made of ASCII and accented Latin letters; false when it holds anything else.
bool FrenchOrder::foldLatin(QByteArrayView text, Folded& folded) const
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const uchar byte = uchar(text[i]);
        if (byte < 0x80) {
            if (m_rank[byte] == 0)
                return false;
            folded.append(char(byte));
            continue;
        }
        if (byte < 0xc2 || byte > 0xc5 || i + 1 == text.size())
            return false;
        const auto& plain = m_latin[(byte & 0x1f) << 6 | (uchar(text[++i]) & 0x3f)];
        if (plain[0] == 0)
            return false;
        folded.append(plain[0]);
        if (plain[1] != 0)
            folded.append(plain[1]);
    }
    return true;
}

int FrenchOrder::compareFolded(const Folded& left, const Folded& right) const
{
    const qsizetype common = qMin(left.size(), right.size());
    for (qsizetype i = 0; i < common; ++i) {
        if (const int difference = m_rank[uchar(left[i])] - m_rank[uchar(right[i])])
            return difference;
    }
    return left.size() < right.size() ? -1 : int(left.size() > right.size());
}

int FrenchOrder::compare(QByteArrayView left, QByteArrayView right) const
{
    // Most pairs part at a plain letter near their beginning.
    const qsizetype common = qMin(left.size(), right.size());
    for (qsizetype i = 0; i < common; ++i) {
        const uchar l = uchar(left[i]);
        const uchar r = uchar(right[i]);
        if ((l | r) >= 0x80 || m_rank[l] == 0 || m_rank[r] == 0)
            break;
        if (m_rank[l] != m_rank[r])
            return m_rank[l] - m_rank[r];
    }
    Folded foldedLeft;
    Folded foldedRight;
    if (foldLatin(left, foldedLeft) && foldLatin(right, foldedRight))
        return compareFolded(foldedLeft, foldedRight);
    return m_collator.compare(fold(QString::fromUtf8(left)), fold(QString::fromUtf8(right)));
}

Pattern::Pattern(const QString& pattern)
{
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar character = pattern[i];
        if (character == u'[') {
            if (const qsizetype end = readClass(pattern, i + 1); end > 0) {
                i = end;
                continue;
            }
        }
        if (character == u'*')
            m_elements.push_back({Element::Any, {}, {}});
        else if (character == u'?')
            m_elements.push_back({Element::One, {}, {}});
        else if (character == u'#')
            m_elements.push_back({Element::Digit, {}, {}});
        else {
            const qsizetype length = character.isHighSurrogate() && i + 1 < pattern.size() ? 2 : 1;
            const QString folded = fold(pattern.mid(i, length));
            for (const QChar plain : folded)
                m_elements.push_back({Element::Literal, {}, plain});
            i += length - 1;
        }
    }
}

/// Reads the characters after a "[". Returns the place of the "]", or 0 when there is none: the "[" is then a plain
/// one.
qsizetype Pattern::readClass(const QString& pattern, qsizetype from)
{
    const bool none = from < pattern.size() && pattern[from] == u'!';
    const qsizetype first = none ? from + 1 : from;
    const qsizetype end = pattern.indexOf(u']', first);
    if (end < 0)
        return 0;
    const QString inside = fold(pattern.mid(first, end - first));
    Element element{none ? Element::NoneOf : Element::OneOf, {}, {}};
    for (qsizetype i = 0; i < inside.size(); ++i) {
        const bool range = i + 2 < inside.size() && inside[i + 1] == u'-';
        element.characters += inside[i];
        element.characters += range ? inside[i + 2] : inside[i];
        i += range ? 2 : 0;
    }
    if (!element.characters.isEmpty())
        m_elements.push_back(element);
    return end;
}

bool Pattern::accepts(const Element& element, QChar character)
{
    switch (element.kind) {
    case Element::Literal:
        return element.character == character;
    case Element::Digit:
        return character.isDigit();
    case Element::OneOf:
    case Element::NoneOf:
        for (qsizetype i = 0; i < element.characters.size(); i += 2) {
            if (element.characters[i] <= character && character <= element.characters[i + 1])
                return element.kind == Element::OneOf;
        }
        return element.kind == Element::NoneOf;
    default:
        return true;
    }
}

bool Pattern::matches(const QString& text) const
{
    const QString folded = fold(text);
    std::size_t element = 0;
    std::size_t afterStar = 0; // the element after the last "*" met; 0 when none was
    qsizetype starEnd = 0;     // where the text taken by that "*" ends so far
    qsizetype at = 0;
    while (at < folded.size() || element < m_elements.size()) {
        if (element < m_elements.size() && m_elements[element].kind == Element::Any) {
            afterStar = ++element;
            starEnd = at;
        } else if (element < m_elements.size() && at < folded.size() && accepts(m_elements[element], folded[at])) {
            ++element;
            ++at;
        } else if (afterStar > 0 && starEnd < folded.size()) {
            at = ++starEnd;
            element = afterStar;
        } else {
            return false;
        }
    }
    return true;
}

QString likeLiteral(const QString& text)
{
    QString literal;
    for (const QChar character : text) {
        if (patternCharacters.contains(character))
            literal += u'[' + QString(character) + u']';
        else
            literal += character;
    }
    return literal;
}

namespace {

int compareFrench(void* order, int leftSize, const void* left, int rightSize, const void* right)
{
    return static_cast<const FrenchOrder*>(order)->compare({static_cast<const char*>(left), leftSize},
                                                           {static_cast<const char*>(right), rightSize});
}

QString argument(sqlite3_value* value)
{
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return QString::fromUtf8(bytes, sqlite3_value_bytes(value));
}

/// like(pattern, text), which SQLite calls for "text like pattern".
void like(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    // The same pattern serves for every row of a query: SQLite keeps it for us.
    const auto* kept = static_cast<const Pattern*>(sqlite3_get_auxdata(context, 0));
    if (kept) {
        sqlite3_result_int(context, kept->matches(argument(arguments[1])));
        return;
    }
    auto* pattern = new Pattern(argument(arguments[0]));
    sqlite3_result_int(context, pattern->matches(argument(arguments[1])));
    sqlite3_set_auxdata(context, 0, pattern, [](void* old) { delete static_cast<Pattern*>(old); });
}

} // namespace

void addTextFunctions(sqlite3* connection)
{
    sqlite3_create_collation_v2(connection, "FRENCH", SQLITE_UTF8, new FrenchOrder, compareFrench,
                                [](void* order) { delete static_cast<FrenchOrder*>(order); });
    sqlite3_create_function_v2(connection, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, like, nullptr,
                               nullptr, nullptr);
}

} // namespace store
