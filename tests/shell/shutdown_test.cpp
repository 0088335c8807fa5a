#include "shell/shutdown.h"

#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

QByteArray contenu(const QString& chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

void ecrire(const QString& chemin, const QByteArray& octets)
{
    QFile fichier(chemin);
    ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
    fichier.write(octets);
}

void ajouterClient(Exercice& exercice, const QString& nom)
{
    exercice.Clients.addNew();
    exercice.Clients.set("nom", nom);
    exercice.Clients.update();
}

QString premierClient(const QString& base)
{
    return store::Database(base, schema()).scalar(u"select nom from Clients"_s).toString();
}

} // namespace

TEST(Arret, laisse_une_copie_de_l_exercice_dans_les_archives_et_ferme_la_base)
{
    ExerciceTemporaire t;
    ajouterClient(t.exercice, u"Haddad"_s);
    EXPECT_TRUE(arreterExercice(t.exercice, Resolution::Origine).isEmpty());
    EXPECT_FALSE(t.exercice.estOuvert());
    EXPECT_EQ(premierClient(t.chemin(u"Archives/TAL2026.mdb"_s)), u"Haddad"_s);
    EXPECT_EQ(premierClient(t.chemin(u"TAL2026.mdb"_s)), u"Haddad"_s);
}

TEST(Arret, remplace_une_copie_plus_ancienne_meme_en_lecture_seule)
{
    ExerciceTemporaire t;
    const QString copie = t.chemin(u"Archives/TAL2026.mdb"_s);
    ecrire(copie, "ancienne");
    QFile::setPermissions(copie, QFileDevice::ReadOwner);
    ajouterClient(t.exercice, u"Haddad"_s);
    EXPECT_TRUE(arreterExercice(t.exercice, Resolution::Origine).isEmpty());
    EXPECT_EQ(premierClient(copie), u"Haddad"_s);
}

TEST(Arret, copie_aussi_l_ancien_exercice_en_vue_sous_son_annee)
{
    ExerciceTemporaire t;
    t.exercice.pointeur = {2025, 1};
    t.exercice.FermerBase();
    t.exercice.choisirAnnee(2025);
    creerExerciceVide(t.exercice.CheminBase);
    t.exercice.OuvrirBase();
    EXPECT_TRUE(arreterExercice(t.exercice, Resolution::Origine).isEmpty());
    EXPECT_TRUE(QFile::exists(t.chemin(u"Archives/TAL2025.mdb"_s)));
    EXPECT_FALSE(QFile::exists(t.chemin(u"Archives/TAL2026.mdb"_s)));
}

TEST(Arret, une_copie_impossible_est_dite_et_le_reste_se_fait)
{
    ExerciceTemporaire t;
    ajouterClient(t.exercice, u"Haddad"_s);
    // A folder stands where the copy should go.
    ASSERT_TRUE(QDir(t.dossier()).mkpath(u"Archives/TAL2026.mdb/occupe"_s));
    const QList<Refus> echecs = arreterExercice(t.exercice, Resolution::Grande);
    ASSERT_EQ(echecs.size(), 1);
    EXPECT_TRUE(echecs[0].texte.contains(u"sa copie dans Archives n'a pas été faite"_s));
    EXPECT_EQ(premierClient(t.chemin(u"TAL2026.mdb"_s)), u"Haddad"_s);
    EXPECT_EQ(contenu(t.chemin(u"R_Ecran.TXT"_s)), "0\n0\n1\n");
}

TEST(Resolution, le_choix_est_retrouve_au_demarrage_suivant)
{
    for (const Resolution choix : {Resolution::Origine, Resolution::Petite, Resolution::Grande}) {
        ExerciceTemporaire t;
        arreterExercice(t.exercice, choix);
        EXPECT_EQ(contenu(t.chemin(u"R_Ecran.TXT"_s)).count('\n'), 3);
        EXPECT_EQ(lireResolution(t.exercice.installation()), choix);
    }
}

TEST(Resolution, un_fichier_court_long_ou_etranger_se_lit_sans_dommage)
{
    const struct
    {
        QByteArray fichier;
        Resolution lue;
    } cas[] = {
        {"", Resolution::Origine},
        {"1", Resolution::Origine},
        {"0\r\n1", Resolution::Petite},
        {" 0 \r\n 0 \r\n 1 \r\n", Resolution::Grande},
        {"0\n1\n1\n", Resolution::Grande},
        {"0\n2\n", Resolution::Origine},
        {QByteArray(100000, 'x'), Resolution::Origine},
        {QByteArray("\xff\n\x00\n\x01", 5), Resolution::Origine},
    };
    for (const auto& c : cas) {
        ExerciceTemporaire t;
        ecrire(t.chemin(u"R_Ecran.TXT"_s), c.fichier);
        EXPECT_EQ(lireResolution(t.exercice.installation()), c.lue) << c.fichier.left(20).toStdString();
    }
}
