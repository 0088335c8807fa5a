#include "platform/reports/band_layout.h"

#include "platform/reports/text_fit.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

constexpr double leastShrinking = 0.7;

class BandLayout
{
public:
    BandLayout(const Values& values, double maximalHeight)
        : m_values(values)
        , m_maximalHeight(maximalHeight)
    {}

    LaidBand lay(const Band& band, double width, bool isShaded)
    {
        m_laid.height = band.height;
        for (const Element& element : band.elements) {
            if (!element.when.holds(m_values))
                continue;
            if (element.kind == Element::Kind::Stack)
                layStack(element);
            else if (element.kind == Element::Kind::Text)
                layFreeText(element, band.height);
        }
        // Grounds, frames and rules once the height is known that they stretch to.
        if (isShaded)
            m_laid.shapes.append({QRectF(0, 0, width, m_laid.height), false, 0, 0, band.alternate, 0});
        for (const Element& element : band.elements) {
            if (element.kind == Element::Kind::Rule || element.kind == Element::Kind::Frame)
                layShape(element, m_laid.height - band.height);
        }
        return std::move(m_laid);
    }

private:
    void grow(double bottom) { m_laid.height = std::max(m_laid.height, std::min(bottom, m_maximalHeight)); }

    /// A text that wraps keeps below it what margin it has above, as far as the band left one.
    void layFreeText(const Element& element, double bandHeight)
    {
        const double top = element.place.top();
        const double height = layText(element, element.place.topLeft(), element.place.width());
        const double below = bandHeight - top - lineHeight(element.font);
        if (height > 0)
            grow(top + height + std::clamp(below, 0.0, top));
    }

    /// Draws a text from the upper left corner given; returns the height that it takes when it wraps, else 0.
    double layText(const Element& element, QPointF corner, double width)
    {
        QString text = element.pattern.text(m_values);
        if (text.isEmpty())
            return 0;
        const double line = lineHeight(element.font);
        if (element.fit == Fit::Wrap) {
            const QStringList lines = keepWhatFits(wrapped(element.font, text, width), element, corner.y(), width);
            for (qsizetype i = 0; i < lines.size(); ++i)
                addRun(element, element.font, lines[i], {corner.x(), corner.y() + i * line}, width);
            return lines.size() * line;
        }

        std::replace(text.begin(), text.end(), u'\n', u' ');
        FontKey font = element.font;
        if (element.fit == Fit::Shrink)
            font = shrunk(font, text, width, element.pattern.isFigure() ? 0 : leastShrinking);
        if (!element.pattern.isFigure())
            text = elided(font, text, width);
        const double slack = element.middle ? std::max(0.0, (element.place.height() - line) / 2) : 0;
        addRun(element, font, text, {corner.x(), corner.y() + slack}, width);
        return 0;
    }

    QStringList keepWhatFits(QStringList lines, const Element& element, double top, double width) const
    {
        const auto room = static_cast<qsizetype>((m_maximalHeight - top) / lineHeight(element.font));
        if (lines.size() > std::max<qsizetype>(room, 1)) {
            lines.resize(std::max<qsizetype>(room, 1));
            lines.last() = elided(element.font, lines.last() + u" …"_s, width);
        }
        return lines;
    }

    void addRun(const Element& element, const FontKey& font, const QString& text, QPointF corner, double width)
    {
        TextRun run;
        run.text = text;
        run.font = font;
        run.color = element.color;
        run.baseline = corner.y() + ascent(element.font);
        run.x = corner.x();
        const double slack = element.align == Align::Left ? 0 : element.align == Align::Right ? width : width / 2;
        if (text.contains(pagesMark)) { // its width shows when it is painted
            run.align = element.align;
            run.x += slack;
        } else if (element.align != Align::Left) {
            const double own = textWidth(font, text);
            run.x += slack - (element.align == Align::Right ? own : own / 2);
        }
        m_laid.texts.append(run);
    }

    void layStack(const Element& stack)
    {
        double y = stack.place.top();
        for (const Element& line : stack.children) {
            if (!line.when.holds(m_values) || line.pattern.isBlank(m_values))
                continue;
            y += line.place.top();
            const double wrappedHeight = layText(line, {stack.place.left() + line.place.left(), y},
                                                 std::min(line.place.width(), stack.place.width() - line.place.left()));
            y += std::max({line.place.height(), wrappedHeight, lineHeight(line.font)});
        }
        grow(y + stack.below);
    }

    void layShape(const Element& element, double growth)
    {
        if (!element.when.holds(m_values))
            return;
        Shape shape;
        shape.rect = element.place;
        if (element.stretches)
            shape.rect.setHeight(shape.rect.height() + growth);
        shape.isRule = element.kind == Element::Kind::Rule;
        shape.width = element.penWidth;
        shape.stroke = element.color;
        shape.fill = element.fill;
        shape.radius = element.radius;
        m_laid.shapes.append(shape);
    }

    const Values& m_values;
    double m_maximalHeight;
    LaidBand m_laid;
};

} // namespace

LaidBand layBand(const Band& band, const Values& values, double width, double maximalHeight, bool isShaded)
{
    return BandLayout(values, maximalHeight).lay(band, width, isShaded && band.alternate);
}

} // namespace reports
