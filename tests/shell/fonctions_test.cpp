#include "shell/fonctions.h"

#include "invoicing/factures.h"
#include "platform/services/opener.h"
#include "reference/f_classm.h"
#include "shell/affichage.h"
#include "shell/form1.h"
#include "shell/listes.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

#include <QCheckBox>
#include <QFile>
#include <QImage>
#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace talor;

TEST(Guide, s_ouvre_par_le_menu_et_par_son_bouton_et_son_absence_se_dit)
{
    ExerciceTemporaire t;
    Form1 form1(t.exercice);
    brancherFonctions(form1, t.exercice);
    show(form1);
    {
        ExpectMessages messages{{u"Fichier Guide_TALOR.pdf absent! ! !"_s, u"ATTENTION"_s}};
        click(form1, u"SSCommand1"_s);
    }
    QFile guide(t.chemin(u"Guide_TALOR.pdf"_s));
    ASSERT_TRUE(guide.open(QIODevice::WriteOnly));
    QStringList ouverts;
    bool lisible = true;
    const auto avant = services::opener::setViewer([&](const QString& chemin) {
        ouverts.append(chemin);
        return lisible;
    });
    form1.executer(u"G_PDF"_s);
    EXPECT_EQ(ouverts, QStringList{guide.fileName()});
    lisible = false;
    {
        ExpectMessages messages{
            {u"Erreur N° 1\nAucun programme n'a pu ouvrir le fichier Guide_TALOR.pdf"_s, u"TALOR"_s}};
        form1.executer(u"G_PDF"_s);
    }
    services::opener::setViewer(avant);
}

TEST(Aide, tient_son_texte_et_se_ferme_par_echap)
{
    ExerciceTemporaire t;
    Form1 form1(t.exercice);
    brancherFonctions(form1, t.exercice);
    const auto aide = whenOpened<controls::Dialog>([](controls::Dialog& d) {
        EXPECT_EQ(d.objectName(), u"F_HLP"_s);
        EXPECT_TRUE(control<QTextBrowser>(d, u"Text1"_s)->toPlainText().contains(u"mandataire en poissons"_s));
        press(d, Qt::Key_Escape);
    });
    form1.executer(u"mnu_hlp"_s);
}

TEST(Facturation, le_registre_s_ouvre_par_le_menu)
{
    ExerciceTemporaire t;
    Exemples exemples(t.exercice);
    exemples.facture({.client = exemples.client(u"AMARI"_s)});
    Form1 form1(t.exercice);
    brancherFonctions(form1, t.exercice);
    const auto registre = whenOpened<FACTURES>([](FACTURES& d) { press(d, Qt::Key_Escape); });
    form1.executer(u"mnu_s_t"_s);
}

TEST(Listes, chacune_a_son_modele_son_tri_et_son_titre_de_classement)
{
    const struct
    {
        Etat etat;
        QString modele;
        QStringList tri;
        QString ch4;
    } cas[] = {
        {listeClients(Classement::OrdreManuel),
         u"L_CLIENT.RPT"_s,
         {u"+ {Clients.ordre} "_s},
         u"Classement sur N° d'ordre"_s},
        {listeClients(Classement::OrdreAlphabetique),
         u"L_CLIENT.RPT"_s,
         {u"+ {Clients.nom} "_s, u"+ {Clients.prenom} "_s},
         u"Classement alphabétique"_s},
        {listePoissons(Classement::OrdreManuel),
         u"L_POISSN.RPT"_s,
         {u"+ {Poissons.ordre} "_s},
         u"Classement sur N° d'ordre"_s},
        {listePoissons(Classement::OrdreAlphabetique),
         u"L_POISSN.RPT"_s,
         {u"+ {Poissons.denom} "_s},
         u"Classement alphabétique"_s},
        {listeArmateurs(), u"L_ARMATR.RPT"_s, {}, QString()},
        {listeChalutiers(), u"L_CHALUT.RPT"_s, {}, QString()},
    };
    for (const auto& c : cas) {
        ExerciceTemporaire t;
        if (c.etat.remplir)
            c.etat.remplir(t.exercice);
        EXPECT_EQ(c.etat.modele, c.modele);
        EXPECT_EQ(c.etat.tri, c.tri);
        t.exercice.textes.moveFirst();
        EXPECT_EQ(t.exercice.textes.text("ch4"), c.ch4);
    }
}

TEST(Listes, demandent_leur_classement_et_disent_un_modele_absent)
{
    ExerciceTemporaire t;
    Form1 form1(t.exercice);
    brancherFonctions(form1, t.exercice);
    {
        const auto renonce = whenOpened<F_Classm>([](F_Classm& d) { press(d, Qt::Key_Escape); });
        form1.executer(u"mnu_LCLIENTS"_s);
    }
    ExpectMessages messages{{u"Fichier 'L_POISSN.RPT' absent"_s, u"ATTENTION"_s},
                            {u"Fichier 'L_ARMATR.RPT' absent"_s, u"ATTENTION"_s}};
    const auto accepte = whenOpened<F_Classm>([](F_Classm& d) { press(d, Qt::Key_Return); });
    form1.executer(u"mnu_LPoissons"_s);
    form1.executer(u"mnu_LArmateurs"_s);
}

TEST(Affichage, une_image_se_choisit_se_cache_et_revient)
{
    ExerciceTemporaire t;
    const Installation& installation = t.exercice.installation();
    QImage image(40, 60, QImage::Format_RGB32);
    image.fill(Qt::blue);
    const QString choisie = t.chemin(u"bateau.bmp"_s);
    ASSERT_TRUE(image.save(choisie));
    Affichage dialogue(installation);
    show(dialogue);
    auto* montrer = control<QCheckBox>(dialogue, u"Check1(1)"_s);
    EXPECT_FALSE(montrer->isEnabled());

    const ExpectFiles fichiers{choisie};
    click(dialogue, u"SSCommand2(1)"_s);
    EXPECT_TRUE(imageLaterale(installation, Cote::Droite));
    EXPECT_FALSE(imageLaterale(installation, Cote::Gauche));
    EXPECT_TRUE(montrer->isChecked());
    EXPECT_TRUE(control(dialogue, u"Image2(1)"_s)->isVisible());

    montrer->click();
    EXPECT_FALSE(imageLaterale(installation, Cote::Droite));
    EXPECT_FALSE(control(dialogue, u"Image2(1)"_s)->isVisible());
    montrer->click();
    EXPECT_TRUE(imageLaterale(installation, Cote::Droite));
}
