#include "platform/controls/text_field.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

#include <gtest/gtest-spi.h>

#include <QPushButton>

using namespace Qt::StringLiterals;
using controls::Answer;
using controls::Buttons;
using controls::Message;
using controls::MessageIcon;

TEST(Message, IsAnsweredByTheKeyboard)
{
    const RealMessages real;
    const struct
    {
        Buttons buttons;
        Qt::Key key;
        Answer answer;
    } cases[] = {
        {Buttons::Ok, Qt::Key_Return, Answer::Ok},
        {Buttons::Ok, Qt::Key_Enter, Answer::Ok},
        {Buttons::Ok, Qt::Key_Escape, Answer::Ok},
        {Buttons::OkCancel, Qt::Key_Return, Answer::Ok},
        {Buttons::OkCancel, Qt::Key_Escape, Answer::Cancel},
        {Buttons::YesNo, Qt::Key_Return, Answer::Yes},
        {Buttons::YesNo, Qt::Key_O, Answer::Yes},
        {Buttons::YesNo, Qt::Key_N, Answer::No},
        {Buttons::YesNo, Qt::Key_Escape, Answer::No},
        {Buttons::YesNoCancel, Qt::Key_Escape, Answer::Cancel},
    };
    for (const auto& c : cases) {
        const auto opened = whenOpened<Message>([&](Message& box) { press(box, c.key); });
        EXPECT_EQ(Message::show(nullptr, u"Confirmer ?"_s, u"Confirmation"_s, MessageIcon::Question, c.buttons),
                  c.answer)
            << static_cast<int>(c.buttons) << ' ' << c.key;
    }
}

TEST(Message, ShowsItsTextTitleAndButtonsAndGivesTheFocusBack)
{
    const RealMessages real;
    controls::TextField field;
    show(field);
    const auto opened = whenOpened<Message>([](Message& box) {
        EXPECT_EQ(box.objectName(), u"Message"_s);
        EXPECT_EQ(box.windowTitle(), u"Confirmation"_s);
        EXPECT_EQ(control<QLabel>(box, u"Texte"_s)->text(), u"Confirmer supression de ligne N°  3"_s);
        press(box, Qt::Key_Tab);
        EXPECT_EQ(box.focusWidget(), control<QPushButton>(box, u"Non"_s));
        click(box, u"Oui"_s);
    });
    EXPECT_TRUE(Message::confirm(&field, u"Confirmer supression de ligne N°  3"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return field.hasFocus(); }));
}

TEST(Message, WithoutATitleItBearsTheProgramsName)
{
    EXPECT_EQ(Message(nullptr, {u"Numéro omis"_s, {}}).windowTitle(), u"TALOR"_s);
}

// The seam itself must not let a fault through.
TEST(ExpectMessages, FailsOnWhatWasNotExpectedAndOnWhatDoesNotCome)
{
    EXPECT_NONFATAL_FAILURE(Message::show(nullptr, u"Inattendu"_s), "Unexpected message: Inattendu");
    EXPECT_NONFATAL_FAILURE(ExpectMessages{u"Jamais"_s}, "never came: Jamais");
    EXPECT_NONFATAL_FAILURE(
        {
            ExpectMessages messages{u"Confirmer ?"_s};
            Message::confirm(nullptr, u"Confirmer ?"_s);
        },
        "needs an answer");
    EXPECT_NONFATAL_FAILURE(
        {
            ExpectMessages messages({{u"Fini"_s, Answer::Yes}});
            Message::show(nullptr, u"Fini"_s);
        },
        "no such button");
}
