#include "platform/controls/text_field.h"

#include "platform/services/sound.h"
#include "platform/text/keys.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>

#include <memory>

namespace controls {

namespace {

constexpr int dateLength = 10;
constexpr int anyLength = 32767;

/// A window that passes in front gives the focus back: neither is an entry nor a leaving.
bool ofAnotherWindow(const QFocusEvent& event)
{
    return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason;
}

bool isTyped(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const bool command = modifiers == Qt::ControlModifier || modifiers == Qt::AltModifier;
    return !command && !event.text().isEmpty() && event.text().front().isPrint();
}

} // namespace

TextField::TextField(Kind kind, QWidget* parent)
    : TextField(kind, kind == Kind::Date ? dateLength : anyLength, parent)
{}

TextField::TextField(Kind kind, int maxLength, QWidget* parent)
    : QLineEdit(parent)
    , m_kind(kind)
{
    setMaxLength(maxLength);
    if (kind == Kind::Amount)
        setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (kind == Kind::Date)
        setPlaceholderText(QStringLiteral("jj/mm/aaaa"));
}

QSize TextField::sizeHint() const
{
    int characters = 22;
    if (m_kind == Kind::Date || m_kind == Kind::Digits)
        characters = 11;
    else if (m_kind == Kind::Amount)
        characters = 14;
    const QSize size = QLineEdit::sizeHint();
    return {fontMetrics().horizontalAdvance(QString(qMin(characters, maxLength() + 1), u'0')) + size.height(),
            size.height()};
}

void TextField::keyPressEvent(QKeyEvent* event)
{
    if (isReadOnly() || m_kind == Kind::Free) {
        QLineEdit::keyPressEvent(event);
    } else if (event->matches(QKeySequence::Paste)) {
        takePasted();
    } else if (m_backspaceClears && event->key() == Qt::Key_Backspace) {
        selectAll();
        del();
    } else if (isTyped(*event)) {
        takeTyped(event->text());
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void TextField::inputMethodEvent(QInputMethodEvent* event)
{
    if (m_kind == Kind::Free || event->commitString().isEmpty() || isReadOnly())
        QLineEdit::inputMethodEvent(event);
    else
        takeTyped(event->commitString());
}

void TextField::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    if (auto* paste = menu->findChild<QAction*>(QStringLiteral("edit-paste")); paste && m_kind != Kind::Free) {
        paste->disconnect();
        connect(paste, &QAction::triggered, this, &TextField::takePasted);
    }
    menu->exec(event->globalPos());
}

void TextField::dropEvent(QDropEvent* event)
{
    if (m_kind == Kind::Free || isReadOnly()) {
        QLineEdit::dropEvent(event);
        return;
    }
    takeTyped(event->mimeData()->text());
    event->acceptProposedAction();
}

void TextField::takePasted()
{
    takeTyped(QGuiApplication::clipboard()->text());
}

void TextField::takeTyped(const QString& typed)
{
    bool refused = false;
    for (const QChar character : typed)
        refused = !takeKey(character.unicode()) || refused;
    if (refused && m_kind == Kind::Date)
        services::sound::beep();
}

bool TextField::takeKey(int key)
{
    switch (m_kind) {
    case Kind::Free:
        break;
    case Kind::Digits:
        if (!text::acceptsDigit(key))
            return false;
        break;
    case Kind::Amount:
        key = text::filterAmount(textBesideSelection(), key);
        if (key == 0)
            return false;
        break;
    case Kind::Date:
        return takeDateKey(key);
    case Kind::Capitals:
        key = text::capital(key);
        break;
    case Kind::FirstCapital:
        key = text::firstCapital(textBesideSelection(), key);
        break;
    }
    if (key >= ' ')
        insert(QChar(key));
    return true;
}

bool TextField::takeDateKey(int key)
{
    // The bar that stands already where another is typed or pasted.
    if (key == '/' && text().endsWith(u'/') && !hasSelectedText())
        return true;
    if (!text::acceptsDateKey(textBesideSelection().size(), key))
        return false;
    // A bar taken away by backspace comes back before the next figure.
    if (!hasSelectedText() && cursorPosition() == text().size() && key != '/') {
        const QString barred = text::barDate(text());
        if (barred != text() && !text::acceptsDateKey(barred.size(), key))
            return false;
        insert(barred.mid(text().size()));
    }
    insert(QChar(key));
    if (cursorPosition() == text().size())
        insert(text::barDate(text()).mid(text().size()));
    return true;
}

QString TextField::textBesideSelection() const
{
    return hasSelectedText() ? text().remove(selectionStart(), selectionLength()) : text();
}

void TextField::mouseReleaseEvent(QMouseEvent* event)
{
    // The middle button would paste the desktop's selection unfiltered.
    if (event->button() == Qt::MiddleButton && m_kind != Kind::Free)
        return;
    QLineEdit::mouseReleaseEvent(event);
    if (m_selectOnRelease && !hasSelectedText())
        selectAll();
    m_selectOnRelease = false;
}

void TextField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (m_entered)
        return;
    m_entered = true;
    m_selectOnRelease = event->reason() == Qt::MouseFocusReason;
    selectAll();
    emit entered();
}

void TextField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (!m_entered || (ofAnotherWindow(*event) && isVisible()))
        return;
    m_entered = false;
    m_selectOnRelease = false;
    if (isVisible() && isEnabled())
        emit left();
}

MemoField::MemoField(QWidget* parent)
    : MemoField(anyLength, parent)
{}

MemoField::MemoField(int maxLength, QWidget* parent)
    : QPlainTextEdit(parent)
    , m_maxLength(maxLength)
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &MemoField::cutToLength);
}

bool MemoField::atFirstLine() const
{
    QTextCursor cursor = textCursor();
    return !cursor.movePosition(QTextCursor::Up);
}

bool MemoField::atLastLine() const
{
    QTextCursor cursor = textCursor();
    return !cursor.movePosition(QTextCursor::Down);
}

QSize MemoField::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 34, heightOf(3)};
}

QSize MemoField::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 16, heightOf(2)};
}

int MemoField::heightOf(int lines) const
{
    constexpr int borderAndPadding = 8;
    return lines * fontMetrics().lineSpacing() + 2 * static_cast<int>(document()->documentMargin()) + borderAndPadding;
}

void MemoField::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && !ofAnotherWindow(*event))
        selectAll();
}

void MemoField::cutToLength()
{
    const QString typed = toPlainText();
    if (typed.size() <= m_maxLength)
        return;
    QTextCursor cursor = textCursor();
    const int excess = static_cast<int>(typed.size()) - m_maxLength;
    cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, excess);
    cursor.removeSelectedText();
}

} // namespace controls
