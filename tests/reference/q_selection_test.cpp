#include "reference/q_selection.h"

#include "platform/controls/grid.h"
#include "platform/services/sound.h"
#include "reference/q_mos.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

using namespace Qt::StringLiterals;
using namespace talor;
using controls::Grid;

namespace {

class SelectionTest : public testing::Test
{
protected:
    void clients(int nombre)
    {
        store::Transaction transaction(t.exercice.Base());
        for (int i = 1; i <= nombre; ++i)
            exemples.client(u"CLIENT%1"_s.arg(i, 3, 10, QChar(u'0')), u"Prénom"_s);
        transaction.commit();
    }

    ExerciceTemporaire t;
    Exemples exemples{t.exercice};
    QWidget fenetre;
};

} // namespace

TEST_F(SelectionTest, une_table_vide_se_dit_et_ne_choisit_rien)
{
    // The boats bear the text of the products.
    ExpectMessages messages{{u"Aucun client enregistré"_s, u"ATTENTION"_s},
                            {u"Aucun produit enregistré"_s, u"ATTENTION"_s},
                            {u"Aucun produit enregistré"_s, u"ATTENTION"_s}};
    EXPECT_EQ(Q_Client::demander(&fenetre, t.exercice), std::nullopt);
    EXPECT_EQ(Q_Bateau::demander(&fenetre, t.exercice), std::nullopt);
    EXPECT_EQ(Q_Poisson::demander(&fenetre, t.exercice), std::nullopt);
    for (const controls::MessageText& boite : messages.shown())
        EXPECT_EQ(boite.icon, controls::MessageIcon::Stop);
}

TEST_F(SelectionTest, entree_prend_la_ligne_en_main)
{
    clients(3);
    const auto travail = whenOpened<Q_Client>([](Q_Client& d) {
        press(d, Qt::Key_Down);
        press(d, Qt::Key_Return);
    });
    EXPECT_EQ(Q_Client::demander(&fenetre, t.exercice), (Selection{2, u"2"_s}));
}

TEST_F(SelectionTest, echap_et_annuler_ne_choisissent_rien)
{
    exemples.poisson(u"Sole"_s);
    {
        const auto travail = whenOpened<Q_Poisson>([](Q_Poisson& d) { press(d, Qt::Key_Escape); });
        EXPECT_EQ(Q_Poisson::demander(&fenetre, t.exercice), std::nullopt);
    }
    const auto travail = whenOpened<Q_Poisson>([](Q_Poisson& d) { click(d, u"Image1(1)"_s); });
    EXPECT_EQ(Q_Poisson::demander(&fenetre, t.exercice), std::nullopt);
}

TEST_F(SelectionTest, un_clic_marque_un_double_clic_prend)
{
    exemples.chalutier(u"El Amel"_s);
    exemples.chalutier(u"Sidi Brahim"_s);
    const auto travail = whenOpened<Q_Bateau>([](Q_Bateau& d) {
        auto* grille = control<Grid>(d, u"Grid1"_s);
        const QPoint seconde = grille->visualRect(grille->model()->index(1, 0)).center();
        QTest::mouseClick(grille->viewport(), Qt::LeftButton, {}, seconde);
        EXPECT_EQ(grille->currentRow(), 1);
        EXPECT_TRUE(d.isVisible());
        QTest::mouseDClick(grille->viewport(), Qt::LeftButton, {}, seconde);
    });
    EXPECT_EQ(Q_Bateau::demander(&fenetre, t.exercice), (Selection{2, u"2"_s}));
}

TEST_F(SelectionTest, les_boutons_montent_descendent_et_se_cachent_aux_bouts)
{
    clients(3);
    t.exercice.EffetSonore = 1;
    int sons = 0;
    services::sound::setRecorder([&](const QString&) { ++sons; });
    const auto travail = whenOpened<Q_Client>([](Q_Client& d) {
        EXPECT_FALSE(isShown(d, u"Image1(3)"_s)) << "no row above the first";
        click(d, u"Image1(2)"_s);
        EXPECT_TRUE(isShown(d, u"Image1(3)"_s));
        click(d, u"Image1(2)"_s);
        EXPECT_FALSE(isShown(d, u"Image1(2)"_s)) << "no row below the last";
        click(d, u"Image1(3)"_s);
        click(d, u"Image1(0)"_s);
    });
    EXPECT_EQ(Q_Client::demander(&fenetre, t.exercice)->num, 2);
    EXPECT_EQ(sons, 3);
}

TEST_F(SelectionTest, les_lettres_menent_au_nom_sans_souci_d_accents)
{
    exemples.client(u"AMRANI"_s, u"Ali"_s);
    exemples.client(u"ÉTOILE"_s, u"Sarl"_s);
    exemples.client(u"ETTAHAR"_s, u"Nour"_s);
    const auto travail = whenOpened<Q_Client>([](Q_Client& d) {
        auto* grille = control<Grid>(d, u"Grid1"_s);
        type(grille, u"ett"_s);
        EXPECT_EQ(grille->text(grille->currentRow(), 0), u"ETTAHAR"_s);
        type(grille, u"z"_s);
        EXPECT_EQ(grille->text(grille->currentRow(), 0), u"ETTAHAR"_s) << "a letter that leads nowhere changes nothing";
        press(d, Qt::Key_Backspace);
        type(grille, u"o"_s);
        EXPECT_EQ(grille->text(grille->currentRow(), 0), u"ÉTOILE"_s);
        press(d, Qt::Key_Up);
        type(grille, u"a"_s);
        EXPECT_EQ(grille->text(grille->currentRow(), 0), u"AMRANI"_s) << "an arrow begins a new word";
        press(d, Qt::Key_Return);
    });
    EXPECT_EQ(Q_Client::demander(&fenetre, t.exercice)->num, 1);
}

TEST_F(SelectionTest, le_mois_se_choisit_par_sa_ligne_ou_ses_lettres)
{
    const auto prendre = [&](int initial, auto travail) {
        const auto attente = whenOpened<Q_Mos>(travail);
        return Q_Mos::demander(&fenetre, initial);
    };
    EXPECT_EQ(prendre(11, [](Q_Mos& d) { press(d, Qt::Key_Return); }), 11);
    EXPECT_EQ(prendre(11, [](Q_Mos& d) { press(d, Qt::Key_Escape); }), std::nullopt);
    EXPECT_EQ(prendre(11,
                      [](Q_Mos& d) {
                          click(d, u"Image1(2)"_s);
                          EXPECT_FALSE(isShown(d, u"Image1(2)"_s));
                          click(d, u"Image1(0)"_s);
                      }),
              12);
    EXPECT_EQ(prendre(2,
                      [](Q_Mos& d) {
                          click(d, u"Image1(3)"_s);
                          EXPECT_FALSE(isShown(d, u"Image1(3)"_s));
                          click(d, u"Image1(0)"_s);
                      }),
              1);
    EXPECT_EQ(prendre(1,
                      [](Q_Mos& d) {
                          type(d, u"List1"_s, u"ao"_s);
                          press(d, Qt::Key_Return);
                      }),
              8);
    EXPECT_EQ(prendre(0, [](Q_Mos& d) { click(d, u"Image1(0)"_s); }), 1) << "an unknown month opens on January";
}
