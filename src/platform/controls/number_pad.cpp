#include "platform/controls/number_pad.h"

#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/pad_key.h"
#include "platform/controls/text_field.h"
#include "platform/text/keys.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace controls {

using namespace Qt::StringLiterals;

namespace {
constexpr int point = 10;
} // namespace

NumberPad::NumberPad(const Names& names, QWidget* parent)
    : QWidget(parent)
    , m_display(named(new QLabel, names.display))
{
    setRole(m_display, Role::Display);
    m_display->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setSpacing(6);
    grid->addWidget(m_display, 0, 0, 1, 3);
    const auto addKey = [&](int index, QChar character, int row, int column) {
        auto* key = named(padKey(character), names.keys, index);
        connect(key, &QPushButton::clicked, this, [this, character] { press(character); });
        grid->addWidget(key, row, column);
        return key;
    };
    for (int digit = 1; digit <= 9; ++digit)
        addKey(digit, QChar(u'0' + digit), 3 - (digit - 1) / 3, (digit - 1) % 3);
    addKey(0, u'0', 4, 0);
    m_point = addKey(point, u'.', 4, 1);

    auto* backspace = named(padBackspace(), names.backspace);
    connect(backspace, &QPushButton::clicked, this, &NumberPad::eraseLast);
    grid->addWidget(backspace, 4, 2);
}

QString NumberPad::text() const
{
    return m_display->text();
}

void NumberPad::clear()
{
    m_display->clear();
}

void NumberPad::serve(TextField* field, QWidget* mark)
{
    const int index = static_cast<int>(m_served.size());
    m_served.append({field, mark});
    connect(field, &TextField::entered, this, [this, index] { turnTo(index); });
}

void NumberPad::turnTo(int field)
{
    m_inHand = field;
    clear();
    m_point->setEnabled(m_served[field].field->kind() != TextField::Kind::Digits);
    for (int i = 0; i < m_served.size(); ++i)
        if (QWidget* mark = m_served[i].mark)
            mark->setVisible(i == field);
    emit turned(field);
}

void NumberPad::press(QChar key)
{
    display(text::padDisplay(m_display->text(), key));
}

void NumberPad::eraseLast()
{
    display(m_display->text().chopped(qMin<qsizetype>(1, m_display->text().size())));
}

void NumberPad::display(const QString& text)
{
    if (text == m_display->text())
        return;
    m_display->setText(text);
    if (!m_served.isEmpty())
        m_served[m_inHand].field->setText(text);
    emit displayChanged(text);
}

} // namespace controls
