#include "platform/reports/pattern.h"

#include "platform/reports/error.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace reports {

Pattern::Pattern(const QString& text, const std::function<Reference(const QString& name)>& resolve)
{
    qsizetype start = 0;
    while (start < text.size()) {
        const qsizetype open = text.indexOf(u'{', start);
        if (open != start)
            m_pieces.append({text.sliced(start, (open < 0 ? text.size() : open) - start), {}, false});
        if (open < 0)
            break;
        const qsizetype close = text.indexOf(u'}', open);
        if (close < 0)
            throw Error(u"accolade non fermée dans « %1 »"_s.arg(text));
        const QString inside = text.sliced(open + 1, close - open - 1);
        const qsizetype colon = inside.indexOf(u':');
        const QString mask = colon < 0 ? QString() : inside.sliced(colon + 1);
        m_pieces.append({mask, resolve(inside.first(colon < 0 ? inside.size() : colon).trimmed()), true});
        m_isFigure |= !mask.isEmpty();
        start = close + 1;
    }
}

QString Pattern::text(const Values& values) const
{
    QString result;
    for (const Piece& piece : m_pieces)
        result += piece.isReference ? displayText(values.at(piece.reference), piece.literal) : piece.literal;
    return result.trimmed();
}

bool Pattern::isBlank(const Values& values) const
{
    const auto isReference = [](const Piece& piece) { return piece.isReference; };
    return std::any_of(m_pieces.begin(), m_pieces.end(), isReference) &&
           std::all_of(m_pieces.begin(), m_pieces.end(), [&](const Piece& piece) {
               return !piece.isReference || displayText(values.at(piece.reference), piece.literal).trimmed().isEmpty();
           });
}

} // namespace reports
