#include "shell/identification.h"

#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

class IdentificationTest : public testing::Test
{
protected:
    ExerciceTemporaire t;
};

} // namespace

TEST_F(IdentificationTest, lit_la_ligne_et_ses_taux_par_les_masques)
{
    t.exercice.Base().execute(
        u"update Permn set tel = '041 20', compte = null, Commission = 12.5, TVA = 19, nb_x = 1"_s);
    const Identification lue = Identification::lire(t.exercice);
    const std::array<QString, Identification::nbCases> attendues = {u"041 20"_s, {},         {},          {},     {},
                                                                    {},          u"12.50"_s, u"100.00"_s, u"19"_s};
    EXPECT_EQ(lue.cases, attendues);
    EXPECT_TRUE(lue.EffetSonore);
    EXPECT_EQ(t.exercice.Commission, 12.5F) << "in force as soon as it is shown";
}

TEST_F(IdentificationTest, une_table_vide_recoit_la_ligne_propre_au_dialogue)
{
    t.exercice.Base().execute(u"Delete * from Permn"_s);
    const Identification lue = Identification::lire(t.exercice);
    EXPECT_EQ(lue.cases[Identification::Commission], u"13.00"_s) << "not the 15 of the start";
    EXPECT_EQ(lue.cases[Identification::TVA], QString());
    EXPECT_EQ(t.exercice.Permn.text("tel"), u" "_s);
    EXPECT_EQ(t.exercice.Permn.recordCount(), 1);
    EXPECT_EQ(t.exercice.Commission, 13.0F);
}

TEST_F(IdentificationTest, sans_changement_rien_n_est_ecrit)
{
    const Identification lue = Identification::lire(t.exercice);
    t.exercice.Base().execute(u"update Permn set fax = 'écrit ailleurs'"_s);
    lue.enregistrer(t.exercice, lue);
    EXPECT_EQ(t.exercice.Base().scalar(u"select fax from Permn"_s), u"écrit ailleurs"_s);
    Identification changee = lue;
    changee.EffetSonore = true;
    changee.enregistrer(t.exercice, lue);
    EXPECT_EQ(t.exercice.Base().scalar(u"select fax from Permn"_s), QString());
    EXPECT_EQ(t.exercice.EffetSonore, 1) << "the sound alone is a change";
}

TEST_F(IdentificationTest, les_textes_vont_a_leur_place_et_les_taux_sont_en_vigueur)
{
    const Identification lue = Identification::lire(t.exercice);
    Identification changee = lue;
    changee.cases = {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"O'Brien"_s, u"12.5"_s, u"150"_s, u"19"_s};
    changee.enregistrer(t.exercice, lue);
    EXPECT_EQ(t.exercice.Permn.text("tel"), u"1"_s);
    EXPECT_EQ(t.exercice.Permn.text("fax"), u"2"_s);
    EXPECT_EQ(t.exercice.Permn.text("compte"), u"O'Brien"_s);
    EXPECT_EQ(t.exercice.Permn.real("TVA"), 19);
    EXPECT_EQ(t.exercice.Commission, 12.5F);
    EXPECT_EQ(t.exercice.PrixConsigne, 150.0F);
}

TEST_F(IdentificationTest, un_taux_est_garde_tel_qu_il_se_montre)
{
    t.exercice.Base().execute(u"update Permn set TVA = 19.5, Consigne = 0"_s);
    const Identification lue = Identification::lire(t.exercice);
    EXPECT_EQ(lue.cases[Identification::TVA], u"20"_s);
    EXPECT_EQ(lue.cases[Identification::Consigne], u".00"_s);
    Identification changee = lue;
    changee.cases[Identification::Fax] = u"041"_s;
    changee.enregistrer(t.exercice, lue);
    EXPECT_EQ(t.exercice.Permn.real("TVA"), 20);
    EXPECT_EQ(t.exercice.PrixConsigne, 0.0F);
}
