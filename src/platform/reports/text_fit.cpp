#include "platform/reports/text_fit.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

constexpr double tolerance = 0.01; // a hundredth of a unit: sums of widths are not exact

/// How many characters from the start fit, at least one; a pair that makes one character is not parted.
qsizetype fittingLength(const FontKey& font, QStringView text, double width)
{
    qsizetype fits = 0, tooLong = text.size() + 1;
    while (tooLong - fits > 1) {
        const qsizetype middle = (fits + tooLong) / 2;
        (textWidth(font, text.first(middle)) <= width + tolerance ? fits : tooLong) = middle;
    }
    if (fits > 0 && fits < text.size() && text[fits].isLowSurrogate())
        --fits;
    return std::clamp<qsizetype>(fits, std::min<qsizetype>(1, text.size()), text.size());
}

void wrapParagraph(const FontKey& font, QStringView rest, double width, QStringList* lines)
{
    rest = rest.trimmed();
    do {
        qsizetype length = fittingLength(font, rest, width);
        if (length < rest.size() && !rest[length].isSpace()) {
            const qsizetype blank = rest.first(length).lastIndexOf(u' ');
            if (blank > 0)
                length = blank;
        }
        lines->append(rest.first(length).trimmed().toString());
        rest = rest.sliced(length).trimmed();
    } while (!rest.isEmpty());
}

} // namespace

QString elided(const FontKey& font, const QString& text, double width)
{
    if (textWidth(font, text) <= width + tolerance)
        return text;
    const QString dots(u'…');
    const double left = width - textWidth(font, dots);
    if (left <= 0)
        return {};
    return QStringView(text).first(fittingLength(font, text, left)).trimmed().toString() + dots;
}

QStringList wrapped(const FontKey& font, const QString& text, double width)
{
    QStringList lines;
    for (const QStringView paragraph : QStringView(text).split(u'\n'))
        wrapParagraph(font, paragraph, width, &lines);
    return lines;
}

FontKey shrunk(FontKey font, const QString& text, double width, double least)
{
    const double natural = textWidth(font, text);
    if (natural <= width + tolerance)
        return font;
    const double size = std::max(std::floor(font.size * width / natural), std::ceil(font.size * least));
    font.size = static_cast<quint16>(std::max(size, 1.0));
    return font;
}

} // namespace reports
