#include "platform/text/keys.h"

namespace text {

namespace {

constexpr int backspace = 8;
constexpr int blank = 32;
constexpr int padLength = 12;

bool isDigit(int key)
{
    return key >= '0' && key <= '9';
}

} // namespace

bool acceptsDigit(int key)
{
    return key <= blank || isDigit(key);
}

int filterAmount(const QString& current, int key)
{
    if (key == blank)
        return 0;
    if (key < blank || isDigit(key) || key == '-')
        return key;
    const bool point = key == '.' || key == ',';
    return point && !current.contains(u'.') ? '.' : 0;
}

bool acceptsDateKey(qsizetype length, int key)
{
    if (key == backspace || length == 2 || length > 9)
        return true;
    if (length == 0)
        return key >= '0' && key <= '3';
    if (length == 3)
        return key == '0' || key == '1';
    return isDigit(key);
}

QString barDate(const QString& text)
{
    const qsizetype length = text.trimmed().size();
    return length == 2 || length == 5 ? text + u'/' : text;
}

int capital(int key)
{
    return key >= 'a' && key <= 'z' ? key - 32 : key;
}

int firstCapital(const QString& current, int key)
{
    return current.isEmpty() ? capital(key) : key;
}

QString padDisplay(const QString& display, QChar key)
{
    const bool point = key == u'.';
    const bool fits = display.trimmed().size() < padLength;
    const bool accepted = point ? !display.contains(u'.') : isDigit(key.unicode());
    return fits && accepted ? display + key : display;
}

} // namespace text
