#include "core/configuration.h"
#include "tests/support/print.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

class FichierConfiguration : public testing::Test
{
protected:
    QTemporaryDir dossier;
    QString chemin = dossier.filePath(u"TAL2_CFG.CFG"_s);

    static Configuration exemple()
    {
        Configuration c;
        c.CodeFichier = u"TLR"_s;
        c.mots = {u"QUAI"_s, u"CRIÉE"_s, u"MAÎTRE"_s};
        c.textes[0] = u"Mandataire O'Brien & Œuvre"_s;
        c.textes[7] = QString(38, u'x');
        c.textes[8] = u"وكيل السمك"_s;
        return c;
    }
    QByteArray contenu() const
    {
        QFile f(chemin);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    void ecrire(const QByteArray& octets) const
    {
        QFile f(chemin);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(octets);
    }
};

} // namespace

TEST_F(FichierConfiguration, revient_comme_elle_a_ete_ecrite)
{
    ASSERT_FALSE(exemple().ecrire(chemin));
    const auto lue = Configuration::lire(chemin);
    ASSERT_TRUE(lue);
    EXPECT_EQ(lue->CodeFichier, u"TLR"_s);
    EXPECT_EQ(lue->mots, exemple().mots);
    EXPECT_EQ(lue->textes, exemple().textes);
    EXPECT_EQ(lue->langue, Configuration::francais);
}

TEST_F(FichierConfiguration, a_la_forme_dont_d_autres_outils_dependent)
{
    ASSERT_FALSE(exemple().ecrire(chemin));
    const QByteArray octets = contenu();
    EXPECT_EQ(octets.size(), 52 * 84);
    const auto mot = [&](int enregistrement, int rang) {
        const int place = (enregistrement - 1) * 84 + (rang - 1) * 2;
        return static_cast<quint8>(octets[place]) + 256 * static_cast<quint8>(octets[place + 1]);
    };
    EXPECT_EQ(mot(4, 8), 'T' * 7);
    EXPECT_EQ(mot(4, 10), 'R' * 7);
    EXPECT_EQ(mot(1, 1), 4); // an access word has its plain length in front
    EXPECT_EQ(mot(1, 2), 'Q' * 7);
    EXPECT_EQ(mot(37, 42), 26 * 7); // an identity text has seven times its length behind
    EXPECT_EQ(mot(37, 1), 'M' * 7);
}

TEST_F(FichierConfiguration, un_texte_trop_long_est_coupe_a_sa_largeur)
{
    Configuration c = exemple();
    c.textes[2] = QString(60, u'y');
    ASSERT_FALSE(c.ecrire(chemin));
    EXPECT_EQ(Configuration::lire(chemin)->textes[2], QString(20, u'y'));
}

TEST_F(FichierConfiguration, un_mot_nul_raccourcit_le_code)
{
    ASSERT_FALSE(exemple().ecrire(chemin));
    QByteArray octets = contenu();
    octets[3 * 84 + 8 * 2] = 0; // word 9 of record 4
    octets[3 * 84 + 8 * 2 + 1] = 0;
    ecrire(octets);
    EXPECT_EQ(Configuration::lire(chemin)->CodeFichier, u"TR"_s);
}

TEST_F(FichierConfiguration, changer_un_mot_laisse_le_reste_a_l_octet_pres)
{
    ASSERT_FALSE(exemple().ecrire(chemin));
    const QByteArray avant = contenu();
    ASSERT_TRUE(QFile::setPermissions(chemin, QFileDevice::ReadOwner));
    ASSERT_FALSE(Configuration::ecrireMot(chemin, 1, u"NOUVEAU"_s));
    const QByteArray apres = contenu();
    EXPECT_EQ(Configuration::lire(chemin)->mots[1], u"NOUVEAU"_s);
    EXPECT_EQ(avant.left(84), apres.left(84));
    EXPECT_EQ(avant.mid(168), apres.mid(168));
}

TEST_F(FichierConfiguration, un_fichier_absent_court_ou_etranger_est_nomme)
{
    const auto raison = [&] { return Configuration::lire(chemin).refus().texte; };
    EXPECT_TRUE(raison().contains(u"TAL2_CFG.CFG"_s));
    ecrire({});
    EXPECT_TRUE(raison().contains(u"incomplet"_s));
    ecrire(QByteArray(500, 'a'));
    EXPECT_TRUE(raison().contains(u"incomplet"_s));
    ecrire(QByteArray(52 * 84, '\0'));
    EXPECT_TRUE(raison().contains(u"altéré"_s));
    // Lengths beyond the record are cut, never followed.
    ASSERT_FALSE(exemple().ecrire(chemin));
    QByteArray octets = contenu();
    octets.replace(36 * 84 + 82, 2, QByteArray("\xff\xff", 2));
    octets.replace(0, 2, QByteArray("\xff\xff", 2));
    ecrire(octets);
    const auto lue = Configuration::lire(chemin);
    ASSERT_TRUE(lue);
    EXPECT_LE(lue->textes[0].size(), 40);
    EXPECT_LE(lue->mots[0].size(), 41);
}

TEST_F(FichierConfiguration, un_pointeur_d_annee_court_ou_absent_veut_dire_aucun_exercice)
{
    const QString pointeur = dossier.filePath(u"TLR.INI"_s);
    EXPECT_EQ(PointeurAnnee::lire(pointeur).AnneeInitiale, 0);
    QFile f(pointeur);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("abc");
    f.close();
    EXPECT_EQ(PointeurAnnee::lire(pointeur).AnneeInitiale, 0);
    ASSERT_FALSE((PointeurAnnee{2026, 3}.ecrire(pointeur)));
    EXPECT_EQ(PointeurAnnee::lire(pointeur).anneeCourante(), 2029);
    EXPECT_EQ(QFile(pointeur).size(), 4);
    EXPECT_TRUE((PointeurAnnee{2026, 0}.ecrire(dossier.filePath(u"absent/TLR.INI"_s))));
}
