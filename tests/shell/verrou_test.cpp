#include "shell/verrou.h"

#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace talor;
using Case = ChangementMot::Case;

namespace {

class VerrouTest : public testing::Test
{
protected:
    VerrouTest()
    {
        t.exercice.configuration().mots = {u"QUAI"_s, u"Criée"_s, u"MAÎTRE"_s};
        EXPECT_FALSE(t.exercice.configuration().ecrire(fichier));
    }

    QString motSurDisque() const { return Configuration::lire(fichier)->mots[0]; }

    ExerciceTemporaire t;
    const QString fichier = t.exercice.installation().configuration();
};

} // namespace

TEST_F(VerrouTest, s_ouvre_par_son_mot_le_troisieme_ou_celui_en_vigueur)
{
    t.exercice.MotAcces = u"vigueur"_s;
    const struct
    {
        Verrou verrou;
        QString saisie;
        bool accepte;
    } cas[] = {
        {Verrou::Programme, u" quai "_s, true},  {Verrou::Programme, u"criée"_s, false},
        {Verrou::Exercice, u"CRIÉE"_s, true},    {Verrou::Exercice, u"quai"_s, false},
        {Verrou::Programme, u"maître"_s, true},  {Verrou::Exercice, u"Maître"_s, true},
        {Verrou::Programme, u"VIGUEUR"_s, true}, {Verrou::Exercice, u"vigueur"_s, true},
        {Verrou::Exercice, u"qu ai"_s, false},   {Verrou::Exercice, {}, false},
    };
    for (const auto& c : cas)
        EXPECT_EQ(DemandeMot(t.exercice, c.verrou).essayer(c.saisie) == Autorisation::Acceptee, c.accepte)
            << c.saisie.toStdString();
}

TEST_F(VerrouTest, un_mot_vide_s_ouvre_par_un_texte_vide)
{
    EXPECT_EQ(DemandeMot(t.exercice, Verrou::Exercice).essayer(u"  "_s), Autorisation::Acceptee)
        << "no access word is in force";
}

TEST_F(VerrouTest, le_troisieme_mot_faux_refuse_et_au_demarrage_finit_le_programme)
{
    t.exercice.MotAcces = u"X"_s;
    for (const auto& [verrou, fin] :
         {std::pair(Verrou::Programme, Autorisation::FinProgramme), {Verrou::Exercice, Autorisation::Refusee}}) {
        DemandeMot demande(t.exercice, verrou);
        EXPECT_EQ(demande.essayer(u"a"_s), std::nullopt);
        EXPECT_EQ(demande.essayer(u"b"_s), std::nullopt);
        EXPECT_EQ(demande.essaisRestants(), 1);
        EXPECT_EQ(demande.essayer(u"c"_s), fin);
    }
    DemandeMot demande(t.exercice, Verrou::Programme);
    demande.essayer(u"a"_s);
    demande.essayer(u"b"_s);
    EXPECT_EQ(demande.essayer(u"quai"_s), Autorisation::Acceptee) << "the third attempt may still be right";
}

TEST_F(VerrouTest, le_mot_change_sur_le_disque_et_en_memoire_meme_protege_en_ecriture)
{
    ASSERT_TRUE(QFile::setPermissions(fichier, QFileDevice::ReadOwner));
    const auto issue = ChangementMot(t.exercice).valider(u"quai"_s, u" phare "_s, u"PHARE"_s);
    EXPECT_EQ(issue.message, (Refus{u"Sauvegarde effectuée avec succès"_s, u"TALOR"_s, Icone::Information}));
    EXPECT_TRUE(issue.ferme);
    EXPECT_EQ(motSurDisque(), u"PHARE"_s);
    EXPECT_EQ(Configuration::lire(fichier)->mots[1], u"Criée"_s);
    EXPECT_EQ(DemandeMot(t.exercice, Verrou::Programme).essayer(u"phare"_s), Autorisation::Acceptee);
    EXPECT_TRUE(ChangementMot(t.exercice).valider(u"phare"_s, {}, {}).ferme) << "an empty word is a word";
    EXPECT_EQ(motSurDisque(), QString());
}

TEST_F(VerrouTest, un_changement_refuse_n_ecrit_rien_et_le_troisieme_mot_faux_ferme)
{
    ChangementMot changement(t.exercice);
    const auto ecart = changement.valider(u"quai"_s, u"phare"_s, u"phares"_s);
    EXPECT_EQ(ecart.message.texte, u"Confirmation non concordante"_s);
    EXPECT_EQ(ecart.champ, Case::Confirmation);
    EXPECT_FALSE(ecart.ferme);
    for (const bool ferme : {false, false, true}) {
        const auto faux = changement.valider(u"quais"_s, u"phare"_s, u"phare"_s);
        EXPECT_EQ(faux.message, Refus{u"Contrôle négatif"_s});
        EXPECT_EQ(faux.champ, Case::Actuel);
        EXPECT_EQ(faux.ferme, ferme);
    }
    EXPECT_EQ(motSurDisque(), u"QUAI"_s);
}

TEST_F(VerrouTest, un_fichier_qui_ne_s_ecrit_pas_est_nomme_et_le_mot_reste)
{
    ASSERT_TRUE(QFile::remove(fichier));
    const auto issue = ChangementMot(t.exercice).valider(u"quai"_s, u"phare"_s, u"phare"_s);
    EXPECT_TRUE(issue.message.texte.contains(u"TAL2_CFG.CFG"_s));
    EXPECT_FALSE(issue.ferme);
    EXPECT_EQ(t.exercice.configuration().mots[0], u"QUAI"_s);
}
