#include "platform/store/lexer.h"

#include "platform/store/database.h"
#include "platform/store/failure.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace store {

namespace {

struct Reserved
{
    QStringView text;
    Word word;
};

constexpr std::array reservedWords = {
    Reserved{u"and", Word::And},         Reserved{u"as", Word::As},         Reserved{u"asc", Word::Asc},
    Reserved{u"between", Word::Between}, Reserved{u"by", Word::By},         Reserved{u"case", Word::Case},
    Reserved{u"delete", Word::Delete},   Reserved{u"desc", Word::Desc},     Reserved{u"distinct", Word::Distinct},
    Reserved{u"else", Word::Else},       Reserved{u"end", Word::EndCase},   Reserved{u"exists", Word::Exists},
    Reserved{u"from", Word::From},       Reserved{u"group", Word::Group},   Reserved{u"having", Word::Having},
    Reserved{u"in", Word::In},           Reserved{u"inner", Word::Inner},   Reserved{u"insert", Word::Insert},
    Reserved{u"into", Word::Into},       Reserved{u"is", Word::Is},         Reserved{u"join", Word::Join},
    Reserved{u"left", Word::Left},       Reserved{u"like", Word::Like},     Reserved{u"limit", Word::Limit},
    Reserved{u"not", Word::Not},         Reserved{u"null", Word::Null},     Reserved{u"on", Word::On},
    Reserved{u"or", Word::Or},           Reserved{u"order", Word::Order},   Reserved{u"outer", Word::Outer},
    Reserved{u"select", Word::Select},   Reserved{u"set", Word::Set},       Reserved{u"then", Word::Then},
    Reserved{u"update", Word::Update},   Reserved{u"values", Word::Values}, Reserved{u"when", Word::When},
    Reserved{u"where", Word::Where},
};

Word reservedWord(QStringView text)
{
    const auto found =
        std::lower_bound(reservedWords.begin(), reservedWords.end(), text, [](const Reserved& entry, QStringView t) {
            return entry.text.compare(t, Qt::CaseInsensitive) < 0;
        });
    const bool same = found != reservedWords.end() && found->text.compare(text, Qt::CaseInsensitive) == 0;
    return same ? found->word : Word::None;
}

bool startsName(QChar c)
{
    return c.isLetter() || c == u'_';
}

bool continuesName(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

class Lexer
{
public:
    explicit Lexer(const QString& query)
        : m_query(query)
        , m_text(query)
    {
        m_lexed.tokens.reserve(32);
        m_lexed.shape.reserve(query.size() + 8);
    }

    Lexed run()
    {
        for (skipBlanks(); m_at < m_text.size(); skipBlanks())
            next();
        m_lexed.tokens.push_back({});
        return std::move(m_lexed);
    }

private:
    void skipBlanks()
    {
        while (m_at < m_text.size() && (m_text[m_at].isSpace() || m_text[m_at] == u';'))
            ++m_at;
    }

    QChar peek(qsizetype ahead = 0) const { return m_at + ahead < m_text.size() ? m_text[m_at + ahead] : QChar(); }

    void next()
    {
        const QChar c = peek();
        if (startsName(c))
            word();
        else if (isDigit(c) || (c == u'.' && isDigit(peek(1))) || (c == u'-' && isSign()))
            number();
        else if (c == u'\'' || c == u'"')
            quotedText(c);
        else if (c == u'#')
            date();
        else if (c == u'[')
            bracketedName();
        else
            symbol();
    }

    /// A "-" before digits is a sign unless something stands to its left from which it could be taken away.
    bool isSign() const
    {
        if (!isDigit(peek(1)) && !(peek(1) == u'.' && isDigit(peek(2))))
            return false;
        if (m_lexed.tokens.empty())
            return true;
        const Token& last = m_lexed.tokens.back();
        return last.kind == Token::Keyword || (last.kind == Token::Symbol && last.text != u")");
    }

    void word()
    {
        const qsizetype start = m_at;
        while (m_at < m_text.size() && continuesName(m_text[m_at]))
            ++m_at;
        const QStringView text = m_text.sliced(start, m_at - start);
        if (text.compare(u"true", Qt::CaseInsensitive) == 0 || text.compare(u"false", Qt::CaseInsensitive) == 0) {
            constant(qint64(text.size() == 4));
            return;
        }
        const Word reserved = reservedWord(text);
        add(reserved == Word::None ? Token::Name : Token::Keyword, text, reserved);
        for (const QChar c : text)
            m_lexed.shape += c.toLower();
    }

    void bracketedName()
    {
        const qsizetype end = m_text.indexOf(u']', m_at);
        if (end <= m_at + 1)
            failQuery(m_query, u"un crochet n'est pas fermé"_s);
        const QStringView text = m_text.sliced(m_at + 1, end - m_at - 1);
        add(Token::Name, text);
        m_lexed.shape += u'[' + text.toString().toLower() + u']';
        m_at = end + 1;
    }

    void number()
    {
        const qsizetype start = m_at++;
        bool whole = m_text[start] != u'.';
        while (isDigit(peek()) || peek() == u'.') {
            whole = whole && peek() != u'.';
            ++m_at;
        }
        if (peek().toLower() == u'e' && (isDigit(peek(1)) || isDigit(peek(2)))) {
            whole = false;
            for (m_at += 2; isDigit(peek());)
                ++m_at;
        }
        const QStringView text = m_text.sliced(start, m_at - start);
        bool ok = !startsName(peek());
        if (ok && whole) {
            const qint64 number = text.toLongLong(&ok);
            if (ok)
                return constant(number);
            ok = true; // too large for a whole number
        }
        const double number = ok ? text.toDouble(&ok) : 0;
        if (!ok)
            failQuery(m_query, u"« %1 » n'est pas un nombre"_s.arg(text));
        constant(number);
    }

    /// A text between quotes; a quote within it is doubled.
    void quotedText(QChar quote)
    {
        QString text;
        for (++m_at; m_at < m_text.size(); ++m_at) {
            if (m_text[m_at] == quote) {
                if (peek(1) != quote)
                    break;
                ++m_at;
            }
            text += m_text[m_at];
        }
        if (m_at >= m_text.size())
            failQuery(m_query, u"un texte n'est pas fermé"_s);
        ++m_at;
        constant(text.toUtf8());
    }

    /// A date between "#" as month/day/year.
    void date()
    {
        const qsizetype end = m_text.indexOf(u'#', m_at + 1);
        const QStringView text = end < 0 ? QStringView() : m_text.sliced(m_at + 1, end - m_at - 1).trimmed();
        const auto parts = text.split(u'/');
        const auto twoDigits = [&parts](qsizetype i) { return parts[i].toString().rightJustified(2, u'0'); };
        QString iso;
        if (parts.size() == 3)
            iso = isoDate(QStringList{twoDigits(1), twoDigits(0), parts[2].toString()}.join(u'/'));
        if (iso.isEmpty())
            failQuery(m_query, u"« #%1# » n'est pas une date"_s.arg(text));
        m_at = end + 1;
        constant(iso.toUtf8());
    }

    void symbol()
    {
        static constexpr std::array<QStringView, 5> pairs = {u"<>", u"<=", u">=", u"!=", u"||"};
        static constexpr QStringView singles = u"=<>+-*/&(),.!?";
        const QStringView two = m_text.sliced(m_at, qMin<qsizetype>(2, m_text.size() - m_at));
        const qsizetype length = std::find(pairs.begin(), pairs.end(), two) != pairs.end() ? 2 : 1;
        const QStringView text = two.first(length);
        if (length == 1 && !singles.contains(text[0]))
            failQuery(m_query, u"« %1 » n'y a pas de sens"_s.arg(text));
        add(text == u"?" ? Token::Parameter : Token::Symbol, text);
        m_lexed.shape += text;
        m_at += length;
    }

    void constant(Value value)
    {
        add(Token::Constant, {});
        m_lexed.constants.push_back(std::move(value));
        m_lexed.shape += u'?';
    }

    void add(Token::Kind kind, QStringView text, Word word = Word::None)
    {
        if (!m_lexed.tokens.empty())
            m_lexed.shape += u' ';
        m_lexed.tokens.push_back({kind, word, text});
    }

    const QString& m_query;
    QStringView m_text;
    qsizetype m_at = 0;
    Lexed m_lexed;
};

} // namespace

Lexed lex(const QString& query)
{
    return Lexer(query).run();
}

} // namespace store
