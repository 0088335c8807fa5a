#include "reference/q_filtre.h"

#include "platform/services/clock.h"
#include "reference/q_date_2.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

class FiltreTest : public testing::Test
{
protected:
    void SetUp() override { services::clock::setToday(QDate(2026, 11, 15)); }
    void TearDown() override { services::clock::followSystem(); }

    std::optional<Filtre> demander(std::function<void(Q_Filtre&)> travail)
    {
        const auto attente = whenOpened<Q_Filtre>(std::move(travail));
        return Q_Filtre::demander(&fenetre, t.exercice);
    }

    ExerciceTemporaire t;
    QWidget fenetre;
};

void ouvrirPeriode(Q_Filtre& d)
{
    control<QTabWidget>(d, u"SSTab1"_s)->setCurrentIndex(1);
}

QString date(Q_Filtre& d, int index)
{
    return textOf(d, u"Text1(%1)"_s.arg(index));
}

} // namespace

TEST_F(FiltreTest, le_mois_s_ouvre_sur_le_mois_courant)
{
    EXPECT_EQ(demander([](Q_Filtre& d) { press(d, Qt::Key_Return); }), (Filtre{11, EtatArchive::Recentes}));
    EXPECT_EQ(demander([](Q_Filtre& d) { press(d, Qt::Key_Escape); }), std::nullopt);
    EXPECT_EQ(demander([](Q_Filtre& d) { click(d, u"Image2(1)"_s); }), std::nullopt);
}

TEST_F(FiltreTest, les_boutons_et_les_fleches_changent_le_mois)
{
    const auto filtre = demander([](Q_Filtre& d) {
        click(d, u"Image1(3)"_s);
        click(d, u"Image1(3)"_s);
        EXPECT_EQ(textOf(d, u"Combo1"_s), u"Décembre"_s);
        click(d, u"Image1(4)"_s);
        press(d, Qt::Key_Up);
        control<QRadioButton>(d, u"Option1(1)"_s)->setChecked(true);
        click(d, u"Image2(0)"_s);
    });
    EXPECT_EQ(filtre, (Filtre{10, EtatArchive::Archivees}));
}

TEST_F(FiltreTest, la_periode_s_ouvre_du_premier_janvier_a_aujourd_hui)
{
    const auto filtre = demander([](Q_Filtre& d) {
        ouvrirPeriode(d);
        EXPECT_EQ(date(d, 1), u"01/01/2026"_s);
        EXPECT_EQ(date(d, 2), u"15/11/2026"_s);
        type(d, u"Text1(1)"_s, u"15062026"_s);
        press(d, Qt::Key_Return);
        type(d.focusWidget(), u"15062026"_s);
        control<QRadioButton>(d, u"Option1(2)"_s)->setChecked(true);
        press(d, Qt::Key_Return);
    });
    EXPECT_EQ(filtre, (Filtre{Periode{u"15/06/2026"_s, u"15/06/2026"_s}, EtatArchive::Ensemble}));
}

TEST_F(FiltreTest, une_periode_incomplete_ou_inversee_garde_le_dialogue)
{
    ExpectMessages messages{{u"Dates inversées"_s, u"ATTENTION"_s}, {u"Saisie incomplète"_s, u"ATTENTION"_s}};
    const auto filtre = demander([](Q_Filtre& d) {
        ouvrirPeriode(d);
        type(d, u"Text1(1)"_s, u"16112026"_s);
        click(d, u"Image2(0)"_s);
        EXPECT_EQ(date(d, 1), u"16/11/2026"_s) << "what was typed stays";
        type(d, u"Text1(1)"_s, u"31042026"_s);
        press(d, Qt::Key_Return);
        EXPECT_EQ(date(d, 1), QString()) << "a date that does not exist is blanked on leaving";
        press(d, Qt::Key_Return);
        type(d, u"Text1(1)"_s, u"01112026"_s);
        click(d, u"Image2(0)"_s);
    });
    EXPECT_EQ(filtre, (Filtre{Periode{u"01/11/2026"_s, u"15/11/2026"_s}, EtatArchive::Recentes}));
}

TEST_F(FiltreTest, le_calendrier_remplit_les_bornes)
{
    const auto filtre = demander([](Q_Filtre& d) {
        ouvrirPeriode(d);
        for (const QString& bouton : {u"Image1(1)"_s, u"Image1(2)"_s}) {
            const auto calendrier = whenOpened<Q_Date_2>([](Q_Date_2& c) {
                press(c, Qt::Key_Right);
                press(c, Qt::Key_Return);
            });
            click(d, bouton);
        }
        press(d, Qt::Key_Return);
    });
    EXPECT_EQ(filtre, (Filtre{Periode{u"02/01/2026"_s, u"16/11/2026"_s}, EtatArchive::Recentes}));
}
