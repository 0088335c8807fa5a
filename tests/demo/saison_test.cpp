#include "demo/saison.h"

#include "tests/support/print.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace talor;
using namespace talor::demo;

namespace {

Resultat<Saison> lireTexte(const QString& texte)
{
    QTemporaryDir dossier;
    const QString chemin = dossier.filePath(u"essai.txt"_s);
    QFile fichier(chemin);
    EXPECT_TRUE(fichier.open(QIODevice::WriteOnly));
    fichier.write(texte.toUtf8());
    fichier.close();
    return lireSaison(chemin);
}

const QString petiteSaison = uR"(# une matinée
[mandataire]
  R.C. = 02 A 01 = X
[catégories]
  Mandataires
[poissons]
  1 ; Sardine
  7 ; Rouget de roche
[armateurs]
  BENSALEM ; Mourad ; Quai ; ; 0550000101 ; Ténès
[embarcations]
  L'Espérance ; BENSALEM ; Ténès ; TN 1147
[clients]
  3 ; D'ALMEIDA ; Paul ; Mandataires ; Vieux port ; Cherchell ; 0550000231
[journée 02/11/2026]
[bordereau L'Espérance]
  frais  = Glace 9 600.50 ; Péage du port 2 500
  primes = 1 000
  taux   = 12.5
  3 D'ALM ; Rouget de roche ; 2 ; 18.5 ; 2 200
  3       ; Sardine         ; 1 250 ; ; 1 900
)"_s;

} // namespace

TEST(Saison, se_lit_comme_elle_est_ecrite)
{
    const Resultat<Saison> lue = lireTexte(petiteSaison);
    ASSERT_TRUE(lue) << lue.refus().texte.toStdString();

    EXPECT_EQ(lue->annee(), 2026);
    EXPECT_EQ(lue->mandataire.RC, u"02 A 01 = X"_s);
    EXPECT_EQ(lue->embarcations[0].armateur, 0);
    EXPECT_EQ(lue->armateurs[0].ville, u"Ténès"_s);
    EXPECT_EQ(lue->clients[0].nom, u"D'ALMEIDA"_s);
    EXPECT_EQ(lue->clients[0].RC, QString());

    ASSERT_EQ(lue->journees.size(), 1);
    ASSERT_EQ(lue->journees[0].bordereaux.size(), 1);
    const Bordereau& b = lue->journees[0].bordereaux[0];
    ASSERT_EQ(b.frais.size(), 2);
    EXPECT_EQ(b.frais[0].montant, u"9600.50"_s);
    EXPECT_EQ(b.frais[1].libelle, u"Péage du port"_s);
    EXPECT_EQ(b.primes, u"1000"_s);
    EXPECT_EQ(b.taux, u"12.5"_s);
    ASSERT_EQ(b.lignes.size(), 2);
    EXPECT_EQ(b.lignes[0].poisson, 1);
    EXPECT_EQ(b.lignes[0].poids, u"18.5"_s);
    EXPECT_EQ(b.lignes[1].cageots, u"1250"_s);
    EXPECT_EQ(b.lignes[1].poids, QString());
}

TEST(Saison, une_faute_est_signalee_avec_sa_ligne)
{
    struct Cas
    {
        QString bonne, mauvaise;
        int ligne;
        QString dit;
    };
    const Cas cas[] = {
        {u"  R.C. ="_s, u"  RC ="_s, 3, u"« RC » inconnu"_s},
        {u"  1 ; Sardine"_s, u"  x ; Sardine"_s, 7, u"n'est pas un nombre"_s},
        {u"  1 ; Sardine"_s, u"    ; Sardine"_s, 7, u"N° omis"_s},
        {u"  7 ; Rouget de roche\n"_s, u"  1 ; Rouget de roche\n"_s, 8, u"répété"_s},
        {u"  BENSALEM ; Mourad"_s, u"  BENSALEM ; "_s, 10, u"prénom"_s},
        {u"; BENSALEM ; Ténès ;"_s, u"; BENSALAM ; Ténès ;"_s, 12, u"« BENSALAM » inconnu"_s},
        {u"; Mandataires ;"_s, u"; Voyageurs ;"_s, 14, u"« Voyageurs » inconnue"_s},
        {u"0550000231"_s, u"0550000231 ; ; ; ; trop"_s, 14, u"11 champs"_s},
        {u"[journée 02/11/2026]"_s, u"[journée 31/02/2026]"_s, 15, u"date"_s},
        {u"[journée 02/11/2026]"_s, u"[journée 02/11/2026"_s, 15, u"crochet"_s},
        {u"[journée 02/11/2026]"_s, u"# rien"_s, 16, u"hors d'une journée"_s},
        {u"[bordereau L'Espérance]"_s, u"[bordereau Inconnu]"_s, 16, u"« Inconnu » inconnue"_s},
        {u"[bordereau L'Espérance]"_s, u"# rien"_s, 17, u"un bordereau est attendu"_s},
        {u"Glace 9 600.50"_s, u"Glace"_s, 17, u"un libellé et un montant"_s},
        {u"  primes ="_s, u"  prime ="_s, 18, u"« prime » inconnu"_s},
        {u"= 12.5"_s, u"= 100"_s, 19, u"moins de 100"_s},
        {u"  3 D'ALM ;"_s, u"  4 D'ALM ;"_s, 20, u"client N° 4 inconnu"_s},
        {u"  3 D'ALM ;"_s, u"  3 TOUMI ;"_s, 20, u"est « D'ALMEIDA »"_s},
        {u"; Rouget de roche ; 2 "_s, u"; Rougette ; 2 "_s, 20, u"« Rougette » inconnu"_s},
        {u"; 2 ; 18.5 ;"_s, u"; 2.5 ; 18.5 ;"_s, 20, u"n'est pas un nombre entier"_s},
        {u"; 2 ; 18.5 ;"_s, u"; 2 ; -18.5 ;"_s, 20, u"n'est pas un nombre"_s},
        {u"; 2 ; 18.5 ;"_s, u"; ; ;"_s, 20, u"ni cageots ni poids"_s},
        {u"; 18.5 ; 2 200"_s, u"; 18.5"_s, 20, u"P.U. omis"_s},
        {u"; 18.5 ; 2 200"_s, u"; 18.5 ; 2 200 ; 9"_s, 20, u"6 champs"_s},
        {u"# une matinée"_s, u"une matinée"_s, 1, u"section"_s},
        {u"[catégories]"_s, u"[catégorie]"_s, 4, u"« catégorie » inconnue"_s},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.mauvaise.toStdString());
        QString texte = petiteSaison;
        ASSERT_EQ(texte.count(c.bonne), 1);
        const Resultat<Saison> lue = lireTexte(texte.replace(c.bonne, c.mauvaise));
        ASSERT_FALSE(lue);
        EXPECT_TRUE(lue.refus().texte.contains(u"'essai.txt', ligne %1 : "_s.arg(c.ligne)))
            << lue.refus().texte.toStdString();
        EXPECT_TRUE(lue.refus().texte.contains(c.dit)) << lue.refus().texte.toStdString();
    }
}

TEST(Saison, une_journee_suit_la_precedente_et_un_bordereau_a_des_lignes)
{
    const auto refus = [](const QString& suite) { return lireTexte(petiteSaison + suite).refus().texte; };
    EXPECT_TRUE(refus(u"[journée 02/11/2026]\n"_s).contains(u"ne vient pas après"_s));
    EXPECT_TRUE(refus(u"[journée 02/01/2027]\n"_s).contains(u"exercice 2026"_s));
    // The bordereau left empty is blamed, not the place where that comes to light.
    EXPECT_TRUE(
        refus(u"[bordereau L'Espérance]\n# rien\n[journée 03/11/2026]\n"_s).contains(u"ligne 22 : bordereau sans"_s));
    EXPECT_FALSE(lireTexte(QString()));
    EXPECT_TRUE(lireSaison(u"/nulle/part/saison.txt"_s).refus().texte.contains(u"'saison.txt' illisible"_s));
}

TEST(Saison, celle_qui_est_livree_a_de_quoi_montrer)
{
    const Resultat<Saison> lue = lireSaison(QStringLiteral(TALOR_SOURCE_DIR "/demo/saison.txt"));
    ASSERT_TRUE(lue) << lue.refus().texte.toStdString();
    EXPECT_GE(lue->journees.size(), 4);

    qsizetype lignes = 0;
    qsizetype plusGrandeFacture = 0;
    for (const Journee& journee : lue->journees) {
        QHash<int, qsizetype> parClient;
        for (const Bordereau& b : journee.bordereaux) {
            lignes += b.lignes.size();
            for (const Ligne& ligne : b.lignes)
                plusGrandeFacture = std::max(plusGrandeFacture, ++parClient[ligne.client]);
        }
    }
    EXPECT_GE(lignes, 220);
    EXPECT_GT(plusGrandeFacture, 30); // an invoice that runs over its first page
}
