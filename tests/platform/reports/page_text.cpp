#include "tests/platform/reports/page_text.h"

#include "platform/reports/units.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace reports;

namespace {

int lineOf(const TextRun& run)
{
    return qRound(run.baseline / unitsPerPoint);
}

QString millimetres(double units)
{
    return QString::number(units / unitsPerMillimetre, 'f', 1);
}

QStringList describe(const Document& document, int page, bool withPlaces)
{
    const Page& content = document.pages()[page];
    QList<TextRun> runs = content.texts;
    std::stable_sort(runs.begin(), runs.end(), [](const TextRun& a, const TextRun& b) {
        return lineOf(a) != lineOf(b) ? lineOf(a) < lineOf(b) : a.x < b.x;
    });
    QStringList lines;
    int current = -1;
    for (const TextRun& run : std::as_const(runs)) {
        QString text = QString(run.text).replace(pagesMark, QString::number(document.pagesOfPart(content)));
        if (withPlaces)
            text.prepend(millimetres(run.x) + u' ');
        if (lineOf(run) == current)
            lines.last() += u" | "_s + text;
        else
            lines.append(withPlaces ? millimetres(run.baseline) + u": "_s + text : text);
        current = lineOf(run);
    }
    return lines;
}

QStringList describe(const Document& document, bool withPlaces)
{
    QStringList lines;
    for (int page = 0; page < document.pageCount(); ++page) {
        const Page& content = document.pages()[page];
        lines.append(u"--- %1/%2"_s.arg(content.number).arg(document.pagesOfPart(content)));
        lines.append(describe(document, page, withPlaces));
    }
    return lines;
}

} // namespace

QStringList linesOf(const Document& document, int page)
{
    return describe(document, page, false);
}

QStringList linesOf(const Document& document)
{
    return describe(document, false);
}

QStringList placesOf(const Document& document)
{
    return describe(document, true);
}
