#pragma once

#include "tests/support/print.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>

/// A dialog worked as a person works it: controls by their names, keys, clicks, and what opens over it.

/// The control of this name. One that is absent, or of another class, ends the test with its name.
template<class Control = QWidget> Control* control(QWidget* root, const QString& name)
{
    const auto found = root->findChildren<QWidget*>(name);
    if (found.isEmpty())
        throw std::runtime_error("No control named " + name.toStdString() + " in " + root->objectName().toStdString());
    if (found.size() > 1)
        throw std::runtime_error("Several controls named " + name.toStdString());
    auto* typed = dynamic_cast<Control*>(found.first());
    if (!typed)
        throw std::runtime_error(name.toStdString() + " is a " + found.first()->metaObject()->className());
    return typed;
}

template<class Control = QWidget> Control* control(QWidget& root, const QString& name)
{
    return control<Control>(&root, name);
}

/// What a label, a field or a button reads; of a list of choices, the one in hand.
inline QString textOf(QWidget& root, const QString& name)
{
    const QWidget* shown = control(root, name);
    for (const char* property : {"currentText", "text"}) {
        if (const QVariant text = shown->property(property); text.isValid())
            return text.toString();
    }
    throw std::runtime_error(name.toStdString() + " reads nothing");
}

inline bool isShown(QWidget& root, const QString& name)
{
    return control(root, name)->isVisible();
}

/// The name of the control that has the focus; "" when none has it.
inline QString focusOf(QWidget& window)
{
    return window.focusWidget() ? window.focusWidget()->objectName() : QString();
}

/// Shows a window and waits until the keys go to it.
inline void show(QWidget& window)
{
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window)) << window.objectName().toStdString();
}

/// Presses a key where the focus is.
inline void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QWidget* focus = window.window()->focusWidget();
    QTest::keyClick(focus ? focus : &window, key, modifiers);
}

inline void press(QWidget* window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    press(*window, key, modifiers);
}

/// Types a text, key by key, into a control that takes the focus first.
inline void type(QWidget* field, const QString& text)
{
    field->setFocus(Qt::TabFocusReason);
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(character), Qt::NoModifier);
}

inline void type(QWidget& root, const QString& name, const QString& text)
{
    type(control(root, name), text);
}

/// Clicks a control in its middle; one that cannot be seen or pressed fails the test.
inline void click(QWidget* target)
{
    EXPECT_TRUE(target->isVisible() && target->isEnabled()) << target->objectName().toStdString();
    QTest::mouseClick(target, Qt::LeftButton);
}

inline void click(QWidget& root, const QString& name)
{
    click(control(root, name));
}

/// Clicks a row of a list.
inline void clickRow(QWidget& root, const QString& list, int row)
{
    auto* view = control<QAbstractItemView>(root, list);
    const QModelIndex place = view->model()->index(row, 0);
    view->scrollTo(place);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(place).center());
}

/// Clicks the keys of a pad: digits, and the point, which is its eleventh.
inline void clickPad(QWidget& root, const QString& family, const QString& number)
{
    for (const QChar c : number)
        click(root, QStringLiteral("%1(%2)").arg(family).arg(c == u'.' ? 10 : c.digitValue()));
}

/// Waits for a modal dialog; see `whenOpened`.
template<class Wanted> class WhenOpened
{
public:
    explicit WhenOpened(std::function<void(Wanted&)> work)
        : m_state(std::make_shared<State>())
    {
        m_state->work = std::move(work);
        m_timer.setInterval(1);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [state = m_state] { look(*state); });
        m_timer.start();
    }

    ~WhenOpened()
    {
        if (!m_state->opened)
            ADD_FAILURE() << "The dialog never opened: " << Wanted::staticMetaObject.className();
    }

    WhenOpened(const WhenOpened&) = delete;
    WhenOpened& operator=(const WhenOpened&) = delete;

private:
    struct State
    {
        std::function<void(Wanted&)> work;
        bool opened = false;
    };

    static void look(State& state)
    {
        static constexpr const char* taken = "takenByTest";
        auto* dialog = dynamic_cast<Wanted*>(QApplication::activeModalWidget());
        if (state.opened || !dialog || !dialog->isActiveWindow() || dialog->property(taken).toBool())
            return;
        state.opened = true;
        dialog->setProperty(taken, true);
        const QPointer<QWidget> still = dialog;
        try {
            state.work(*dialog);
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
        if (still && still->isVisible()) {
            ADD_FAILURE() << "The dialog was left open: " << still->objectName().toStdString();
            qobject_cast<QDialog*>(still)->done(QDialog::Rejected);
        }
    }

    QTimer m_timer;
    std::shared_ptr<State> m_state;
};

/// Does the work in the next modal dialog of this class that opens while the value lives; the work must close it. For a
/// dialog that a call opens and waits for:
///
///     const auto chosen = whenOpened<Q_Client>([](Q_Client& d) { press(d, Qt::Key_Return); });
///     click(dialog, u"Image22(3)"_s);
template<class Wanted, class Work> [[nodiscard]] WhenOpened<Wanted> whenOpened(Work work)
{
    return WhenOpened<Wanted>(std::move(work));
}
