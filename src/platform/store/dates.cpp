#include "platform/store/database.h"

namespace store {

namespace {

constexpr qsizetype dateLength = 10;

/// True when the text has a digit at each place where the form has a letter, and the form's separators elsewhere.
bool hasForm(QStringView text, QStringView form)
{
    if (text.size() != form.size())
        return false;
    for (qsizetype i = 0; i < form.size(); ++i) {
        const bool digit = text[i] >= u'0' && text[i] <= u'9';
        if (form[i].isLetter() ? !digit : text[i] != form[i])
            return false;
    }
    return true;
}

QString join(QStringView first, QChar separator, QStringView second, QStringView third)
{
    QString text;
    text.reserve(dateLength);
    return text.append(first).append(separator).append(second).append(separator).append(third);
}

} // namespace

QString isoDate(QStringView ddMMyyyy)
{
    if (!hasForm(ddMMyyyy, u"dd/MM/yyyy"))
        return {};
    return join(ddMMyyyy.mid(6, 4), u'-', ddMMyyyy.mid(3, 2), ddMMyyyy.mid(0, 2));
}

QString displayDate(QStringView iso)
{
    if (!hasForm(iso, u"yyyy-MM-dd"))
        return {};
    return join(iso.mid(8, 2), u'/', iso.mid(5, 2), iso.mid(0, 4));
}

} // namespace store
