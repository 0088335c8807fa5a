#include "platform/controls/entry_panel.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QPlainTextEdit>

namespace controls {

using namespace Qt::StringLiterals;

EntryPanel::EntryPanel(QStringView name, QStringView titleName, QWidget* parent)
    : QFrame(parent)
    , m_title(named(sectionLabel(), titleName))
    , m_columns(new QHBoxLayout)
    , m_foot(new QHBoxLayout)
{
    named(this, name);
    setRole(this, Role::Panel);
    m_columns->setSpacing(24);
    nextColumn();
    m_foot->setSpacing(6);
    m_foot->addStretch();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 12, 16, 12);
    column->setSpacing(12);
    column->addWidget(m_title);
    column->addLayout(m_columns);
    column->addStretch();
    column->addLayout(m_foot);
}

QString EntryPanel::title() const
{
    return m_title->text();
}

void EntryPanel::setTitle(const QString& title)
{
    m_title->setText(title);
}

QLabel* EntryPanel::addField(const QString& caption, QWidget* field)
{
    return addFields(caption, {field});
}

QLabel* EntryPanel::addFields(const QString& caption, const QList<QWidget*>& fields)
{
    const int row = m_fields->rowCount();
    const bool tall = qobject_cast<QPlainTextEdit*>(fields.first());
    auto* label = captionLabel(caption, fields.first());
    // The caption of a tall field stands beside its first line.
    label->setContentsMargins(0, tall ? 8 : 0, 0, 0);
    m_fields->addWidget(label, row, 0, tall ? Qt::AlignTop : Qt::AlignVCenter);
    auto* line = new QHBoxLayout;
    line->setSpacing(6);
    for (QWidget* field : fields)
        line->addWidget(field, field == fields.first() ? 1 : 0);
    m_fields->addLayout(line, row, 1);
    return label;
}

void EntryPanel::nextColumn()
{
    m_fields = new QGridLayout;
    m_fields->setHorizontalSpacing(12);
    m_fields->setVerticalSpacing(8);
    m_fields->setColumnStretch(1, 1);
    m_columns->addLayout(m_fields, 1);
    m_columns->setAlignment(m_fields, Qt::AlignTop);
}

void EntryPanel::addWide(QWidget* widget)
{
    m_fields->addWidget(widget, m_fields->rowCount(), 0, 1, 2);
}

CommandButton* EntryPanel::addAccept(QStringView family, int index, const QString& caption)
{
    CommandButton* button = addFootButton(family, index, u"ok", caption);
    button->setPrimary();
    button->setCommandShortcut(Qt::CTRL | Qt::Key_Return);
    return button;
}

CommandButton* EntryPanel::addCancel(QStringView family, int index, const QString& caption)
{
    return addFootButton(family, index, u"annuler", caption);
}

void EntryPanel::addButton(QWidget* button)
{
    constexpr int beforeTheStretch = 0;
    m_foot->insertWidget(beforeTheStretch, button);
}

CommandButton* EntryPanel::addFootButton(QStringView family, int index, QStringView icon, const QString& caption)
{
    auto* button = named(compactButton(icon, caption), family, index);
    m_foot->addWidget(button);
    return button;
}

} // namespace controls
