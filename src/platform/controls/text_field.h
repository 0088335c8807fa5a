#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

namespace controls {

/// One line of entry that takes only the keys of its kind, typed or pasted. Text set by the program is not filtered.
/// The whole text is selected on entry.
class TextField : public QLineEdit
{
    Q_OBJECT

public:
    enum class Kind
    {
        Free,
        Digits,
        Amount, ///< right-aligned; the comma is typed as the point
        Date,   ///< dd/mm/yyyy of which only the digits are typed; a refused key beeps
        Capitals,
        FirstCapital, ///< only the first letter is raised
    };

    explicit TextField(Kind kind = Kind::Free, QWidget* parent = nullptr);
    explicit TextField(Kind kind, int maxLength, QWidget* parent = nullptr);

    Kind kind() const { return m_kind; }

    /// Backspace empties the whole field rather than taking its last character.
    void setBackspaceClears(bool clears) { m_backspaceClears = clears; }

    QSize sizeHint() const override;

signals:
    /// The focus came to the field, and left it for another control. A message or another window that passes in
    /// front of the dialog, a field hidden or disabled, are no leaving.
    void entered();
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void takeTyped(const QString& typed);
    bool takeKey(int key);
    bool takeDateKey(int key);
    void takePasted();
    QString textBesideSelection() const;

    Kind m_kind;
    bool m_backspaceClears = false;
    bool m_entered = false;
    bool m_selectOnRelease = false;
};

/// Several lines: Enter stays in the field, Tab leaves it.
class MemoField : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit MemoField(QWidget* parent = nullptr);
    explicit MemoField(int maxLength, QWidget* parent = nullptr);

    QString text() const { return toPlainText(); }
    void setText(const QString& text) { setPlainText(text); }
    bool atFirstLine() const;
    bool atLastLine() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void cutToLength();
    int heightOf(int lines) const;

    int m_maxLength;
};

} // namespace controls
