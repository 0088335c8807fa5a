#include "reference/q_date_2.h"

#include "platform/controls/text_field.h"
#include "platform/services/clock.h"
#include "platform/services/sound.h"
#include "tests/support/keys.h"

#include <QComboBox>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

class CalendrierTest : public testing::Test
{
protected:
    void SetUp() override { services::clock::setToday(QDate(2026, 11, 15)); }
    void TearDown() override { services::clock::followSystem(); }

    std::optional<QString> demander(const QString& date, std::function<void(Q_Date_2&)> travail)
    {
        const auto attente = whenOpened<Q_Date_2>(std::move(travail));
        return Q_Date_2::demander(&fenetre, date);
    }

    QWidget fenetre;
};

QString jour(Q_Date_2& d, int cellule)
{
    return control<QToolButton>(d, u"Jour(%1)"_s.arg(cellule))->text();
}

} // namespace

TEST_F(CalendrierTest, s_ouvre_sur_la_date_donnee_ou_sur_aujourd_hui)
{
    EXPECT_EQ(demander({}, [](Q_Date_2& d) { press(d, Qt::Key_Return); }), u"15/11/2026"_s);
    EXPECT_EQ(demander(u"05/02/2026"_s, [](Q_Date_2& d) { press(d, Qt::Key_Return); }), u"05/02/2026"_s);
    EXPECT_EQ(demander(u"05/02/2026"_s, [](Q_Date_2& d) { press(d, Qt::Key_Escape); }), std::nullopt);
    EXPECT_EQ(demander(u"05/02/2026"_s, [](Q_Date_2& d) { click(d, u"Image2(1)"_s); }), std::nullopt);
}

TEST_F(CalendrierTest, les_fleches_vont_par_jour_et_par_semaine_les_pages_par_mois)
{
    struct Cas
    {
        QList<Qt::Key> touches;
        Qt::KeyboardModifiers avec;
        QString date;
    };
    const Cas cas[] = {
        {{Qt::Key_Right}, {}, u"16/11/2026"_s},
        {{Qt::Key_Left}, {}, u"14/11/2026"_s},
        {{Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}, {}, u"06/12/2026"_s},
        {{Qt::Key_Up}, {}, u"08/11/2026"_s},
        {{Qt::Key_PageDown, Qt::Key_PageDown}, {}, u"15/01/2027"_s},
        {{Qt::Key_PageUp}, {}, u"15/10/2026"_s},
        {{Qt::Key_PageUp}, Qt::ControlModifier, u"15/11/2025"_s},
        {{Qt::Key_PageDown}, Qt::ControlModifier, u"15/11/2027"_s},
        {{Qt::Key_End}, {}, u"30/11/2026"_s},
        {{Qt::Key_Home}, {}, u"01/11/2026"_s},
    };
    for (const Cas& c : cas) {
        const auto choisie = demander({}, [&](Q_Date_2& d) {
            for (const Qt::Key touche : c.touches)
                press(d, touche, c.avec);
            press(d, Qt::Key_Enter);
        });
        EXPECT_EQ(choisie, c.date);
    }
}

TEST_F(CalendrierTest, mois_et_annee_remplissent_les_cellules)
{
    const auto choisie = demander(u"31/03/2026"_s, [](Q_Date_2& d) {
        EXPECT_EQ(jour(d, 1), QString());
        EXPECT_EQ(jour(d, 2), u"1"_s) << "Sunday, second of the week";
        control<QComboBox>(d, u"Combo1"_s)->setCurrentIndex(1);
        EXPECT_EQ(jour(d, 29), u"28"_s);
        EXPECT_EQ(jour(d, 30), QString());
        EXPECT_FALSE(control<QToolButton>(d, u"Jour(30)"_s)->isEnabled());
        EXPECT_TRUE(control<QToolButton>(d, u"Jour(29)"_s)->isChecked()) << "the last day, for want of a 31st";
        control<QComboBox>(d, u"Combo2"_s)->setCurrentText(u"2024"_s);
        click(d, u"Image2(3)"_s);
        click(d, u"Image2(5)"_s);
        click(d, u"Image2(4)"_s);
        click(d, u"Image2(4)"_s);
        click(d, u"Image2(2)"_s);
        click(d, u"Image2(0)"_s);
    });
    EXPECT_EQ(choisie, u"28/02/2023"_s);
}

TEST_F(CalendrierTest, un_clic_choisit_le_jour_un_double_clic_le_prend)
{
    EXPECT_EQ(demander(u"15/11/2026"_s,
                       [](Q_Date_2& d) {
                           click(d, u"Jour(8)"_s);
                           press(d, Qt::Key_Return);
                       }),
              u"07/11/2026"_s);
    EXPECT_EQ(demander(u"15/11/2026"_s,
                       [](Q_Date_2& d) {
                           auto* cellule = control(d, u"Jour(31)"_s);
                           click(cellule);
                           QTest::mouseDClick(cellule, Qt::LeftButton);
                       }),
              u"30/11/2026"_s);
}

TEST_F(CalendrierTest, une_annee_d_avant_la_liste_se_montre)
{
    const auto choisie = demander(u"15/06/1990"_s, [](Q_Date_2& d) {
        auto* annee = control<QComboBox>(d, u"Combo2"_s);
        EXPECT_EQ(annee->currentIndex(), -1);
        EXPECT_EQ(annee->placeholderText(), u"1990"_s);
        EXPECT_EQ(annee->itemText(0), u"2001"_s);
        click(d, u"Image2(4)"_s);
        press(d, Qt::Key_Return);
    });
    EXPECT_EQ(choisie, u"15/06/1990"_s) << "1989 is out of range";
}

TEST_F(CalendrierTest, un_champ_de_date_recoit_le_jour_et_rejette_les_faux)
{
    controls::TextField champ(controls::TextField::Kind::Date);
    champ.setText(u"31/01/2026"_s);
    {
        const auto attente = whenOpened<Q_Date_2>([](Q_Date_2& d) { press(d, Qt::Key_Escape); });
        EXPECT_FALSE(choisirDate(&fenetre, &champ));
        EXPECT_EQ(champ.text(), u"31/01/2026"_s);
    }
    {
        const auto attente = whenOpened<Q_Date_2>([](Q_Date_2& d) {
            press(d, Qt::Key_PageDown);
            press(d, Qt::Key_Return);
        });
        EXPECT_TRUE(choisirDate(&fenetre, &champ));
        EXPECT_EQ(champ.text(), u"28/02/2026"_s);
    }

    int bips = 0;
    services::sound::setRecorder([&](const QString&) { ++bips; });
    viderDateRefusee(&champ);
    emit champ.left();
    EXPECT_EQ(champ.text(), u"28/02/2026"_s);
    champ.setText(u"31/04/2026"_s);
    emit champ.left();
    EXPECT_EQ(champ.text(), QString());
    EXPECT_EQ(bips, 1);
}
