#include "shell/images_laterales.h"

#include "tests/support/dossier_programme.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace talor;

TEST(ImagesLaterales, le_marqueur_seul_dit_qu_aucune_image_n_est_voulue)
{
    const DossierProgramme dossier;
    const Installation installation = dossier.installation();
    installation.creerDossiers();
    EXPECT_FALSE(imageLaterale(installation, Cote::Droite));
    dossier.ecrire(u"Photos/droit.bmp"_s, "BM");
    EXPECT_EQ(imageLaterale(installation, Cote::Droite), dossier.chemin(u"Photos/droit.bmp"_s));
    EXPECT_FALSE(imageLaterale(installation, Cote::Gauche));
    dossier.ecrire(u"Photos/Droit_V.BMP"_s, "");
    EXPECT_FALSE(imageLaterale(installation, Cote::Droite));
}

TEST(ImagesLaterales, ecarter_une_image_la_laisse_en_place)
{
    const DossierProgramme dossier;
    const Installation installation = dossier.installation();
    installation.creerDossiers();
    dossier.ecrire(u"Photos/Gauche.BMP"_s, "BM");
    EXPECT_FALSE(ecarterImage(installation, Cote::Gauche, true));
    EXPECT_FALSE(imageLaterale(installation, Cote::Gauche));
    EXPECT_EQ(dossier.lire(u"Photos/Gauche.BMP"_s), "BM");
    EXPECT_FALSE(ecarterImage(installation, Cote::Gauche, false));
    EXPECT_TRUE(imageLaterale(installation, Cote::Gauche));
    EXPECT_FALSE(ecarterImage(installation, Cote::Gauche, false)); // nothing to do is no failure
}
