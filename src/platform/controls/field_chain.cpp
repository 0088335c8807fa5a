#include "platform/controls/field_chain.h"

#include "platform/controls/text_field.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>

namespace controls {

namespace {

bool canTakeFocus(const QWidget* field)
{
    return field && field->isEnabled() && field->isVisibleTo(field->window()) && field->focusPolicy() != Qt::NoFocus;
}

} // namespace

FieldChain::FieldChain(QObject* parent)
    : QObject(parent)
{}

void FieldChain::add(QWidget* field)
{
    if (!m_fields.isEmpty())
        QWidget::setTabOrder(m_fields.last(), field);
    m_fields.append(field);
    field->installEventFilter(this);
}

void FieldChain::add(const QList<QWidget*>& fields)
{
    for (QWidget* field : fields)
        add(field);
}

void FieldChain::atLast(std::function<void()> action)
{
    m_atLast = std::move(action);
}

void FieldChain::onKey(Qt::Key key, Action action)
{
    m_actions.insert(key, std::move(action));
}

void FieldChain::onKey(Qt::Key key, int position, std::function<void()> action)
{
    m_actionsAt.insert({key, position}, std::move(action));
}

void FieldChain::limit(Qt::Key key, int first, int last)
{
    m_limits.insert(key, {first, last});
}

int FieldChain::current() const
{
    for (int position = 0; position < count(); ++position) {
        if (m_fields[position] && m_fields[position]->hasFocus())
            return position;
    }
    return -1;
}

void FieldChain::goTo(int position)
{
    if (QWidget* target = field(position))
        target->setFocus(Qt::TabFocusReason);
}

bool FieldChain::goNext(int position)
{
    return move(position, +1);
}

bool FieldChain::goPrevious(int position)
{
    return move(position, -1);
}

bool FieldChain::move(int position, int step)
{
    for (int next = position + step; next >= 0 && next < count(); next += step) {
        if (canTakeFocus(m_fields[next])) {
            goTo(next);
            return true;
        }
    }
    return false;
}

bool FieldChain::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* typed = static_cast<QKeyEvent*>(event);
    if ((typed->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    const auto key = typed->key() == Qt::Key_Enter ? Qt::Key_Return : static_cast<Qt::Key>(typed->key());
    return act(static_cast<int>(m_fields.indexOf(watched)), key);
}

/// True when the chain has dealt with the key, which then does not reach the field.
bool FieldChain::act(int position, Qt::Key key)
{
    if (position < 0)
        return false;
    if (const auto action = m_actionsAt.value({key, position})) {
        action();
        return true;
    }
    if (keepsKey(position, key))
        return false;
    if (const auto limits = m_limits.constFind(key);
        limits != m_limits.constEnd() && (position < limits->first || position > limits->last))
        return true;
    if (const Action action = m_actions.value(key)) {
        action(position);
        return true;
    }
    switch (key) {
    case Qt::Key_Return:
        if (!goNext(position) && m_atLast)
            m_atLast();
        return true;
    case Qt::Key_Up:
        goPrevious(position);
        return true;
    case Qt::Key_Down:
        goNext(position);
        return true;
    default:
        return false;
    }
}

/// Keys that the field needs for itself: the lines of a memo, the entries of a combo box.
bool FieldChain::keepsKey(int position, Qt::Key key) const
{
    const QWidget* widget = m_fields[position];
    if (const auto* memo = qobject_cast<const MemoField*>(widget)) {
        return key == Qt::Key_Return || key == Qt::Key_Left || key == Qt::Key_Right ||
               (key == Qt::Key_Up && !memo->atFirstLine()) || (key == Qt::Key_Down && !memo->atLastLine());
    }
    const bool ofItsOwn = qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget);
    return ofItsOwn && key != Qt::Key_Return;
}

} // namespace controls
