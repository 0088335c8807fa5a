#pragma once

#include <QFont>
#include <QStringList>

namespace reports {

/// A font of a report, in the units of a display list.
struct FontKey
{
    quint16 size = 90; ///< tenths of a point
    bool bold = false;
    bool italic = false;
    bool fixedPitch = false;

    quint32 packed() const { return size | quint32(bold) << 16 | quint32(italic) << 17 | quint32(fixedPitch) << 18; }
    friend bool operator==(const FontKey&, const FontKey&) = default;
};

/// The font itself, its pixel a tenth of a point. Latin text comes from the Liberation fonts, other scripts (Arabic)
/// from DejaVu Sans. Needs a QGuiApplication, as do the measures.
QFont fontFor(const FontKey& key);

double textWidth(const FontKey& key, QStringView text);
double ascent(const FontKey& key);
double lineHeight(const FontKey& key);

/// Families that the reports count on and that this machine lacks: texts would be substituted and look different.
QStringList missingFonts();

} // namespace reports
