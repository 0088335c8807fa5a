#include "tests/platform/reports/page_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QStringList linesOf(const reports::Document& document, int page)
{
    const reports::Page& content = document.pages()[page];
    QList<reports::TextRun> runs = content.texts;
    const auto line = [](const reports::TextRun& run) { return qRound(run.baseline / 10); };
    std::stable_sort(runs.begin(), runs.end(), [&](const reports::TextRun& a, const reports::TextRun& b) {
        return line(a) != line(b) ? line(a) < line(b) : a.x < b.x;
    });
    QStringList lines;
    int current = -1;
    for (const reports::TextRun& run : std::as_const(runs)) {
        const QString text =
            QString(run.text).replace(reports::pagesMark, QString::number(document.pagesOfPart(content)));
        if (line(run) == current)
            lines.last() += u" | "_s + text;
        else
            lines.append(text);
        current = line(run);
    }
    return lines;
}

QStringList linesOf(const reports::Document& document)
{
    QStringList lines;
    for (int page = 0; page < document.pageCount(); ++page) {
        const reports::Page& content = document.pages()[page];
        lines.append(u"--- %1/%2"_s.arg(content.number).arg(document.pagesOfPart(content)));
        lines.append(linesOf(document, page));
    }
    return lines;
}
