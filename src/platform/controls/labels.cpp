#include "platform/controls/labels.h"

#include "platform/controls/look.h"

namespace controls {

namespace {

QLabel* labelOf(Role role, const QString& text, Qt::Alignment alignment)
{
    auto* label = new QLabel(text);
    label->setAlignment(alignment | Qt::AlignVCenter);
    setRole(label, role);
    return label;
}

} // namespace

QLabel* captionLabel(const QString& text, QWidget* field)
{
    auto* label = labelOf(Role::Caption, text, Qt::AlignLeft);
    label->setBuddy(field);
    if (field && field->accessibleName().isEmpty())
        field->setAccessibleName(QString(text).remove(u'&').trimmed());
    return label;
}

QLabel* valueLabel(Qt::Alignment alignment)
{
    auto* label = labelOf(Role::Value, {}, alignment);
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(u'0') * 13);
    return label;
}

QLabel* totalLabel()
{
    auto* label = valueLabel();
    setRole(label, Role::Total);
    return label;
}

QLabel* sectionLabel(const QString& text)
{
    return labelOf(Role::Section, text, Qt::AlignLeft);
}

QLabel* markLabel()
{
    auto* label = labelOf(Role::Section, QStringLiteral("◀"), Qt::AlignLeft);
    QSizePolicy place = label->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    label->setSizePolicy(place);
    return label;
}

QLabel* hintLabel(const QString& text)
{
    auto* label = labelOf(Role::Hint, text, Qt::AlignLeft);
    label->setWordWrap(true);
    return label;
}

} // namespace controls
