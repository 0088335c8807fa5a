#pragma once

#include <QKeySequence>
#include <QMap>
#include <QToolButton>

class QHBoxLayout;

namespace controls {

/// A tool button that Enter presses too, not the blank alone.
class KeyedButton : public QToolButton
{
    Q_OBJECT

public:
    using QToolButton::QToolButton;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// A command: a picture over its caption. A click does not take the focus from the field that has it; the keyboard
/// reaches it by Tab, by its letter with Alt, and by its shortcut.
class CommandButton : public KeyedButton
{
    Q_OBJECT

public:
    CommandButton(QStringView icon, const QString& caption, QWidget* parent = nullptr);

    /// The caption as it stands, without the mark of its letter.
    QString caption() const { return m_caption; }
    void setCaption(const QString& caption);
    QString iconName() const { return m_icon; }

    /// A shortcut of its own, told in the tool tip; without one the letter with Alt serves.
    void setCommandShortcut(const QKeySequence& shortcut);
    /// The letter that works with Alt: its place in the caption, -1 for none.
    void setMnemonic(qsizetype place);
    QChar mnemonic() const;

    /// The action that counts, in the warm accent.
    void setPrimary();
    /// The caption beside a smaller picture, for the buttons inside a panel.
    void setCompact();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showCaption();

    QString m_icon;
    QString m_caption;
    qsizetype m_mnemonic = -1;
    bool m_compact = false;
};

/// A button inside a panel: the caption beside a smaller picture.
CommandButton* compactButton(QStringView icon, const QString& caption, const QKeySequence& shortcut = {});

/// A small button with a picture alone, beside a field: the calendar of a date, the search of a client. The name is
/// read by accessibility tools and shown as its tool tip.
QToolButton* iconButton(QStringView icon, const QString& name, const QKeySequence& shortcut = {});

/// A row of commands of one family, `Crecettes(0)`, `Crecettes(1)`... Each gets a letter of its caption that no other
/// of the row has.
class CommandBar : public QWidget
{
    Q_OBJECT

public:
    explicit CommandBar(const QString& family = QStringLiteral("Crecettes"), QWidget* parent = nullptr);

    CommandButton* add(int index, QStringView icon, const QString& caption, const QKeySequence& shortcut = {});
    /// What follows stands at the right end.
    void addStretch();
    void addGap();

    CommandButton* button(int index) const;

    /// Hides or shows every command; an empty row takes no room.
    void hideAll() { setAllVisible(false); }
    void showAll() { setAllVisible(true); }
    void setAllVisible(bool visible);
    void setAllEnabled(bool enabled);

signals:
    void triggered(int index);

private:
    qsizetype freeLetter(const QString& caption) const;

    QString m_family;
    QHBoxLayout* m_row;
    QMap<int, CommandButton*> m_buttons;
};

} // namespace controls
