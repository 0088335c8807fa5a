#include "platform/controls/message.h"

#include "platform/controls/icons.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <utility>

namespace controls {

using namespace Qt::StringLiterals;

namespace {

Message::Script& script()
{
    static Message::Script current;
    return current;
}

QList<Answer> answersOf(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok:
        return {Answer::Ok};
    case Buttons::OkCancel:
        return {Answer::Ok, Answer::Cancel};
    case Buttons::YesNo:
        return {Answer::Yes, Answer::No};
    case Buttons::YesNoCancel:
        return {Answer::Yes, Answer::No, Answer::Cancel};
    }
    return {};
}

QString captionOf(Answer answer)
{
    switch (answer) {
    case Answer::Ok:
        return u"OK"_s;
    case Answer::Cancel:
        return u"Annuler"_s;
    case Answer::Yes:
        return u"Oui"_s;
    case Answer::No:
        return u"Non"_s;
    }
    return {};
}

QIcon pictureOf(MessageIcon picture)
{
    switch (picture) {
    case MessageIcon::Stop:
        return icon(u"message-arret", colour::owed);
    case MessageIcon::Warning:
        return icon(u"message-attention", colour::accent);
    case MessageIcon::Information:
        return icon(u"message-information", colour::blue);
    case MessageIcon::Question:
        return icon(u"message-question", colour::blue);
    case MessageIcon::None:
        break;
    }
    return {};
}

/// The text as wide as its longest line, within bounds, and as high as it then needs.
QLabel* textLabel(const QString& text)
{
    constexpr int widest = 520;
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    const int width = qMin(label->fontMetrics().boundingRect(QRect(0, 0, 4000, 4000), 0, text).width() + 8, widest);
    label->setFixedWidth(width);
    label->setMinimumHeight(label->heightForWidth(width));
    return named(label, u"Texte");
}

} // namespace

Answer escapeAnswer(Buttons buttons)
{
    return answersOf(buttons).last();
}

bool canAnswer(Buttons buttons, Answer answer)
{
    return answersOf(buttons).contains(answer);
}

Answer Message::show(QWidget* parent, const MessageText& message)
{
    if (script())
        return script()(message);
    const QPointer<QWidget> focus = QApplication::focusWidget();
    Message box(parent, message);
    box.exec();
    if (focus) {
        focus->activateWindow();
        focus->setFocus(Qt::ActiveWindowFocusReason);
    }
    return box.answer();
}

Answer Message::show(QWidget* parent, const QString& text, const QString& title, MessageIcon icon, Buttons buttons)
{
    return show(parent, {text, title, icon, buttons});
}

bool Message::confirm(QWidget* parent, const QString& text, const QString& title)
{
    return show(parent, {text, title, MessageIcon::Question, Buttons::YesNo}) == Answer::Yes;
}

Message::Script Message::setScript(Script next)
{
    return std::exchange(script(), std::move(next));
}

Message::Message(QWidget* parent, const MessageText& message)
    : QDialog(parent)
    , m_answer(escapeAnswer(message.buttons))
    , m_buttons(message.buttons)
{
    named(this, u"Message");
    setWindowTitle(message.title.isEmpty() ? u"TALOR"_s : message.title);

    auto* line = new QHBoxLayout;
    line->setSpacing(16);
    if (message.icon != MessageIcon::None) {
        auto* picture = named(new QLabel, u"Icone");
        picture->setPixmap(pictureOf(message.icon).pixmap(QSize(40, 40), devicePixelRatioF()));
        line->addWidget(picture, 0, Qt::AlignTop);
    }
    line->addWidget(textLabel(message.text), 1, Qt::AlignVCenter);

    auto* choices = new QHBoxLayout;
    choices->setSpacing(8);
    choices->addStretch();
    QList<QPushButton*> buttons;
    for (const Answer each : answersOf(message.buttons)) {
        buttons.append(addButton(each));
        choices->addWidget(buttons.last());
    }

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 16);
    column->setSpacing(18);
    column->addLayout(line);
    column->addLayout(choices);
    column->setSizeConstraint(QLayout::SetFixedSize);
    buttons.first()->setFocus();
}

QPushButton* Message::addButton(Answer answer)
{
    auto* button = named(new QPushButton(captionOf(answer)), captionOf(answer));
    button->setMinimumWidth(96);
    const bool first = answer == Answer::Ok || answer == Answer::Yes;
    button->setDefault(first);
    if (first)
        setRole(button, Role::Primary);
    connect(button, &QPushButton::clicked, this, [this, answer] { take(answer); });
    return button;
}

void Message::take(Answer answer)
{
    m_answer = answer;
    accept();
}

void Message::reject()
{
    take(escapeAnswer(m_buttons));
}

void Message::keyPressEvent(QKeyEvent* event)
{
    const Answer typed = event->key() == Qt::Key_O ? Answer::Yes : Answer::No;
    if ((event->key() == Qt::Key_O || event->key() == Qt::Key_N) && canAnswer(m_buttons, typed))
        take(typed);
    else
        QDialog::keyPressEvent(event);
}

} // namespace controls
