#include "platform/reports/scanner.h"

#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace reports {

void Scanner::skipBlanks()
{
    m_rest = m_rest.trimmed();
}

bool Scanner::atEnd()
{
    skipBlanks();
    return m_rest.isEmpty();
}

bool Scanner::accept(QStringView sign)
{
    skipBlanks();
    if (!m_rest.startsWith(sign))
        return false;
    m_rest = m_rest.sliced(sign.size());
    return true;
}

bool Scanner::acceptWord(QStringView word)
{
    skipBlanks();
    if (!m_rest.startsWith(word, Qt::CaseInsensitive))
        return false;
    if (m_rest.size() > word.size() && (m_rest[word.size()].isLetterOrNumber() || m_rest[word.size()] == u'_'))
        return false;
    m_rest = m_rest.sliced(word.size());
    return true;
}

std::optional<QString> Scanner::reference()
{
    skipBlanks();
    const qsizetype end = m_rest.indexOf(u'}');
    if (!m_rest.startsWith(u'{') || end < 0)
        return {};
    const QString name = m_rest.sliced(1, end - 1).trimmed().toString();
    m_rest = m_rest.sliced(end + 1);
    return name;
}

std::optional<double> Scanner::number()
{
    skipBlanks();
    qsizetype length = m_rest.startsWith(u'-') ? 1 : 0;
    while (length < m_rest.size() && (m_rest[length].isDigit() || m_rest[length] == u'.'))
        ++length;
    bool ok = false;
    const double value = QLocale::c().toDouble(m_rest.first(length), &ok);
    if (!ok)
        return {};
    m_rest = m_rest.sliced(length);
    return value;
}

std::optional<QString> Scanner::quoted()
{
    skipBlanks();
    if (m_rest.isEmpty() || (m_rest[0] != u'\'' && m_rest[0] != u'"'))
        return {};
    const QChar quote = m_rest[0];
    QString text;
    for (qsizetype i = 1; i < m_rest.size(); ++i) {
        if (m_rest[i] == quote) {
            if (i + 1 == m_rest.size() || m_rest[i + 1] != quote) {
                m_rest = m_rest.sliced(i + 1);
                return text;
            }
            ++i;
        }
        text += m_rest[i];
    }
    return {};
}

bool isFieldName(QStringView name)
{
    static const QRegularExpression form(uR"(\A[A-Za-z_]\w*\.[A-Za-z_]\w*\z)"_s);
    return form.match(name).hasMatch();
}

QString tableOf(QStringView fieldName)
{
    return fieldName.first(fieldName.indexOf(u'.')).toString();
}

} // namespace reports
