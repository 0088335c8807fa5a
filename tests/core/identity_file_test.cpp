#include "core/identity_file.h"
#include "tests/support/print.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace talor;

TEST(FichierIdentite, donne_la_configuration_d_un_nouveau_commerce)
{
    QTemporaryDir dossier;
    const QString chemin = dossier.filePath(u"Identite.txt"_s);
    const auto lire = [&](const char* contenu) {
        QFile f(chemin);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(contenu);
        f.close();
        return lireFichierIdentite(chemin);
    };
    const auto lue =
        lire("# remarque\r\nnom = Éts O'Brien = Fils\r\nligne3=Ténès\n\nmot2 = CRIÉE\nfichier = TLR\nnom_ar = سمك\n");
    ASSERT_TRUE(lue);
    EXPECT_EQ(lue->textes[0], u"Éts O'Brien = Fils"_s);
    EXPECT_EQ(lue->textes[2], u"Ténès"_s);
    EXPECT_EQ(lue->textes[8], u"سمك"_s);
    EXPECT_EQ(lue->mots[1], u"CRIÉE"_s);

    EXPECT_TRUE(lire("nom = A\nfichier = TLR\nligne9 = x\n").refus().texte.contains(u"ligne 3"_s));
    EXPECT_TRUE(lire("nom = A\nbonjour\n").refus().texte.contains(u"ligne 2"_s));
    EXPECT_TRUE(
        lire("nom = A\nfichier = TLR\nligne3 = une ville au nom bien trop long\n").refus().texte.contains(u"20"_s));
    EXPECT_FALSE(lire(""));
    EXPECT_FALSE(lireFichierIdentite(dossier.filePath(u"absent.txt"_s)));
}

TEST(FichierIdentite, celui_qui_est_livre_se_lit)
{
    const auto lue = lireFichierIdentite(QStringLiteral(TALOR_SOURCE_DIR "/install/Identite.txt"));
    ASSERT_TRUE(lue);
    EXPECT_EQ(lue->CodeFichier, u"TLR"_s);
}
