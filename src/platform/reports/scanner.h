#pragma once

#include <QString>

#include <optional>

namespace reports {

/// Reads the small languages of a report (formulas, conditions, sort fields, joins) from left to right. Blanks between
/// the parts don't count. What is not there is left unread; the caller says what was expected.
class Scanner
{
public:
    explicit Scanner(const QString& text)
        : m_text(text)
        , m_rest(m_text)
    {}
    Scanner(const Scanner&) = delete;
    Scanner& operator=(const Scanner&) = delete;

    bool atEnd();
    /// A sign such as ">=" or "(".
    bool accept(QStringView sign);
    /// A word in any case, such as "and".
    bool acceptWord(QStringView word);
    /// "{Table.field}" or "{total}": what stands between the braces, trimmed.
    std::optional<QString> reference();
    std::optional<double> number();
    /// A text between "'" or '"'; the sign doubled stands for itself.
    std::optional<QString> quoted();

private:
    void skipBlanks();

    QString m_text;
    QStringView m_rest; ///< what is still to be read of m_text
};

/// True when the name is a table and a field, joined by a point, and nothing that could be anything else.
bool isFieldName(QStringView name);
/// The half of "Table.field" in front of the point.
QString tableOf(QStringView fieldName);

} // namespace reports
