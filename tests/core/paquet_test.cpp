#include "core/paquet.h"

#include "tests/support/print.h"

#include <QCryptographicHash>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

/// A program installed for the machine, and the places of one user.
class PaquetEssai : public testing::Test
{
protected:
    PaquetEssai()
    {
        for (const auto& [nom, octets] :
             {std::pair{"TAL00.mdb", "vide 1"}, std::pair{"system.mdw", "x"}, std::pair{"TAL2_CFG.CFG", "cfg 1"},
              std::pair{"Identite.txt", "id 1"}, std::pair{"Facture.RPT", "facture 1"}})
            livrer(QString::fromLatin1(nom), octets);
    }

    static void ecrire(const QString& chemin, const QByteArray& octets)
    {
        QDir().mkpath(QFileInfo(chemin).path());
        QFile fichier(chemin);
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size());
    }
    static QByteArray lire(const QString& chemin)
    {
        QFile fichier(chemin);
        return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray("(absent)");
    }

    void livrer(const QString& nom, const QByteArray& octets) const
    {
        ecrire(racine.filePath(u"livres/"_s + nom), octets);
    }
    QString chez(const QString& nom = {}) const { return racine.filePath(u"maison/TALOR/"_s + nom); }
    void deposer() const { ASSERT_EQ(paquet.deposer(chez()), std::nullopt); }

    QTemporaryDir racine;
    Paquet paquet{racine.filePath(u"livres"_s), racine.filePath(u"reglages/talor/dossier.txt"_s)};
};

} // namespace

TEST_F(PaquetEssai, un_programme_est_empaquete_quand_ses_fichiers_livres_sont_a_cote_de_lui)
{
    EXPECT_TRUE(Paquet::de(racine.path()));
    EXPECT_FALSE(Paquet::de(racine.filePath(u"livres"_s)));
}

TEST_F(PaquetEssai, le_dossier_choisi_est_retenu_avec_ses_accents)
{
    EXPECT_EQ(paquet.dossierRetenu(), QString());
    const QString choisi = u"/media/Clé de Saïd/Ventes à la criée"_s;
    EXPECT_EQ(paquet.retenir(choisi), std::nullopt);
    EXPECT_EQ(paquet.dossierRetenu(), choisi);
}

TEST_F(PaquetEssai, un_choix_qui_ne_peut_etre_retenu_est_dit)
{
    ecrire(racine.filePath(u"reglages"_s), "un fichier à la place du dossier");
    const auto refus = paquet.retenir(chez());
    ASSERT_TRUE(refus);
    EXPECT_TRUE(refus->texte.startsWith(u"Le choix du dossier n'a pas pu être retenu"));
}

TEST_F(PaquetEssai, un_dossier_qui_tient_autre_chose_recoit_les_donnees_dans_un_dossier_a_lui)
{
    const QString documents = racine.filePath(u"Documents"_s);
    EXPECT_EQ(Paquet::dossierPour(documents), documents); // not there yet
    QDir().mkpath(documents);
    EXPECT_EQ(Paquet::dossierPour(documents), documents);
    ecrire(documents + u"/lettre.odt"_s, "x");
    EXPECT_EQ(Paquet::dossierPour(documents), documents + u"/TALOR"_s);
    deposer();
    EXPECT_EQ(Paquet::dossierPour(chez()), chez());
}

TEST_F(PaquetEssai, le_premier_depot_cree_le_dossier_et_sa_liste_se_verifie)
{
    deposer();
    EXPECT_EQ(lire(chez(u"Facture.RPT"_s)), "facture 1");
    EXPECT_EQ(lire(chez(u"TAL2_CFG.CFG"_s)), "cfg 1");
    const QByteArray somme = QCryptographicHash::hash("facture 1", QCryptographicHash::Sha256).toHex();
    EXPECT_TRUE(lire(chez(u"Livraison.txt"_s)).contains(somme + "  Facture.RPT\n"));
    EXPECT_EQ(Paquet::verifier(chez()), std::nullopt);
}

TEST_F(PaquetEssai, un_paquet_plus_recent_renouvelle_ce_que_l_utilisateur_n_a_pas_touche)
{
    deposer();
    ecrire(chez(u"TAL2026.mdb"_s), "mes ventes");
    ecrire(chez(u"system.mdw"_s), "à moi");
    QFile::remove(chez(u"TAL00.mdb"_s));
    for (const QString& nom :
         {u"Facture.RPT"_s, u"system.mdw"_s, u"TAL2_CFG.CFG"_s, u"Identite.txt"_s, u"TAL00.mdb"_s, u"Bordero.RPT"_s})
        livrer(nom, "2");
    deposer();

    const struct
    {
        QString nom;
        QByteArray attendu;
    } cas[] = {{u"Facture.RPT"_s, "2"},                                // as it was laid
               {u"system.mdw"_s, "à moi"},                             // changed by the user
               {u"TAL2_CFG.CFG"_s, "cfg 1"},                           // his from the first day, changed or not
               {u"Identite.txt"_s, "id 1"},     {u"TAL00.mdb"_s, "2"}, // lost
               {u"Bordero.RPT"_s, "2"},                                // new in this package
               {u"TAL2026.mdb"_s, "mes ventes"}};
    for (const auto& c : cas)
        EXPECT_EQ(lire(chez(c.nom)), c.attendu) << c.nom.toStdString();

    livrer(u"Facture.RPT"_s, "3"); // and so again
    deposer();
    EXPECT_EQ(lire(chez(u"Facture.RPT"_s)), "3");
    EXPECT_EQ(lire(chez(u"system.mdw"_s)), "à moi");
}

TEST_F(PaquetEssai, une_modification_reste_meme_quand_le_paquet_l_avait_apportee_une_fois)
{
    ecrire(chez(u"Facture.RPT"_s), "venue d'une copie portable");
    deposer();
    EXPECT_EQ(lire(chez(u"Facture.RPT"_s)), "venue d'une copie portable");
    ecrire(chez(u"Facture.RPT"_s), "facture 1"); // taken back by hand
    deposer();
    livrer(u"Facture.RPT"_s, "facture 2");
    deposer();
    EXPECT_EQ(lire(chez(u"Facture.RPT"_s)), "facture 2");
}

TEST_F(PaquetEssai, un_depot_sans_nouveaute_ne_reecrit_rien)
{
    deposer();
    const QDateTime avant = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    const QStringList noms = QDir(chez()).entryList(QDir::Files);
    for (const QString& nom : noms) {
        QFile fichier(chez(nom));
        ASSERT_TRUE(fichier.open(QIODevice::ReadWrite) &&
                    fichier.setFileTime(avant, QFileDevice::FileModificationTime));
    }
    deposer();
    EXPECT_EQ(QDir(chez()).entryList(QDir::Files), noms);
    for (const QString& nom : noms)
        EXPECT_EQ(QFileInfo(chez(nom)).lastModified(), avant) << nom.toStdString();
}

TEST_F(PaquetEssai, un_dossier_perdu_ou_vide_est_nomme)
{
    const auto perdu = Paquet::verifier(chez());
    ASSERT_TRUE(perdu);
    EXPECT_TRUE(perdu->texte.contains(chez()) && perdu->texte.contains(u"introuvable"));
    QDir().mkpath(chez()); // the mount point of a disk that is not there
    const auto vide = Paquet::verifier(chez());
    ASSERT_TRUE(vide);
    EXPECT_TRUE(vide->texte.contains(u"ne contient plus vos données"));
}

TEST_F(PaquetEssai, un_dossier_ou_l_on_ne_peut_rien_ecrire_est_nomme)
{
    ecrire(racine.filePath(u"fichier"_s), "x");
    const auto refus = paquet.deposer(racine.filePath(u"fichier/TALOR"_s));
    ASSERT_TRUE(refus);
    EXPECT_EQ(refus->texte, u"Le dossier « "_s + racine.filePath(u"fichier/TALOR"_s) + u" » n'a pas pu être créé."_s);

    const auto protege = paquet.deposer(u"/proc"_s); // not even for root
    ASSERT_TRUE(protege);
    EXPECT_EQ(protege->texte, u"Rien ne peut être écrit dans le dossier « /proc »."_s);
}

TEST_F(PaquetEssai, un_fichier_qui_ne_peut_etre_pose_est_nomme)
{
    QDir().mkpath(chez(u"Facture.RPT"_s)); // a folder of that name
    const auto refus = paquet.deposer(chez());
    ASSERT_TRUE(refus);
    EXPECT_TRUE(refus->texte.contains(u"'Facture.RPT'")) << refus->texte.toStdString();
}
