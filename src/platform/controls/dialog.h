#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>

#include <functional>

class QAbstractButton;
class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace controls {

/// The frame of every dialog: a title band, the body, the row of commands; centred on the screen and never larger
/// than it: on a screen too small for it the body scrolls between the title and the commands. Enter presses no button
/// by itself. Escape and the window's own cross press the cancel command: the first button given to `setCancel` that
/// can be seen and pressed; the handler of "Quitter" ends the dialog with `leave`.
class Dialog : public QDialog
{
    Q_OBJECT

public:
    /// `name` is the dialog's name in the program ("F_Bord"), `title` what the band and the window bear.
    Dialog(QStringView name, const QString& title, QWidget* parent = nullptr);

    void setTitle(const QString& title);
    /// The right part of the title band, for texts of the record in hand.
    QHBoxLayout* band() const { return m_band; }
    /// Where the dialog puts its panels, from top to bottom.
    QVBoxLayout* body() const { return m_body; }
    /// The row at the foot. A `CommandBar` goes in whole.
    QBoxLayout* commands() const { return m_commands; }

    /// The buttons that Escape stands for, the most pressing first: the cancel of a panel, then "Quitter".
    void setCancel(const QList<QAbstractButton*>& buttons);

    /// The foot of a dialog that asks: "OK", the action that counts, with Ctrl+Enter from anywhere, and "Annuler",
    /// which leaves. The buttons are named by a family and their indexes in it.
    void askAtFoot(const QString& family, int accept, int cancel, std::function<void()> accepted);

    /// Ends the dialog.
    void leave(int result = 0) { done(result); }

    void setVisible(bool visible) override;
    void done(int result) override;
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void scrollBody();

    QWidget* m_titleBand;
    QLabel* m_title;
    QHBoxLayout* m_band;
    QVBoxLayout* m_body;
    QBoxLayout* m_commands;
    QList<QPointer<QAbstractButton>> m_cancel;
    bool m_placed = false;
};

/// Puts a window in the middle of its screen, cut to the screen where it is larger.
void centre(QWidget* window);

} // namespace controls
