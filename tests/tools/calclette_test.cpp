#include "tools/calclette.h"

#include "platform/services/sound.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

class CalcletteTest : public testing::Test
{
protected:
    std::optional<Chiffres> chiffres(std::function<void(Calclette&)> travail)
    {
        const auto attente = whenOpened<Calclette>(std::move(travail));
        return Calclette::demanderChiffres(&fenetre, t.exercice);
    }

    std::optional<PrimesEtTaux> primes(std::function<void(Calclette&)> travail, const PrimesEtTaux& actuels = {})
    {
        const auto attente = whenOpened<Calclette>(std::move(travail));
        return Calclette::demanderPrimes(&fenetre, t.exercice, actuels);
    }

    ExerciceTemporaire t;
    QWidget fenetre;
};

/// Presses the keys of the pad: digits, the point, "<" the backspace.
void taper(Calclette& d, const QString& touches)
{
    for (const QChar c : touches) {
        if (c == u'<')
            click(d, u"Image1(0)"_s);
        else
            click(d, u"SSCommand1(%1)"_s.arg(c == u'.' ? 10 : c.digitValue()));
    }
}

/// Types on the keyboard, with no field in hand.
void frapper(Calclette& d, const QString& touches)
{
    for (const QChar c : touches)
        QTest::sendKeyEvent(QTest::Click, &d, c == u'\b' ? Qt::Key_Backspace : Qt::Key_unknown, QString(c), {});
}

} // namespace

TEST_F(CalcletteTest, le_nombre_va_dans_les_cageots_le_poids_ou_le_prix)
{
    const auto pris = chiffres([](Calclette& d) {
        EXPECT_EQ(textOf(d, u"Label4"_s), u"Cageots"_s);
        taper(d, u"250.5"_s);
        click(d, u"SSCommand2(3)"_s);
        EXPECT_EQ(textOf(d, u"Label1"_s), QString()) << "the number moves, and leaves the pad";
        EXPECT_TRUE(control(d, u"Label2(0)"_s)->property("inHand").toBool()) << "after the price, the crates again";
        EXPECT_FALSE(control(d, u"Label2(2)"_s)->property("inHand").toBool());
        taper(d, u"12"_s);
        click(d, u"SSCommand2(1)"_s);
        taper(d, u"99"_s);
        click(d, u"SSCommand2(0)"_s);
        EXPECT_EQ(textOf(d, u"Label1"_s), QString());
        taper(d, u"35.57<"_s);
        click(d, u"SSCommand2(2)"_s);
        click(d, u"Image1(1)"_s);
    });
    EXPECT_EQ(pris, (Chiffres{u"12"_s, u"35.5"_s, u"250.5"_s}));
}

TEST_F(CalcletteTest, le_clavier_vaut_le_pave)
{
    const auto pris = chiffres([](Calclette& d) {
        frapper(d, u"10"_s);
        press(d, Qt::Key_Return);
        frapper(d, u"3,57\b"_s);
        press(d, Qt::Key_Return);
        press(d, Qt::Key_Up);
        EXPECT_EQ(textOf(d, u"Label4"_s), u"Poids"_s);
        press(d, Qt::Key_Down);
        frapper(d, u"1"_s);
        press(d, Qt::Key_Delete);
        frapper(d, u"100"_s);
        press(d, Qt::Key_Return);
        press(d, Qt::Key_Return);
    });
    EXPECT_EQ(pris, (Chiffres{u"10"_s, u"3.5"_s, u"100"_s}));
}

TEST_F(CalcletteTest, un_nombre_non_deplace_n_est_pas_perdu)
{
    const auto pris = chiffres([](Calclette& d) {
        taper(d, u"7"_s);
        click(d, u"Image1(1)"_s);
    });
    EXPECT_EQ(pris, (Chiffres{u"7"_s, {}, {}}));
}

TEST_F(CalcletteTest, annuler_ne_rend_rien)
{
    EXPECT_EQ(chiffres([](Calclette& d) {
                  taper(d, u"7"_s);
                  click(d, u"Image1(2)"_s);
              }),
              std::nullopt);
    EXPECT_EQ(primes([](Calclette& d) { press(d, Qt::Key_Escape); }, {u"5"_s, u"15"_s}), std::nullopt);
}

TEST_F(CalcletteTest, primes_et_commission_par_le_clavier_ou_le_pave)
{
    EXPECT_EQ(primes([](Calclette& d) {
                  type(d.focusWidget(), u"1000"_s);
                  press(d, Qt::Key_Return);
                  type(d.focusWidget(), u"12,5"_s);
                  press(d, Qt::Key_Return);
              }),
              (PrimesEtTaux{u"1000"_s, u"12.5"_s}));
    EXPECT_EQ(primes([](Calclette& d) {
                  EXPECT_EQ(textOf(d, u"Label4"_s), u"Primes"_s);
                  taper(d, u"250.5"_s);
                  click(d, u"Text1(1)"_s);
                  EXPECT_EQ(textOf(d, u"Label4"_s), u"Commission (%)"_s);
                  EXPECT_EQ(textOf(d, u"Label1"_s), QString());
                  taper(d, u"9"_s);
                  click(d, u"SSCommand2(4)"_s);
                  EXPECT_EQ(textOf(d, u"Text1(1)"_s), QString());
                  taper(d, u"10"_s);
                  click(d, u"Image1(1)"_s);
              }),
              (PrimesEtTaux{u"250.5"_s, u"10"_s}));
}

TEST_F(CalcletteTest, les_valeurs_en_place_restent_sans_saisie)
{
    EXPECT_EQ(primes([](Calclette& d) { click(d, u"Image1(1)"_s); }, {u"300.00"_s, u"15"_s}),
              (PrimesEtTaux{u"300.00"_s, u"15"_s}));
}

TEST_F(CalcletteTest, un_taux_de_cent_ou_plus_revient_vide)
{
    for (const auto& [tape, rendu] : {std::pair(u"100"_s, u""_s), {u"150"_s, u""_s}, {u"99.99"_s, u"99.99"_s}}) {
        const auto pris = primes([&](Calclette& d) {
            type(d, u"Text1(1)"_s, tape);
            press(d, Qt::Key_Return);
        });
        EXPECT_EQ(pris->taux, rendu) << tape.toStdString();
    }
}

TEST_F(CalcletteTest, les_touches_sonnent_si_les_sons_sont_voulus)
{
    int sons = 0;
    services::sound::setRecorder([&](const QString&) { ++sons; });
    const auto deuxTouches = [](Calclette& d) {
        taper(d, u"12"_s);
        press(d, Qt::Key_Escape);
    };
    t.exercice.EffetSonore = 0;
    chiffres(deuxTouches);
    EXPECT_EQ(sons, 0);
    t.exercice.EffetSonore = 1;
    chiffres(deuxTouches);
    EXPECT_EQ(sons, 3) << "two keys, and the way out";
}

TEST_F(CalcletteTest, les_touches_sont_faites_pour_un_doigt)
{
    static constexpr int douzeMillimetres = 46; // at 96 dots to the inch
    const auto mesurer = [](Calclette& d) {
        for (const auto* touche : d.findChildren<QPushButton*>()) {
            EXPECT_GE(touche->height(), douzeMillimetres) << touche->objectName().toStdString();
            EXPECT_GE(touche->width(), douzeMillimetres) << touche->objectName().toStdString();
        }
        press(d, Qt::Key_Escape);
    };
    chiffres(mesurer);
    primes(mesurer);
}
