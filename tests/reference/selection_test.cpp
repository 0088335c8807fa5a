#include "reference/selection.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace talor;

TEST(Selection, les_clients_par_nom_et_prenom_les_autres_par_ordre)
{
    ExerciceTemporaire t;
    Exemples exemples(t.exercice);
    const qint64 slimani = exemples.client(u"SLIMANI"_s, u"Omar"_s);
    const qint64 zoubir = exemples.client(u"AMRANI"_s, u"Zoubir"_s);
    const qint64 ali = exemples.client(u"AMRANI"_s, u"Ali"_s);
    Exemples::changer(t.exercice.Clients, ali, {{"ville", u"Ténès"_s}});
    exemples.poisson(u"Sole"_s);
    exemples.poisson(u"Merlan"_s);

    const auto clients = ListeSelection::lire(t.exercice, selectionClients());
    ASSERT_EQ(clients->nombre(), 3);
    EXPECT_EQ((*clients)[0], (Selection{ali, u"3"_s}));
    EXPECT_EQ((*clients)[1], (Selection{zoubir, u"2"_s}));
    EXPECT_EQ((*clients)[2], (Selection{slimani, u"1"_s}));
    EXPECT_EQ(clients->cellule(0, 2), u"Ténès"_s);
    EXPECT_EQ(clients->cellule(1, 2), QString()) << "a town that was never given";
    EXPECT_EQ(clients->cellule(0, 3), u"3"_s);

    const auto poissons = ListeSelection::lire(t.exercice, selectionPoissons());
    EXPECT_EQ(poissons->cellule(0, 0), u"Sole"_s);
    EXPECT_EQ(poissons->cellule(1, 0), u"Merlan"_s);
}

TEST(Selection, les_lettres_menent_a_la_premiere_ligne)
{
    ExerciceTemporaire t;
    Exemples exemples(t.exercice);
    exemples.client(u"Étoile"_s, u"Sarl"_s);
    exemples.client(u"BENALI"_s, u"Omar"_s);
    exemples.client(u"BENALI"_s, u"Élias"_s);
    exemples.client(u"O'Brien"_s, u"Pat"_s);
    exemples.chalutier(u"Étoile de mer"_s);
    exemples.chalutier(u"3 Frères"_s);
    const auto clients = ListeSelection::lire(t.exercice, selectionClients());

    struct Cas
    {
        QString frappe;
        QString trouve; ///< first name; empty for none
    };
    const Cas cas[] = {
        {u"ben"_s, u"Élias"_s}, {u"BENALI o"_s, u"Omar"_s}, {u"benali el"_s, u"Élias"_s}, {u"et"_s, u"Sarl"_s},
        {u"éT"_s, u"Sarl"_s},   {u"o'b"_s, u"Pat"_s},       {u"2"_s, u"Omar"_s},          {u"9"_s, {}},
        {u"*"_s, {}},           {u"enali"_s, {}},
    };
    for (const Cas& c : cas) {
        const int rang = clients->rangDuDebut(c.frappe);
        EXPECT_EQ(rang < 0 ? QString() : clients->cellule(rang, 1), c.trouve) << c.frappe.toStdString();
    }

    const auto bateaux = ListeSelection::lire(t.exercice, selectionBateaux());
    EXPECT_EQ(bateaux->rangDuDebut(u"3"_s), 1);
    EXPECT_EQ(bateaux->rangDuDebut(u"1"_s), -1) << "a number that the list does not show";
}
