#include "reference/cadre_image.h"
#include "reference/j_prod.h"
#include "tests/reference/fichier_a_l_ecran.h"

#include "reference/fichiers.h"
#include "reference/images.h"

using namespace Qt::StringLiterals;
using namespace talor;
using controls::Answer;

namespace {

struct J_PROD_Test : testing::Test
{
    void ajouter(const QStringList& noms)
    {
        Fiches produits(t.exercice, fichierProduits());
        produits.remplir();
        for (const QString& nom : noms) {
            const QString numero = QString::number(produits.nombre() + 1);
            ASSERT_TRUE(produits.enregistrer({{u"ordre"_s, numero}, {u"denom"_s, nom}}, {}));
        }
    }

    bool imageParDefaut(FichierALEcran<J_PROD>& f)
    {
        return control<CadreImage>(f.dialogue, u"SSFrame2"_s)->estParDefaut();
    }

    ExerciceTemporaire t;
};

const QString invitation = u"Aucun produit enregistré\ninstaller un nouveau produit"_s;

} // namespace

TEST_F(J_PROD_Test, un_catalogue_vide_invite_au_premier_produit)
{
    ExpectMessages messages{{invitation, u"TALOR"_s}};
    FichierALEcran<J_PROD> f(t.exercice);
    messages.verify();
    EXPECT_EQ(f.titre(), u"NOUVEAU PRODUIT"_s);
    f.taperSuite({u"1x2"_s, u"Œil-de-bœuf"_s});
    f.touche(Qt::Key_Return);
    EXPECT_EQ(f.focus(), u"Text1(1)"_s) << "Enter does nothing in the last field";
    f.ok();
    EXPECT_EQ(f.colonne(0), QStringList{u"1"_s});
    EXPECT_EQ(f.colonne(1), QStringList{u" Œil-de-bœuf"_s});
    EXPECT_EQ(f.colonne(2), QStringList{u"12"_s});
}

TEST_F(J_PROD_Test, un_numero_repete_ou_une_designation_vide_sont_refuses_sur_leur_champ)
{
    ajouter({u"Sardine"_s, u"Rouget"_s});
    FichierALEcran<J_PROD> f(t.exercice);
    f.touche(Qt::Key_Insert);
    f.taperSuite({u"2"_s, u"Merlan"_s});
    ExpectMessages refus{{u"Numéro répété"_s, u"ATTENTION"_s}, {u"Saisie incomplète"_s, u"ATTENTION"_s}};
    f.ok();
    EXPECT_EQ(f.focus(), u"Text1(0)"_s);
    EXPECT_EQ(f.champ(1), u"Merlan"_s);
    f.taper(0, u"3"_s);
    f.taper(1, u" "_s);
    f.ok();
    EXPECT_EQ(f.focus(), u"Text1(1)"_s);
    f.taper(1, u"Merlan"_s);
    f.ok();
    EXPECT_EQ(f.colonne(2), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(f.grille()->currentRow(), 2);
}

TEST_F(J_PROD_Test, un_produit_vendu_ne_se_supprime_pas)
{
    ajouter({u"Sardine"_s, u"Rouget"_s});
    t.exercice.Base().execute(u"insert into L_Vente (Num_Poisson) values (1)"_s);
    FichierALEcran<J_PROD> f(t.exercice);
    ExpectMessages messages{{u"Ce produit est inclus dans un mouvement"_s, u"ATTENTION"_s},
                            {u"Confirmer supression de ligne N° 2"_s, u"Confirmation"_s, Answer::Yes}};
    f.touche(Qt::Key_Delete);
    f.touche(Qt::Key_Down);
    f.touche(Qt::Key_Delete);
    EXPECT_EQ(f.colonne(1), QStringList{u" Sardine"_s});
    EXPECT_EQ(f.grille()->currentRow(), 0);
}

// Kept on purpose: the arrows move the cards on the screen only, and only `Haut` takes the number along.
TEST_F(J_PROD_Test, les_fleches_deplacent_la_ligne_et_le_numero_repete_se_dit_en_quittant)
{
    ajouter({u"Sardine"_s, u"Rouget"_s, u"Merlan"_s});
    FichierALEcran<J_PROD> f(t.exercice);
    auto* haut = control(f.dialogue, u"Haut"_s);
    auto* bas = control(f.dialogue, u"Bas"_s);
    EXPECT_FALSE(haut->isVisible());
    EXPECT_TRUE(bas->isVisible());

    f.touche(Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(haut->isVisible());
    f.touche(Qt::Key_Down, Qt::AltModifier);
    EXPECT_FALSE(bas->isVisible());
    EXPECT_EQ(f.grille()->currentRow(), 2) << "the selection goes with the card";
    EXPECT_EQ(f.colonne(0), (QStringList{u"2"_s, u"3"_s, u"1"_s}));
    EXPECT_EQ(f.colonne(1), (QStringList{u" Rouget"_s, u" Merlan"_s, u" Sardine"_s}));
    EXPECT_EQ(f.colonne(2), (QStringList{u"1"_s, u"2"_s, u"3"_s}));

    // Sardine stands at the place of number 3, and so number 3 is its own there.
    f.touche(Qt::Key_Return);
    EXPECT_EQ(f.champ(0), u"1"_s);
    f.taper(0, u"3"_s);
    f.ok();
    f.touche(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(f.colonne(1), (QStringList{u" Rouget"_s, u" Sardine"_s, u" Merlan"_s}));
    f.touche(Qt::Key_Escape);

    ExpectMessages rapport{{u"N°  0003  répété"_s, u"ATTENTION"_s}};
    FichierALEcran<J_PROD> encore(t.exercice);
    EXPECT_EQ(encore.colonne(2), (QStringList{u"2"_s, u"3"_s, u"3"_s}));
    encore.touche(Qt::Key_Escape);
    EXPECT_FALSE(encore.dialogue.isVisible()) << "it closes all the same";
}

TEST_F(J_PROD_Test, une_image_se_choisit_se_voit_et_se_supprime)
{
    ajouter({u"Sardine"_s, u"Rouget"_s});
    QImage image(60, 40, QImage::Format_RGB32);
    image.fill(Qt::blue);
    const QString choisie = t.chemin(u"sardine.JPG"_s);
    ASSERT_TRUE(image.save(choisie));
    const QString cible = photoProduit(t.exercice, 1);
    EXPECT_TRUE(cible.endsWith(u"/1.BMP"_s));

    QFile texte(t.chemin(u"facture.jpg"_s));
    ASSERT_TRUE(texte.open(QIODevice::WriteOnly));
    texte.write("Sardine");
    texte.close();
    const ExpectFiles fichiers{QString(), choisie, texte.fileName()};
    FichierALEcran<J_PROD> f(t.exercice);
    EXPECT_TRUE(imageParDefaut(f));
    click(f.dialogue, u"Image3"_s);
    EXPECT_TRUE(fichiers.asked().first().filter.contains(u"*.BMP *.GIF *.JPG"_s));
    EXPECT_TRUE(imageParDefaut(f)) << "given up";
    f.touche(Qt::Key_I, Qt::ControlModifier);
    EXPECT_FALSE(imageParDefaut(f));
    EXPECT_TRUE(QFile::exists(cible));
    f.touche(Qt::Key_Down);
    EXPECT_TRUE(imageParDefaut(f)) << "the second product has none";
    f.touche(Qt::Key_Up);
    EXPECT_FALSE(imageParDefaut(f));

    ExpectMessages messages{{u"Fichier facture.jpg : ce n'est pas une image"_s, u"ATTENTION"_s},
                            {u"Confirmer la suppression de l'image"_s, u"Confirmation"_s, Answer::No},
                            {u"Confirmer la suppression de l'image"_s, u"Confirmation"_s, Answer::Yes}};
    click(f.dialogue, u"Image3"_s);
    EXPECT_FALSE(imageParDefaut(f)) << "what stood there stays";
    click(f.dialogue, u"SSCommand1"_s);
    EXPECT_TRUE(QFile::exists(cible));
    click(f.dialogue, u"SSCommand1"_s);
    EXPECT_FALSE(QFile::exists(cible));
    EXPECT_TRUE(imageParDefaut(f));

    click(f.dialogue, u"SSCommand2"_s);
    EXPECT_FALSE(control(f.dialogue, u"SSFrame2"_s)->isVisible());
    f.touche(Qt::Key_Down);
    EXPECT_TRUE(control(f.dialogue, u"SSFrame2"_s)->isVisible()) << "a row shows its picture again";
}
