#include "platform/reports/fonts.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHash>

#include <array>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

/// Widths of the characters that reports are made of, each measured once: shaping every text anew would cost more than
/// all the rest of a layout. Right because the fonts are used without kerning.
struct Metrics
{
    explicit Metrics(const FontKey& key)
        : font(fontFor(key))
        , metrics(font)
    {
        widths.fill(-1);
    }

    double widthOf(QChar c)
    {
        double& width = widths[c.unicode()];
        if (width < 0)
            width = metrics.horizontalAdvance(c);
        return width;
    }

    QFont font;
    QFontMetricsF metrics;
    std::array<double, 256> widths;
};

QHash<quint32, std::shared_ptr<Metrics>>& cache()
{
    static QHash<quint32, std::shared_ptr<Metrics>> fonts;
    return fonts;
}

Metrics& metricsFor(const FontKey& key)
{
    auto& entry = cache()[key.packed()];
    if (!entry) {
        if (cache().size() == 1) // fonts must not outlive the application
            qAddPostRoutine([] { cache().clear(); });
        entry = std::make_shared<Metrics>(key);
    }
    return *entry;
}

} // namespace

QFont fontFor(const FontKey& key)
{
    QFont font;
    font.setFamilies({key.fixedPitch ? u"Liberation Mono"_s : u"Liberation Sans"_s,
                      key.fixedPitch ? u"DejaVu Sans Mono"_s : u"DejaVu Sans"_s});
    font.setPixelSize(key.size);
    font.setBold(key.bold);
    font.setItalic(key.italic);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::ForceOutline);
    return font;
}

double textWidth(const FontKey& key, QStringView text)
{
    Metrics& metrics = metricsFor(key);
    double width = 0;
    for (const QChar c : text) {
        if (c.unicode() > 255)
            return metrics.metrics.horizontalAdvance(text.toString());
        width += metrics.widthOf(c);
    }
    return width;
}

double ascent(const FontKey& key)
{
    return metricsFor(key).metrics.ascent();
}

double lineHeight(const FontKey& key)
{
    return metricsFor(key).metrics.height();
}

QStringList missingFonts()
{
    const QStringList present = QFontDatabase::families();
    QStringList missing;
    for (const QString& family : {u"Liberation Sans"_s, u"Liberation Mono"_s, u"DejaVu Sans"_s}) {
        if (!present.contains(family))
            missing.append(family);
    }
    return missing;
}

} // namespace reports
