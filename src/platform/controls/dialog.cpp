#include "platform/controls/dialog.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>

namespace controls {

using namespace Qt::StringLiterals;

namespace {

/// What a window may take of a screen. The window system's own frame is known only once the window is shown; this is
/// what one takes at most.
QSize roomOn(const QScreen* screen)
{
    constexpr QSize frame{8, 40};
    return screen->availableGeometry().size() - frame;
}

bool fits(QSize size, QSize room)
{
    return size.boundedTo(room) == size;
}

/// With as much of what is around it as there is room for: a field comes with its panel and the panel's buttons.
void bringIntoView(QScrollArea* area, QWidget* entered)
{
    constexpr int aroundTheCursor = 20; // a field is brought into view by its cursor alone
    QWidget* around = entered;
    while (around->parentWidget() != area->widget() && fits(around->parentWidget()->size(), area->viewport()->size()))
        around = around->parentWidget();
    area->ensureWidgetVisible(around, 0, around == entered ? aroundTheCursor : 0);
}

} // namespace

Dialog::Dialog(QStringView name, const QString& title, QWidget* parent)
    : QDialog(parent)
    , m_titleBand(new QWidget)
    , m_title(named(new QLabel, u"Titre"))
    , m_band(new QHBoxLayout)
    , m_body(new QVBoxLayout)
    , m_commands(new QHBoxLayout)
{
    named(this, name);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setRole(m_titleBand, Role::Title);
    m_titleBand->setAttribute(Qt::WA_StyledBackground);
    setRole(m_title, Role::Title);
    setTitle(title);

    auto* head = new QHBoxLayout(m_titleBand);
    head->setContentsMargins(16, 8, 16, 8);
    head->setSpacing(16);
    head->addWidget(m_title);
    head->addStretch();
    head->addLayout(m_band);

    m_body->setSpacing(12);
    m_commands->setSpacing(6);

    auto* content = new QVBoxLayout;
    content->setContentsMargins(16, 12, 16, 12);
    content->setSpacing(12);
    content->addLayout(m_body, 1);
    content->addLayout(m_commands);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_titleBand);
    column->addLayout(content, 1);
}

void Dialog::setTitle(const QString& title)
{
    setWindowTitle(title.trimmed());
    m_title->setText(title.trimmed());
}

void Dialog::setCancel(const QList<QAbstractButton*>& buttons)
{
    m_cancel = QList<QPointer<QAbstractButton>>(buttons.cbegin(), buttons.cend());
}

void Dialog::askAtFoot(const QString& family, int accept, int cancel, std::function<void()> accepted)
{
    auto* bar = new CommandBar(family);
    bar->addStretch();
    bar->add(accept, u"ok", u"OK"_s, Qt::CTRL | Qt::Key_Return)->setPrimary();
    setCancel({bar->add(cancel, u"annuler", u"Annuler"_s)});
    m_commands->addWidget(bar);
    connect(bar, &CommandBar::triggered, this, [this, accept, accepted = std::move(accepted)](int pressed) {
        if (pressed == accept)
            accepted();
        else
            leave();
    });
}

void Dialog::done(int result)
{
    QDialog::done(result);
    // Not every window system gives the caller its turn back by itself.
    if (parentWidget())
        parentWidget()->activateWindow();
}

void Dialog::reject()
{
    if (m_cancel.isEmpty()) {
        QDialog::reject();
        return;
    }
    for (const auto& button : std::as_const(m_cancel)) {
        if (button && button->isVisible() && button->isEnabled()) {
            button->click();
            return;
        }
    }
}

void Dialog::setVisible(bool visible)
{
    if (visible && !std::exchange(m_placed, true)) {
        // The style sheet gives the controls their true sizes.
        ensurePolished();
        for (const QWidget* inner : findChildren<QWidget*>())
            inner->ensurePolished();
        int wanted = sizeHint().height();
        const QSize room = roomOn(screen());
        if (minimumSizeHint().width() > room.width())
            wanted += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        if (!fits(minimumSizeHint(), room))
            scrollBody();
        // Qt would hold a window that nobody has resized to two thirds of the screen.
        if (!testAttribute(Qt::WA_Resized))
            resize(sizeHint().width(), wanted);
        centre(this);
    }
    QDialog::setVisible(visible);
}

/// What has the focus stays in view.
void Dialog::scrollBody()
{
    // Each has its place in the dialog before it takes anything in, so that the order of Tab stays.
    auto* area = new QScrollArea(this);
    auto* inside = new QWidget(this);
    QWidget* const focus = focusWidget();
    auto* content = static_cast<QBoxLayout*>(layout()->itemAt(1)->layout());
    content->removeItem(m_body);
    m_body->setParent(nullptr);
    inside->setLayout(m_body);
    m_body->setContentsMargins(0, 0, 4, 0);
    inside->setAutoFillBackground(false);

    area->setWidget(inside);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->viewport()->setAutoFillBackground(false);
    // Only what is too wide for the screen scrolls sideways too.
    const int whole = inside->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width();
    const QMargins around = content->contentsMargins();
    area->setMinimumWidth(qMin(whole, roomOn(screen()).width() - around.left() - around.right()));
    content->insertWidget(0, area, 1);
    if (focus)
        focus->setFocus();
    connect(qApp, &QApplication::focusChanged, area, [area, inside](QWidget*, QWidget* entered) {
        if (entered && inside->isAncestorOf(entered))
            bringIntoView(area, entered);
    });
}

void Dialog::keyPressEvent(QKeyEvent* event)
{
    // Enter walks through fields; it must never press a button that nobody looks at.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
    else
        QDialog::keyPressEvent(event);
}

void centre(QWidget* window)
{
    const QRect screen = window->screen()->availableGeometry();
    window->resize(window->size().boundedTo(roomOn(window->screen())));
    window->move(screen.x() + (screen.width() - window->width()) / 2,
                 screen.y() + (screen.height() - window->height()) / 2);
}

} // namespace controls
