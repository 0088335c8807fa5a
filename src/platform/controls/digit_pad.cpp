#include "platform/controls/digit_pad.h"

#include "platform/controls/named.h"
#include "platform/controls/pad_key.h"
#include "platform/controls/text_field.h"

#include <QGridLayout>
#include <QPushButton>

namespace controls {

DigitPad::DigitPad(const Names& names, const QList<TextField*>& fields, QWidget* parent)
    : QWidget(parent)
    , m_field(fields.first())
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setSpacing(6);
    for (int digit = 0; digit <= 9; ++digit) {
        const QChar character(u'0' + digit);
        auto* key = named(padKey(character), names.keys, digit);
        connect(key, &QPushButton::clicked, this, [this, character] { press(character); });
        if (digit == 0)
            grid->addWidget(key, 3, 0, 1, 2);
        else
            grid->addWidget(key, 2 - (digit - 1) / 3, (digit - 1) % 3);
    }
    auto* backspace = named(padBackspace(), names.backspace);
    connect(backspace, &QPushButton::clicked, this, &DigitPad::eraseLast);
    grid->addWidget(backspace, 3, 2);

    for (TextField* field : fields)
        connect(field, &TextField::entered, this, [this, field] { m_field = field; });
}

void DigitPad::press(QChar digit)
{
    m_field->setFocus();
    m_field->insert(digit);
}

void DigitPad::eraseLast()
{
    m_field->setFocus();
    m_field->end(false);
    m_field->backspace();
}

} // namespace controls
