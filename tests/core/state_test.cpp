#include "core/schema.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace talor;

TEST(Exercice, les_parametres_absents_prennent_leurs_valeurs_de_depart)
{
    ExerciceTemporaire t;
    EXPECT_EQ(t.exercice.Permn.recordCount(), 1);
    EXPECT_EQ(t.exercice.Commission, 15);
    EXPECT_EQ(t.exercice.PrixConsigne, 100);
    EXPECT_EQ(t.exercice.EffetSonore, 0);

    t.exercice.Permn.edit();
    t.exercice.Permn.set("Consigne", 120.5);
    t.exercice.Permn.set("nb_x", 1);
    t.exercice.Permn.update();
    t.exercice.LireParametres();
    EXPECT_EQ(t.exercice.PrixConsigne, 120.5F);
    EXPECT_EQ(t.exercice.EffetSonore, 1);
    EXPECT_EQ(t.exercice.Permn.recordCount(), 1);
}

TEST(Exercice, l_entete_des_etats_porte_l_identite_et_laisse_les_autres_textes)
{
    ExerciceTemporaire t;
    t.exercice.textes.edit();
    t.exercice.textes.set("ch4", u"Période"_s);
    t.exercice.textes.update();
    t.exercice.EcrireEntete();
    EXPECT_EQ(t.exercice.textes.text("ch1"), u"Mandataire Essai"_s);
    EXPECT_EQ(t.exercice.textes.text("ch3"), u"Port de Ténès"_s);
    EXPECT_EQ(t.exercice.textes.text("ch4"), u"Période"_s);
    EXPECT_EQ(t.exercice.textes.recordCount(), 1);
}

// The settlement copies its rows by position: what stands where is a promise.
TEST(Schema, les_champs_atteints_par_position_sont_a_leur_place)
{
    const auto place = [](const QString& table, const QString& champ) { return schema().find(table)->position(champ); };
    EXPECT_EQ(place(u"Permn"_s, u"tel"_s), 0);
    EXPECT_EQ(place(u"Permn"_s, u"compte"_s), 5);
    EXPECT_EQ(place(u"Permn"_s, u"Commission"_s), 6);
    EXPECT_EQ(place(u"Bordereaux"_s, u"Libelle1"_s), position::libellesFrais);
    EXPECT_EQ(place(u"Bordereaux"_s, u"Frais1"_s), position::montantsFrais);
    EXPECT_EQ(place(u"Bordereaux"_s, u"MT_Armateur"_s), 32);
    for (const QString& table : {u"Decomptes0"_s, u"Decomptes"_s}) {
        EXPECT_EQ(place(table, u"Num_Chalutier"_s), 2);
        EXPECT_EQ(place(table, u"Libelle1"_s), 50);
        EXPECT_EQ(place(table, u"Frais1"_s), 60);
        EXPECT_EQ(place(table, u"flag_Arch"_s), 91);
    }
    EXPECT_EQ(place(u"Marins0"_s, u"Num_Arma"_s), 1);
    EXPECT_EQ(place(u"Marins"_s, u"Num_decompte"_s), 1);
    for (const QString& table : {u"Marins0"_s, u"Marins"_s}) {
        EXPECT_EQ(place(table, u"M1"_s), 3);
        EXPECT_EQ(place(table, u"Montant30"_s), 122);
        EXPECT_EQ(place(table, u"num"_s), schema().find(table)->fields.size() - 1);
    }
}
