#include "lifecycle/premier_exercice.h"

#include "tests/support/dossier_programme.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace talor;

TEST(PremierExercice, une_annee_hors_de_propos_est_refusee_et_ne_laisse_rien)
{
    for (const QString& tape : {u"1993"_s, u""_s, u"0"_s, u"26"_s, u"10000"_s, u"32768"_s, u"99999999999999999999"_s}) {
        DossierProgramme dossier;
        const auto resultat = ouvrirPremierExercice(dossier.installation(), u"TLR"_s, tape);
        ASSERT_FALSE(resultat) << tape.toStdString();
        EXPECT_EQ(resultat.refus(), (Refus{u"Saisie  incorrecte"_s, u"A T T E N T I O N"_s}));
        EXPECT_FALSE(dossier.contient(u"TLR.INI"_s));
        EXPECT_FALSE(dossier.contient(u"TAL"_s + tape + u".mdb"_s));
    }
}

TEST(PremierExercice, le_fichier_d_une_annee_qui_existe_est_garde)
{
    DossierProgramme dossier;
    dossier.ecrire(u"TAL1994.MDB"_s, "mes ventes");
    const auto resultat = ouvrirPremierExercice(dossier.installation(), u"TLR"_s, u"1994"_s);
    ASSERT_TRUE(resultat);
    EXPECT_EQ(resultat->anneeCourante(), 1994);
    EXPECT_EQ(dossier.lire(u"TAL1994.MDB"_s), "mes ventes");
    EXPECT_FALSE(dossier.contient(u"TAL1994.mdb"_s));
    EXPECT_EQ(PointeurAnnee::lire(dossier.chemin(u"TLR.INI"_s)).AnneeInitiale, 1994);
}

TEST(PremierExercice, sans_modele_ni_fichier_ni_pointeur)
{
    DossierProgramme dossier;
    dossier.supprimer(u"TAL00.mdb"_s);
    const auto resultat = ouvrirPremierExercice(dossier.installation(), u"TLR"_s, u"2026"_s);
    ASSERT_FALSE(resultat);
    EXPECT_TRUE(resultat.refus().texte.contains(u"TAL2026.mdb"_s));
    EXPECT_FALSE(dossier.contient(u"TLR.INI"_s));
    EXPECT_FALSE(dossier.contient(u"TAL2026.mdb"_s));
}
