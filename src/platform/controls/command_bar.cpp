#include "platform/controls/command_bar.h"

#include "platform/controls/icons.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QStyleOptionToolButton>
#include <QStylePainter>

#include <algorithm>
#include <utility>

namespace controls {

using namespace Qt::StringLiterals;

namespace {
constexpr QSize commandIcon{28, 28};
constexpr QSize smallIcon{20, 20};
} // namespace

void KeyedButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QToolButton::keyPressEvent(event);
}

CommandButton::CommandButton(QStringView icon, const QString& caption, QWidget* parent)
    : KeyedButton(parent)
    , m_icon(icon.toString())
    , m_caption(caption)
{
    setIcon(controls::icon(icon));
    setIconSize(commandIcon);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setFocusPolicy(Qt::TabFocus);
    setProperty("command", true);
    showCaption();
}

void CommandButton::setCaption(const QString& caption)
{
    m_caption = caption;
    m_mnemonic = -1;
    showCaption();
}

void CommandButton::setMnemonic(qsizetype place)
{
    m_mnemonic = place;
    showCaption();
}

QChar CommandButton::mnemonic() const
{
    return m_mnemonic < 0 ? QChar() : m_caption.at(m_mnemonic).toUpper();
}

void CommandButton::showCaption()
{
    QString shown = m_caption;
    shown.replace(u"&"_s, u"&&"_s);
    if (m_mnemonic >= 0)
        shown.insert(m_mnemonic, u'&');
    setText(shown);
    setAccessibleName(m_caption.trimmed());
    setToolTip({});
}

void CommandButton::setCommandShortcut(const QKeySequence& shortcut)
{
    if (shortcut.isEmpty())
        return;
    // Beside the letter, which QAbstractButton keeps in its only shortcut.
    auto* key = new QShortcut(shortcut, this);
    connect(key, &QShortcut::activated, this, &QToolButton::click);
    setToolTip(u"%1 (%2)"_s.arg(m_caption.trimmed(), shortcut.toString(QKeySequence::NativeText)));
}

void CommandButton::setPrimary()
{
    setRole(this, Role::Primary);
    setIcon(controls::icon(m_icon, colour::paper));
}

void CommandButton::setCompact()
{
    m_compact = true;
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize(smallIcon);
    updateGeometry();
}

QSize CommandButton::sizeHint() const
{
    constexpr QSize tall{84, 62};
    constexpr QSize flat{96, 36};
    return QToolButton::sizeHint().expandedTo(m_compact ? flat : tall);
}

/// A tool button sets a caption beside its picture to the left; here both stand in the middle, as in every button.
void CommandButton::paintEvent(QPaintEvent* event)
{
    if (!m_compact) {
        QToolButton::paintEvent(event);
        return;
    }
    constexpr int gap = 7;
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const QString caption = std::exchange(option.text, {});
    const QIcon picture = std::exchange(option.icon, {});
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    const int textWidth = option.fontMetrics.size(Qt::TextShowMnemonic, caption).width();
    QRect place(0, 0, iconSize().width() + gap + textWidth, height());
    place.moveCenter(rect().center());
    picture.paint(&painter, QRect(place.topLeft(), QSize(iconSize().width(), height())), Qt::AlignCenter,
                  isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const bool primary = property("role").isValid();
    painter.setPen(!isEnabled() ? colour::disabled : primary ? colour::paper : colour::ink);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter | Qt::TextShowMnemonic, caption);
}

CommandButton* compactButton(QStringView icon, const QString& caption, const QKeySequence& shortcut)
{
    auto* button = new CommandButton(icon, caption);
    button->setCompact();
    if (!shortcut.isEmpty())
        button->setCommandShortcut(shortcut);
    return button;
}

QToolButton* iconButton(QStringView name, const QString& spoken, const QKeySequence& shortcut)
{
    auto* button = new KeyedButton;
    button->setIcon(icon(name));
    button->setIconSize(smallIcon);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(spoken);
    button->setToolTip(spoken);
    if (!shortcut.isEmpty()) {
        // At once: the button's own shortcut would press it for a tenth of a second first.
        QObject::connect(new QShortcut(shortcut, button), &QShortcut::activated, button, &QToolButton::click);
        button->setToolTip(u"%1 (%2)"_s.arg(spoken, shortcut.toString(QKeySequence::NativeText)));
    }
    return button;
}

CommandBar::CommandBar(const QString& family, QWidget* parent)
    : QWidget(parent)
    , m_family(family)
    , m_row(new QHBoxLayout(this))
{
    m_row->setContentsMargins({});
    m_row->setSpacing(6);
}

CommandButton* CommandBar::add(int index, QStringView icon, const QString& caption, const QKeySequence& shortcut)
{
    auto* button = named(new CommandButton(icon, caption), m_family, index);
    button->setMnemonic(freeLetter(caption));
    button->setCommandShortcut(shortcut);
    connect(button, &QToolButton::clicked, this, [this, index] { emit triggered(index); });
    m_row->addWidget(button);
    m_buttons.insert(index, button);
    return button;
}

void CommandBar::addStretch()
{
    m_row->addStretch();
}

void CommandBar::addGap()
{
    m_row->addSpacing(18);
}

CommandButton* CommandBar::button(int index) const
{
    Q_ASSERT(m_buttons.contains(index));
    return m_buttons.value(index);
}

void CommandBar::setAllVisible(bool visible)
{
    for (CommandButton* button : std::as_const(m_buttons))
        button->setVisible(visible);
}

void CommandBar::setAllEnabled(bool enabled)
{
    for (CommandButton* button : std::as_const(m_buttons))
        button->setEnabled(enabled);
}

/// First letter of a word before any other letter.
qsizetype CommandBar::freeLetter(const QString& caption) const
{
    const auto isFree = [this](QChar letter) {
        return letter.isLetter() && letter.unicode() < 128 &&
               std::none_of(m_buttons.cbegin(), m_buttons.cend(),
                            [letter](const CommandButton* other) { return other->mnemonic() == letter.toUpper(); });
    };
    for (const bool startOnly : {true, false}) {
        for (qsizetype place = 0; place < caption.size(); ++place) {
            const bool start = place == 0 || caption.at(place - 1).isSpace();
            if ((start || !startOnly) && isFree(caption.at(place)))
                return place;
        }
    }
    return -1;
}

} // namespace controls
