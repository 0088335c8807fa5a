#include "platform/controls/busy.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/dialog.h"
#include "platform/controls/entry_panel.h"
#include "platform/controls/grid.h"
#include "platform/controls/icons.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/number_pad.h"
#include "platform/controls/text_field.h"
#include "tests/support/keys.h"

#include <QBoxLayout>
#include <QProgressDialog>
#include <QScreen>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace controls;

namespace {

/// A card file in small: a field in a panel, and commands.
class Card : public Dialog
{
public:
    Card()
        : Dialog(u"j_Essai", u"Essai"_s)
    {
        panel->addField(u"N&om"_s, field);
        body()->addWidget(panel);
        bar->add(0, u"nouveau", u"Nouveau"_s, Qt::CTRL | Qt::Key_N);
        bar->add(1, u"trier-numero", u"sur N° d'ordre"_s);
        bar->add(2, u"supprimer", u"Supprimer"_s);
        bar->addStretch();
        bar->add(3, u"quitter", u"Quitter"_s);
        commands()->addWidget(bar);
        setCancel({cancel, bar->button(3)});
        connect(cancel, &CommandButton::clicked, panel, &QWidget::hide);
        connect(bar, &CommandBar::triggered, this, [this](int index) {
            triggered.append(index);
            if (index == 3)
                leave();
        });
    }

    EntryPanel* panel = new EntryPanel(u"SSFrame1", u"SSPanel2");
    TextField* field = named(new TextField, u"Text1", 1);
    CommandButton* cancel = panel->addCancel(u"Image1", 1);
    CommandBar* bar = new CommandBar;
    QList<int> triggered;
};

} // namespace

TEST(Dialog, EscapePressesTheFirstCancelCommandThatCanBeSeen)
{
    Card card;
    show(card);
    press(card, Qt::Key_Escape);
    EXPECT_FALSE(card.panel->isVisible());
    EXPECT_TRUE(card.isVisible());
    press(card, Qt::Key_Escape);
    EXPECT_EQ(card.triggered, QList<int>{3});
    EXPECT_FALSE(card.isVisible());

    Card held;
    show(held);
    held.panel->hide();
    held.bar->hideAll();
    held.close();
    EXPECT_TRUE(held.isVisible()) << "with no command to leave by, it stays";
}

TEST(Dialog, EnterPressesNoCommand)
{
    Card card;
    show(card);
    card.field->setFocus();
    press(card, Qt::Key_Return);
    EXPECT_TRUE(card.isVisible());
    EXPECT_EQ(card.triggered, QList<int>{});
}

TEST(Dialog, StandsInTheMiddleAndWithinTheScreen)
{
    Dialog wide(u"Large", u"Large"_s);
    auto* grid = new Grid;
    grid->setColumns({{u"Nom"_s, 40000}});
    wide.body()->addWidget(grid);
    show(wide);
    const QRect screen = wide.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(wide.geometry()));
    EXPECT_GT(wide.width(), screen.width() * 9 / 10);
    constexpr int frame = 4;
    EXPECT_NEAR(wide.geometry().center().y(), screen.center().y(), frame);
}

TEST(CommandBar, ACommandIsReachedByNameMouseLetterAndShortcut)
{
    Card card;
    show(card);
    card.field->setFocus();
    click(card, u"Crecettes(1)"_s);
    EXPECT_EQ(card.focusWidget(), card.field) << "a click leaves the focus with the field";
    press(card, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(control<CommandButton>(card, u"Crecettes(2)"_s)->caption(), u"Supprimer"_s);
    press(card, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return card.triggered.size() == 3; })) << "a letter presses as a finger does";
    card.bar->button(2)->setFocus();
    press(card, Qt::Key_Return);
    EXPECT_EQ(card.triggered, (QList<int>{1, 0, 1, 2}));

    QList<QChar> letters;
    for (const int index : {0, 1, 2, 3})
        letters.append(card.bar->button(index)->mnemonic());
    EXPECT_EQ(letters, (QList<QChar>{u'N', u'S', u'U', u'Q'})) << "no two commands share a letter";

    card.bar->hideAll();
    press(card, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(card.triggered.size(), 4) << "a hidden command has no shortcut";
    card.bar->showAll();
    EXPECT_TRUE(card.bar->button(3)->isVisible());
}

TEST(EntryPanel, ACaptionNamesItsFieldAndLeadsThere)
{
    Card card;
    show(card);
    EXPECT_EQ(card.field->accessibleName(), u"Nom"_s);
    card.bar->button(0)->setFocus();
    press(card, Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(card.focusWidget(), card.field);
}

TEST(NumberPad, BuildsANumberOfAtMostTwelveCharactersAndOnePoint)
{
    NumberPad pad({u"SSCommand11"_s, u"Label11"_s, u"Image22(0)"_s});
    show(pad);
    QSignalSpy changed(&pad, &NumberPad::displayChanged);
    const auto keys = [&pad](const QList<int>& indexes) {
        for (const int index : indexes)
            click(pad, familyName(u"SSCommand11", index));
    };
    keys({1, 2, 10, 5, 10, 0});
    EXPECT_EQ(pad.text(), u"12.50"_s);
    EXPECT_EQ(changed.count(), 5) << "the second point changes nothing";
    keys({1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_EQ(control<QLabel>(pad, u"Label11"_s)->text(), u"12.501234567"_s);
    click(pad, u"Image22(0)"_s);
    EXPECT_EQ(changed.last().first().toString(), u"12.50123456"_s);
    changed.clear();
    pad.clear();
    click(pad, u"Image22(0)"_s);
    EXPECT_EQ(pad.text(), u""_s);
    EXPECT_EQ(changed.count(), 0);
}

TEST(NumberPad, TypesIntoTheFieldEnteredLastAndMarksIt)
{
    Dialog dialog(u"j_Pave", u"Pavé"_s);
    auto* pad = new NumberPad({u"SSCommand11"_s, u"Label11"_s, u"Image22(0)"_s});
    TextField* fields[] = {new TextField(TextField::Kind::Digits), new TextField(TextField::Kind::Amount)};
    QLabel* marks[] = {markLabel(), markLabel()};
    for (int i = 0; i < 2; ++i) {
        dialog.body()->addWidget(fields[i]);
        dialog.body()->addWidget(marks[i]);
        pad->serve(fields[i], marks[i]);
    }
    dialog.body()->addWidget(pad);
    show(dialog);
    const auto type = [&](const QList<int>& keys) {
        for (const int key : keys)
            click(dialog, familyName(u"SSCommand11", key));
    };
    fields[0]->setFocus();
    type({1, 2});
    EXPECT_EQ(fields[0]->text(), u"12"_s);
    EXPECT_FALSE(control(dialog, u"SSCommand11(10)"_s)->isEnabled()) << "a field of digits takes no point";
    fields[1]->setFocus();
    EXPECT_TRUE(marks[1]->isVisible() && !marks[0]->isVisible());
    type({3, 10, 5});
    EXPECT_EQ(fields[1]->text(), u"3.5"_s) << "the number begins anew";
    EXPECT_EQ(fields[0]->text(), u"12"_s);
    click(dialog, u"Image22(0)"_s);
    EXPECT_EQ(fields[1]->text(), u"3."_s);
}

TEST(NumberPad, ItsKeysAreLargeEnoughForAFinger)
{
    NumberPad pad({u"SSCommand10"_s, u"Label4"_s, u"Image1(6)"_s});
    show(pad);
    pad.resize(pad.minimumSizeHint()); // as small as a dialog can make it
    constexpr double twelveMillimetres = 12 / 25.4 * 96;
    for (const auto* key : pad.findChildren<QAbstractButton*>()) {
        EXPECT_GE(key->width(), twelveMillimetres);
        EXPECT_GE(key->height(), twelveMillimetres);
        EXPECT_EQ(key->focusPolicy(), Qt::NoFocus);
    }
}

TEST(Look, StandardDialogsSpeakFrenchAndNumbersTakeThePoint)
{
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Annuler"_s);
    EXPECT_EQ(QLocale().toString(1250.5, 'f', 2), u"1250.50"_s);
    EXPECT_EQ(std::strtod("1.5", nullptr), 1.5);
}

TEST(Busy, TheHourglassStandsWhileTheWorkLasts)
{
    {
        const Busy outer;
        const Busy inner;
        ASSERT_TRUE(QApplication::overrideCursor());
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST(Progress, ShowsOnlyInLongWorksAndCanBeCancelledWhereTheWorkAllows)
{
    const auto bar = [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QProgressDialog*>(window))
                return dialog;
        return static_cast<QProgressDialog*>(nullptr);
    };
    for (const auto allowed : {Progress::Cancel::Allowed, Progress::Cancel::Refused}) {
        Progress progress(nullptr, u"Facturation"_s, 10, allowed);
        EXPECT_TRUE(progress.advance(1));
        EXPECT_FALSE(bar()->isVisible());
        bar()->cancel();
        EXPECT_EQ(progress.advance(2), allowed == Progress::Cancel::Refused);
    }
    EXPECT_EQ(bar(), nullptr);
}

TEST(Icons, ArePaintedAtAnySizeInTheirColour)
{
    const auto inked = [](const QIcon& icon, int size, QIcon::Mode mode) {
        const QImage picture = icon.pixmap(QSize(size, size), 2.0, mode).toImage();
        EXPECT_EQ(picture.width(), 2 * size);
        QSet<QRgb> solid;
        for (int x = 0; x < picture.width(); ++x)
            for (int y = 0; y < picture.height(); ++y)
                if (picture.pixelColor(x, y).alpha() == 255)
                    solid.insert(picture.pixelColor(x, y).rgb());
        return solid;
    };
    EXPECT_EQ(inked(icon(u"nouveau", Qt::red), 16, QIcon::Normal), QSet<QRgb>{QColor(Qt::red).rgb()});
    EXPECT_EQ(inked(icon(u"nouveau"), 96, QIcon::Normal), QSet<QRgb>{colour::blue.rgb()});
    EXPECT_EQ(inked(icon(u"nouveau"), 32, QIcon::Disabled), QSet<QRgb>{colour::disabled.rgb()});
    EXPECT_GT(inked(applicationIcon(), 16, QIcon::Normal).size(), 4);
}

TEST(Dialog, OnANarrowScreenTheBodyScrollsToThePanelOfWhatHasTheFocus)
{
    Dialog wide(u"j_Large", u"Large"_s);
    QList<QWidget*> panels;
    auto* row = new QHBoxLayout;
    for (int i = 0; i < 4; ++i) {
        panels.append(new QFrame);
        panels.last()->setFixedSize(500, 200);
        auto* column = new QVBoxLayout(panels.last());
        column->addWidget(named(new TextField, u"Text1", i));
        column->addWidget(new QPushButton(u"OK"_s), 0, Qt::AlignRight);
        row->addWidget(panels.last());
    }
    wide.body()->addLayout(row);
    auto* bar = new CommandBar;
    bar->add(0, u"quitter", u"Quitter"_s);
    wide.commands()->addWidget(bar);
    control(wide, u"Text1(0)"_s)->setFocus();
    show(wide);
    EXPECT_LE(wide.width(), wide.screen()->availableGeometry().width());
    EXPECT_TRUE(wide.rect().contains(bar->geometry()));
    for (int i = 0; i < panels.size(); ++i) {
        control(wide, familyName(u"Text1", i))->setFocus();
        EXPECT_EQ(panels[i]->visibleRegion().boundingRect(), panels[i]->rect()) << i;
    }
}

TEST(Dialog, OnALowScreenTheBodyScrollsToWhatHasTheFocus)
{
    constexpr int fields = 40;
    Dialog tall(u"j_Haut", u"Haut"_s);
    QList<TextField*> column;
    for (int i = 0; i < fields; ++i) {
        column.append(named(new TextField, u"Text1", i));
        tall.body()->addWidget(column.last());
    }
    auto* bar = new CommandBar;
    bar->add(0, u"quitter", u"Quitter"_s);
    tall.commands()->addWidget(bar);
    column[1]->setFocus();
    show(tall);
    EXPECT_LE(tall.height(), tall.screen()->availableGeometry().height());
    EXPECT_TRUE(tall.rect().contains(bar->geometry()));
    EXPECT_TRUE(column[1]->hasFocus()) << "the focus stays where it was put";
    const auto inView = [](QWidget* w) { return w->visibleRegion().boundingRect() == w->rect(); };
    EXPECT_FALSE(inView(column.last()));
    for (int i = 1; i < fields - 1; ++i)
        QTest::keyClick(tall.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(column.last()->hasFocus());
    EXPECT_TRUE(inView(column.last())) << column.last()->visibleRegion().boundingRect().height() << " of "
                                       << column.last()->height();
}
