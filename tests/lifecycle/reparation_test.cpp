#include "lifecycle/reparation.h"

#include "platform/store/maintenance.h"

#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

constexpr int nbClients = 2000;

void remplir(Exercice& exercice)
{
    store::Transaction transaction(exercice.Base());
    for (int i = 0; i < nbClients; ++i) {
        exercice.Clients.addNew();
        exercice.Clients.set("ordre", i);
        exercice.Clients.set("nom", u"Client %1"_s.arg(i));
        exercice.Clients.update();
    }
    transaction.commit();
}

qint64 compter(Exercice& exercice)
{
    return exercice.Base().scalar(u"select count(*) from Clients"_s).toLongLong();
}

void ecrire(const QString& chemin, qint64 place, const QByteArray& octets)
{
    QFile fichier(chemin);
    ASSERT_TRUE(fichier.open(QIODevice::ReadWrite));
    fichier.seek(place);
    ASSERT_EQ(fichier.write(octets), octets.size());
}

} // namespace

TEST(Reparation, la_liste_montre_les_exercices_du_siecle_et_pas_le_modele)
{
    ExerciceTemporaire t;
    for (const QString& nom : {u"TAL00.mdb"_s, u"TAL1999.mdb"_s, u"tal2025.MDB"_s, u"prov.mdb"_s, u"TAL2024.mdb-bis"_s})
        ecrire(t.chemin(nom), 0, "x");
    EXPECT_EQ(basesReparables(t.exercice.installation()), (QStringList{u"tal2025.MDB"_s, u"TAL2026.mdb"_s}));
}

TEST(Reparation, compacter_rend_la_place_et_garde_chaque_ligne)
{
    ExerciceTemporaire t;
    remplir(t.exercice);
    t.exercice.Base().execute(u"Delete * from Clients where ordre >= 10"_s);
    const qint64 avant = QFile(t.exercice.CheminBase).size();
    ecrire(t.chemin(u"prov.mdb"_s), 0, "reste d'une autre fois");

    const auto resultat = CompacterBase(t.exercice);
    ASSERT_TRUE(resultat) << resultat.refus().texte.toStdString();
    EXPECT_TRUE(resultat->isEmpty());
    ASSERT_TRUE(t.exercice.estOuvert());
    EXPECT_EQ(compter(t.exercice), 10);
    EXPECT_EQ(t.exercice.Clients.recordCount(), 10);
    EXPECT_LT(QFile(t.exercice.CheminBase).size(), avant);
    EXPECT_FALSE(QFile::exists(t.chemin(u"prov.mdb"_s)));
}

TEST(Reparation, une_base_endommagee_s_ouvre_de_nouveau_avec_ce_qui_se_lit_encore)
{
    ExerciceTemporaire t;
    remplir(t.exercice);
    t.exercice.FermerBase();
    const qint64 taille = QFile(t.exercice.CheminBase).size();
    ecrire(t.exercice.CheminBase, taille / 2, QByteArray(8192, '\x5a'));
    ASSERT_FALSE(store::checkFile(t.exercice.CheminBase).isEmpty());

    const auto resultat = reparerBase(t.exercice, u"TAL2026.mdb"_s);
    ASSERT_TRUE(resultat) << resultat.refus().texte.toStdString();
    EXPECT_FALSE(t.exercice.estOuvert()); // it was not open before
    EXPECT_TRUE(store::checkFile(t.exercice.CheminBase).isEmpty());
    t.exercice.OuvrirBase();
    EXPECT_GT(compter(t.exercice), nbClients / 2);
}

TEST(Reparation, reparer_un_autre_fichier_rouvre_celui_qui_etait_en_vue)
{
    ExerciceTemporaire t;
    remplir(t.exercice);
    creerExerciceVide(t.chemin(u"TAL2025.mdb"_s));
    ASSERT_TRUE(reparerBase(t.exercice, u"TAL2025.mdb"_s));
    ASSERT_TRUE(t.exercice.estOuvert());
    EXPECT_EQ(t.exercice.Base().path(), t.chemin(u"TAL2026.mdb"_s));
    EXPECT_EQ(compter(t.exercice), nbClients);
}

TEST(Reparation, un_echec_se_dit_avec_son_numero_et_laisse_le_fichier_en_place)
{
    ExerciceTemporaire t;
    const QByteArray etranger = "ceci n'est pas une base de données, et de loin";
    ecrire(t.chemin(u"TAL2025.mdb"_s), 0, etranger);
    const auto resultat = reparerBase(t.exercice, u"TAL2025.mdb"_s);
    ASSERT_FALSE(resultat);
    EXPECT_TRUE(resultat.refus().texte.startsWith(u"Erreur N° "_s));
    EXPECT_EQ(resultat.refus().titre, u"TALOR"_s);
    QFile fichier(t.chemin(u"TAL2025.mdb"_s));
    ASSERT_TRUE(fichier.open(QIODevice::ReadOnly));
    EXPECT_EQ(fichier.readAll(), etranger);
}
