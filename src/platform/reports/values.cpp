#include "platform/reports/values.h"

#include "platform/reports/document.h"
#include "platform/text/mask.h"

#include <QLocale>

namespace reports {

QVariant Values::at(const Reference& reference) const
{
    switch (reference.kind) {
    case Reference::Kind::Field:
        return (*row)[static_cast<std::size_t>(reference.index)];
    case Reference::Kind::Sum:
        return static_cast<double>((*sums)[static_cast<std::size_t>(reference.index)]);
    case Reference::Kind::Page:
        return page;
    case Reference::Kind::Pages:
        return QString(pagesMark);
    case Reference::Kind::Today:
        return today;
    }
    return {};
}

QString displayText(const QVariant& value, const QString& mask)
{
    if (!value.isValid() || value.isNull())
        return {};
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    if (!mask.isEmpty())
        return text::formatMask(value.toDouble(), mask);
    if (value.typeId() == QMetaType::Double)
        return QString::number(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    return value.toString();
}

} // namespace reports
