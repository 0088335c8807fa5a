#include "core/helpers.h"
#include "tests/support/print.h"

#include <QFile>
#include <QTemporaryDir>
#include <limits>

using namespace Qt::StringLiterals;
using namespace talor;

TEST(Valeur, saute_les_blancs_et_s_arrete_au_premier_autre_caractere)
{
    const std::pair<const char*, double> cas[] = {{"", 0},
                                                  {"   ", 0},
                                                  {"12", 12},
                                                  {" 1 250.50 ", 1250.5},
                                                  {"-3.5", -3.5},
                                                  {"12,5", 12},
                                                  {"12.5.7", 12.5},
                                                  {"abc", 0},
                                                  {"5-3", 5},
                                                  {".50", 0.5},
                                                  {"1 200 DA", 1200},
                                                  {"--4", 0},
                                                  {"+7", 7},
                                                  {"+", 0},
                                                  {".", 0},
                                                  {"12.", 12},
                                                  {"123456789012", 123456789012.0}};
    for (const auto& [texte, valeur] : cas)
        EXPECT_EQ(Valeur(QString::fromUtf8(texte)), valeur) << texte;
    EXPECT_EQ(ValeurEntiere(u"12.99"), 12);
    EXPECT_EQ(ValeurEntiere(u"99999999999999999999"), std::numeric_limits<qint64>::max());
}

TEST(NombreAvecBlanc, garde_la_place_du_signe)
{
    EXPECT_EQ(u"Ligne N° "_s + NombreAvecBlanc(3), u"Ligne N°  3"_s);
    EXPECT_EQ(NombreAvecBlanc(-1), u"-1"_s);
}

TEST(DateValide, connait_les_mois_et_ignore_la_regle_des_siecles)
{
    const char* valides[] = {"31/01/2026", "30/04/2026", "28/02/2026", "29/02/2024",
                             "29/02/1900", "29/02/2100", "31/12/1900"};
    const char* fautives[] = {"31/04/2024", "29/02/2026", "30/02/2024", "32/01/2026", "00/01/2026", "12/13/2026",
                              "12/00/2026", "01/01/1899", "1/01/2026",  "",           "ab/cd/efgh", "15/11/26"};
    for (const char* texte : valides)
        EXPECT_EQ(DateValide(QString::fromUtf8(texte)), 0) << texte;
    for (const char* texte : fautives)
        EXPECT_EQ(DateValide(QString::fromUtf8(texte)), 1) << texte;
}

TEST(Dates, changent_de_forme_par_caracteres)
{
    EXPECT_EQ(DateRequete(u"15/11/2026"_s), u"11/15/2026"_s);
    EXPECT_EQ(DateInversee(u" 15/11/2026 "_s), u"2026/11/15"_s);
    EXPECT_EQ(DateInversee(u""_s), u"..../.../..."_s);
    EXPECT_EQ(DateInversee(u"5-1-2026"_s), u"2026/1/5"_s);
    EXPECT_EQ(MoisDe(u"15/11/2026"_s), 11);
}

TEST(EcartJours, compte_par_dessus_mois_et_annees)
{
    EXPECT_EQ(EcartJours(u"01/01/2026"_s, u"01/01/2026"_s), 0);
    EXPECT_EQ(EcartJours(u"28/02/2024"_s, u"01/03/2024"_s), 2);
    EXPECT_EQ(EcartJours(u"02/01/2026"_s, u"31/12/2025"_s), -2);
    EXPECT_EQ(EcartJours(u"28/02/2100"_s, u"29/02/2100"_s), 1); // accepted, though no day of the calendar
}

TEST(FichierExiste, trouve_un_fichier_quelle_que_soit_la_casse)
{
    QTemporaryDir dossier;
    QFile fichier(dossier.filePath(u"TAL2026.MDB"_s));
    ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
    fichier.close();
    EXPECT_TRUE(FichierExiste(dossier.filePath(u"tal2026.mdb"_s)));
    EXPECT_EQ(CheminReel(dossier.filePath(u"Tal2026.mdb"_s)), dossier.filePath(u"TAL2026.MDB"_s));
    EXPECT_FALSE(FichierExiste(dossier.filePath(u"TAL2027.mdb"_s)));
    EXPECT_TRUE(FichierExiste(dossier.path()));
}
