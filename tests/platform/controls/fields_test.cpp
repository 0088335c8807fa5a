#include "platform/controls/dialog.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"
#include "platform/services/sound.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using controls::FieldChain;
using controls::MemoField;
using controls::TextField;
using Kind = controls::TextField::Kind;

namespace {

/// A dialog of fields named Text1(0), Text1(1)..., linked in a chain.
class Entry : public controls::Dialog
{
public:
    explicit Entry(const QList<QWidget*>& fields)
        : Dialog(u"Saisie", u"Saisie"_s)
    {
        for (int i = 0; i < fields.size(); ++i) {
            body()->addWidget(controls::named(fields[i], u"Text1", i));
            chain->add(fields[i]);
        }
    }

    FieldChain* chain = new FieldChain(this);
};

QString typedInto(Kind kind, const QString& keys)
{
    TextField field(kind);
    show(field);
    type(&field, keys);
    return field.text();
}

QString pastedInto(Kind kind, const QString& text)
{
    TextField field(kind);
    show(field);
    QGuiApplication::clipboard()->setText(text);
    press(field, Qt::Key_V, Qt::ControlModifier);
    return field.text();
}

} // namespace

TEST(TextField, TakesTheKeysOfItsKindTypedOrPasted)
{
    const struct
    {
        Kind kind;
        QString keys;
        QString text;
    } cases[] = {
        {Kind::Free, u"l'Étoile 2, quai"_s, u"l'Étoile 2, quai"_s},
        {Kind::Digits, u"a1b2-3"_s, u"123"_s},
        {Kind::Amount, u"1 250,5,0x"_s, u"1250.50"_s},
        {Kind::Amount, u"-12.5"_s, u"-12.5"_s},
        {Kind::Date, u"15112026"_s, u"15/11/2026"_s},
        {Kind::Date, u"15/11/2026"_s, u"15/11/2026"_s},
        {Kind::Date, u"45-3112"_s, u"31/12/"_s},
        {Kind::Capitals, u"Hadj-aïssa é"_s, u"HADJ-AïSSA é"_s},
        {Kind::FirstCapital, u"ali BEN"_s, u"Ali BEN"_s},
        {Kind::FirstCapital, u"élie"_s, u"élie"_s},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(typedInto(c.kind, c.keys), c.text) << c.keys.toStdString();
        EXPECT_EQ(pastedInto(c.kind, c.keys), c.text) << c.keys.toStdString();
    }
}

TEST(TextField, KeepsWhatTheProgramSetsUnfiltered)
{
    TextField field(Kind::Amount);
    field.setText(u" 1 250.00 DA"_s);
    EXPECT_EQ(field.text(), u" 1 250.00 DA"_s);
}

TEST(TextField, SelectsItsTextOnEntrySoThatTypingReplacesIt)
{
    auto* first = new TextField(Kind::Amount);
    auto* second = new TextField(Kind::Amount);
    Entry entry({first, second});
    second->setText(u"12.50"_s);
    show(entry);
    press(entry, Qt::Key_Return);
    EXPECT_EQ(second->selectedText(), u"12.50"_s);
    QTest::keyClicks(second, u",5"_s);
    EXPECT_EQ(second->text(), u".5"_s) << "the point of the text that is being replaced does not count";

    first->setText(u"7.25"_s);
    click(first);
    EXPECT_EQ(first->selectedText(), u"7.25"_s);
}

TEST(TextField, ADateCanBeTakenBackOverItsBars)
{
    TextField field(Kind::Date);
    show(field);
    QTest::keyClicks(&field, u"1511"_s);
    EXPECT_EQ(field.text(), u"15/11/"_s);
    for (const auto& left : {u"15/11"_s, u"15/1"_s, u"15/"_s, u"15"_s, u"1"_s, u""_s}) {
        press(field, Qt::Key_Backspace);
        EXPECT_EQ(field.text(), left);
    }
    QTest::keyClicks(&field, u"15"_s);
    press(field, Qt::Key_Backspace);
    QTest::keyClicks(&field, u"122026"_s);
    EXPECT_EQ(field.text(), u"15/12/2026"_s) << "the bar taken away comes back before the next figure";
    QTest::keyClicks(&field, u"9"_s);
    EXPECT_EQ(field.text(), u"15/12/2026"_s);

    field.setBackspaceClears(true);
    press(field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), u""_s);
}

TEST(TextField, ARefusedKeyOfADateBeeps)
{
    int beeps = 0;
    const auto former = services::sound::setRecorder([&](const QString&) { ++beeps; });
    EXPECT_EQ(typedInto(Kind::Date, u"9"_s), u""_s);
    EXPECT_EQ(beeps, 1);
    typedInto(Kind::Amount, u"x"_s);
    EXPECT_EQ(beeps, 1) << "other fields swallow in silence";
    services::sound::setRecorder(former);
}

TEST(TextField, TellsThatItIsLeftButNotWhenItIsHiddenOrCovered)
{
    auto* first = new TextField;
    auto* second = new TextField;
    Entry entry({first, second});
    QSignalSpy left(first, &TextField::left);
    QSignalSpy entered(first, &TextField::entered);
    show(entry);
    first->setFocus();
    {
        TextField other;
        show(other);
    }
    show(entry);
    EXPECT_EQ(left.count(), 0) << "another window in front is no leaving";
    press(entry, Qt::Key_Return);
    EXPECT_EQ(left.count(), 1);
    first->setFocus();
    first->hide();
    EXPECT_EQ(left.count(), 1) << "hiding is no leaving";
    EXPECT_EQ(entered.count(), 2);
}

TEST(TextField, AMessageShownOnLeavingDoesNotHoldTheFocus)
{
    const RealMessages real;
    auto* first = new TextField;
    auto* second = new TextField;
    Entry entry({first, second});
    second->setText(u"12"_s);
    QSignalSpy secondLeft(second, &TextField::left);
    QObject::connect(first, &TextField::left, &entry, [&] { controls::Message::show(&entry, u"Numéro omis"_s); });
    show(entry);
    const auto message = whenOpened<controls::Message>([](controls::Message& box) { press(box, Qt::Key_Return); });
    press(entry, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&entry));
    EXPECT_EQ(entry.focusWidget(), second);
    EXPECT_EQ(second->selectedText(), u"12"_s);
    EXPECT_EQ(secondLeft.count(), 0);
}

TEST(MemoField, KeepsEnterAndGivesTabAndTheArrowsAtItsEndsBack)
{
    auto* before = new TextField;
    auto* memo = new MemoField(20);
    auto* after = new TextField;
    Entry entry({before, memo, after});
    show(entry);
    type(memo, u"deux"_s);
    press(entry, Qt::Key_Return);
    QTest::keyClicks(memo, u"lignes"_s);
    EXPECT_EQ(memo->text(), u"deux\nlignes"_s);
    press(entry, Qt::Key_Up);
    EXPECT_EQ(entry.focusWidget(), memo);
    press(entry, Qt::Key_Up);
    EXPECT_EQ(entry.focusWidget(), before);
    memo->setFocus();
    press(entry, Qt::Key_Tab);
    EXPECT_EQ(entry.focusWidget(), after);

    memo->setText({});
    type(memo, u"vingt caractères et davantage"_s);
    EXPECT_EQ(memo->text(), u"vingt caractères et "_s);
}

TEST(FieldChain, EnterAndArrowsWalkPastWhatCannotTakeTheFocus)
{
    auto* first = new TextField;
    auto* disabled = new TextField;
    auto* hidden = new TextField;
    auto* last = new TextField;
    Entry entry({first, disabled, hidden, last});
    disabled->setEnabled(false);
    hidden->hide();
    int recorded = 0;
    entry.chain->atLast([&] { ++recorded; });
    show(entry);
    ASSERT_EQ(entry.focusWidget(), first);
    press(entry, Qt::Key_Up);
    EXPECT_EQ(entry.chain->current(), 0);
    press(entry, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(entry.chain->current(), 3);
    press(entry, Qt::Key_Down);
    EXPECT_EQ(entry.chain->current(), 3);
    EXPECT_EQ(recorded, 0);
    press(entry, Qt::Key_Return);
    EXPECT_EQ(recorded, 1);
    press(entry, Qt::Key_Up);
    EXPECT_EQ(entry.chain->current(), 0);
}

TEST(FieldChain, RulesOfItsOwnReplaceTheUsualWay)
{
    auto* label = new TextField;
    auto* amount = new TextField;
    auto* last = new TextField;
    Entry entry({label, amount, last});
    QList<int> rights;
    entry.chain->onKey(Qt::Key_Right, [&](int position) { rights.append(position); });
    entry.chain->onKey(Qt::Key_Return, 1, [&] { entry.chain->goTo(0); });
    entry.chain->limit(Qt::Key_Down, 0, 0);
    show(entry);
    press(entry, Qt::Key_Right);
    press(entry, Qt::Key_Down);
    press(entry, Qt::Key_Down);
    EXPECT_EQ(entry.chain->current(), 1) << "Down acts in the first field only";
    press(entry, Qt::Key_Right);
    EXPECT_EQ(rights, (QList<int>{0, 1}));
    press(entry, Qt::Key_Return);
    EXPECT_EQ(entry.chain->current(), 0);
}
