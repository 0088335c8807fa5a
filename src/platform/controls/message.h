#pragma once

#include <QDialog>

#include <functional>
#include <optional>

class QPushButton;

namespace controls {

enum class MessageIcon
{
    None,
    Stop,
    Warning,
    Information,
    Question
};

enum class Buttons
{
    Ok,
    OkCancel,
    YesNo,
    YesNoCancel
};

enum class Answer
{
    Ok,
    Cancel,
    Yes,
    No
};

struct MessageText
{
    QString text;
    QString title; ///< empty: the box bears the program's name
    MessageIcon icon = MessageIcon::None;
    Buttons buttons = Buttons::Ok;

    friend bool operator==(const MessageText&, const MessageText&) = default;
};

/// The message box, named `Message`. Enter presses the button in focus, at first "OK" or "Oui"; O and N answer "Oui"
/// and "Non"; Escape answers "Annuler" where there is one, else "Non", else "OK". The focus returns to where it was.
class Message : public QDialog
{
    Q_OBJECT

public:
    static Answer show(QWidget* parent, const MessageText& message);
    static Answer show(QWidget* parent, const QString& text, const QString& title = {},
                       MessageIcon icon = MessageIcon::None, Buttons buttons = Buttons::Ok);

    /// A question with "Oui" and "Non"; true for "Oui".
    static bool confirm(QWidget* parent, const QString& text, const QString& title = QStringLiteral("Confirmation"));

    /// Answers in place of the person: a test's or the demonstration's. An empty script shows the boxes again.
    /// Returns the script that stood before.
    using Script = std::function<Answer(const MessageText&)>;
    static Script setScript(Script script);

    Message(QWidget* parent, const MessageText& message);

    Answer answer() const { return m_answer; }

    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* addButton(Answer answer);
    void take(Answer answer);

    Answer m_answer;
    Buttons m_buttons;
};

/// What a box with these buttons answers to Escape.
Answer escapeAnswer(Buttons buttons);
/// Whether a box with these buttons can give the answer.
bool canAnswer(Buttons buttons, Answer answer);

} // namespace controls
