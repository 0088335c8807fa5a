#include "shell/form1.h"

#include "core/schema.h"
#include "platform/controls/named.h"
#include "platform/services/clock.h"
#include "shell/menu.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QMenuBar>

using namespace Qt::StringLiterals;
using namespace talor;
using controls::Answer;

namespace {

/// The main window on an empty exercise, which notes the functions that it opens.
class FenetrePrincipale
{
public:
    FenetrePrincipale()
        : form1(t.exercice)
    {
        services::clock::setToday(QDate(2026, 12, 1));
        form1.actualiser();
    }
    ~FenetrePrincipale() { services::clock::followSystem(); }

    void brancher(std::initializer_list<QString> entrees)
    {
        for (const QString& entree : entrees)
            form1.brancher(entree, [this, entree] { ouvertes.append(entree); });
    }
    void afficher() { show(form1); }

    QAction* action(const QString& nom) { return form1.findChild<QAction*>(nom); }
    QWidget* controle(const QString& nom) { return control(form1, nom); }
    QString texte(const QString& nom) { return textOf(form1, nom); }

    ExerciceTemporaire t;
    Form1 form1;
    QStringList ouvertes;
};

void ajouterPoisson(Exercice& exercice)
{
    exercice.Poissons.addNew();
    exercice.Poissons.set("denom", u"Sardine"_s);
    exercice.Poissons.update();
}

/// Sends the keys where they would go, whatever menu is open.
void touche(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QWidget* menu = QApplication::activePopupWidget();
    QTest::keyClick(menu ? menu : QApplication::focusWidget(), key, modifiers);
}

} // namespace

TEST(Form1, porte_le_nom_du_mandataire_son_port_son_annee_et_le_jour)
{
    FenetrePrincipale f;
    EXPECT_EQ(f.form1.windowTitle(), u"   TALOR  Version  2.1      (Révisé le 06/06/2022"_s);
    EXPECT_EQ(f.texte(u"Label1(0)"_s), u"Mandataire Essai"_s);
    EXPECT_EQ(f.texte(u"Label1(1)"_s), u"Port de Ténès"_s);
    EXPECT_EQ(f.texte(u"Label1(2)"_s), u"Année  2026"_s);
    EXPECT_EQ(f.texte(u"LabelDate"_s), u"Mardi 1er Décembre 2026"_s);
    EXPECT_EQ(f.texte(u"Label2(0)"_s), u"Détail des Ventes"_s);
    EXPECT_EQ(f.texte(u"Label2(8)"_s), u"Encaissement"_s);
}

TEST(Form1, une_fonction_qui_n_est_pas_branchee_reste_fermee_au_menu_et_aux_boutons)
{
    FenetrePrincipale f;
    EXPECT_FALSE(f.action(u"MBorde"_s)->isEnabled());
    EXPECT_FALSE(f.controle(u"Image5(5)"_s)->isEnabled());
    EXPECT_TRUE(f.action(u"mnu_5"_s)->isEnabled());
    EXPECT_TRUE(f.controle(u"Image5(0)"_s)->isEnabled()); // the sub-panel is the window's own
    f.brancher({u"MBorde"_s});
    EXPECT_TRUE(f.action(u"MBorde"_s)->isEnabled());
    EXPECT_TRUE(f.controle(u"Image5(5)"_s)->isEnabled());
}

TEST(Form1, une_precondition_qui_manque_se_dit_et_n_ouvre_rien)
{
    FenetrePrincipale f;
    f.brancher({u"FSimul"_s});
    {
        ExpectMessages messages{{u"Initialisation des Produits de la pêche préalable"_s, u"ATTENTION"_s}};
        f.action(u"FSimul"_s)->trigger();
        messages.verify();
        EXPECT_EQ(messages.shown()[0].icon, controls::MessageIcon::Stop);
    }
    EXPECT_TRUE(f.ouvertes.isEmpty());
    ajouterPoisson(f.t.exercice);
    f.action(u"FSimul"_s)->trigger();
    EXPECT_EQ(f.ouvertes, QStringList{u"FSimul"_s});
}

TEST(Form1, se_conduit_au_clavier_seul)
{
    FenetrePrincipale f;
    f.brancher({u"MM_CREANCES"_s, u"mnu_vers"_s, u"mnu_dep_rliq"_s});
    f.afficher();
    EXPECT_EQ(QApplication::focusWidget(), f.controle(u"Image5(0)"_s));

    touche(Qt::Key_F3);
    EXPECT_EQ(f.ouvertes, QStringList{u"MM_CREANCES"_s});
    {
        ExpectMessages messages{{u"Initialisation des Clients inexistante"_s}};
        touche(Qt::Key_F9);
    }
    // The focus passes over what is not hooked: from the first shortcut to "Créances".
    touche(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), f.controle(u"Image5(2)"_s));
    touche(Qt::Key_Return);
    EXPECT_EQ(f.ouvertes.size(), 2);
}

TEST(Form1, un_menu_s_ouvre_par_sa_lettre_et_ses_entrees_par_la_leur)
{
    FenetrePrincipale f;
    f.brancher({u"mnu_s_t"_s});
    f.afficher();
    touche(Qt::Key_E, Qt::AltModifier);
    ASSERT_TRUE(QApplication::activePopupWidget());
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), u"mnu_13"_s);
    ExpectMessages messages{{u"Aucune Facture enregistrée"_s, u"ATTENTION"_s}};
    touche(Qt::Key_F);
}

TEST(Form1, le_sous_panneau_ferme_les_menus_et_cache_les_raccourcis)
{
    FenetrePrincipale f;
    f.brancher({u"MM_CREANCES"_s, u"Corr_Fact"_s});
    f.afficher();

    touche(Qt::Key_F1);
    EXPECT_TRUE(f.controle(u"SSPanel1"_s)->isVisible());
    EXPECT_FALSE(f.form1.menuBar()->isEnabled());
    for (int i = 0; i < 9; ++i)
        EXPECT_FALSE(f.controle(controls::familyName(u"Image5", i))->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), f.controle(u"SSPanel2(1)"_s));

    touche(Qt::Key_F8); // the panel's own eighth, not the shortcut "Clients"
    EXPECT_EQ(f.ouvertes, QStringList{u"MM_CREANCES"_s});
    EXPECT_FALSE(f.form1.menuBar()->isEnabled());

    touche(Qt::Key_Escape);
    EXPECT_FALSE(f.controle(u"SSPanel1"_s)->isVisible());
    EXPECT_TRUE(f.form1.menuBar()->isEnabled());
    EXPECT_TRUE(f.controle(u"Image5(8)"_s)->isVisible());

    f.action(u"MFACT"_s)->trigger();
    click(f.form1, u"Image27"_s);
    EXPECT_TRUE(f.controle(u"Image5(0)"_s)->isVisible());
}

TEST(Form1, le_pointeur_allume_un_bouton_du_sous_panneau_et_eteint_les_autres)
{
    FenetrePrincipale f;
    f.brancher({u"Nouv_Fact"_s, u"Corr_Fact"_s});
    f.afficher();
    touche(Qt::Key_F1);
    const auto couleur = [&](int rang) {
        QWidget* bouton = f.controle(controls::familyName(u"SSPanel2", rang));
        return bouton->grab().toImage().pixelColor(bouton->width() / 2, bouton->height() - 6).rgb();
    };
    const auto survoler = [&](int rang) {
        QEnterEvent entree({5, 5}, {5, 5}, {5, 5});
        QApplication::sendEvent(f.controle(controls::familyName(u"SSPanel2", rang)), &entree);
    };
    survoler(0);
    EXPECT_EQ(couleur(0), 0xFFFFFF00);
    EXPECT_EQ(couleur(1), 0xFFF0F0F0);
    survoler(1);
    EXPECT_EQ(couleur(0), 0xFFF0F0F0);
    EXPECT_EQ(couleur(1), 0xFFFFFF00);
}

TEST(Form1, un_ancien_exercice_retrecit_les_menus_et_le_retour_les_rend)
{
    FenetrePrincipale f;
    f.brancher({u"mnu_cloture"_s, u"mnu_annule_cl"_s, u"mnu_4"_s, u"mnu_verr"_s, u"MBorde"_s, u"MDEC"_s,
                u"MM_CREANCES"_s, u"mnu_vers"_s, u"mnu_RAZ"_s});
    // A function that moves the exercise in view shows its effect at once.
    f.form1.brancher(u"mnu_autre_exerc"_s, [&f] {
        f.t.exercice.FermerBase();
        f.t.exercice.pointeur = {2025, 1};
        f.t.exercice.choisirAnnee(f.t.exercice.Annee == 2026 ? 2025 : 2026);
        if (!QFile::exists(f.t.exercice.CheminBase))
            creerExerciceVide(f.t.exercice.CheminBase);
        f.t.exercice.OuvrirBase();
    });
    f.afficher();
    const QStringList fermees = {u"mnu_annule_cl"_s, u"mnu_6"_s,     u"mnu_4"_s,
                                 u"mnu_verr"_s,      u"mnu_param"_s, u"mnu_cloture"_s};
    for (const bool ancien : {true, false}) {
        f.action(u"mnu_autre_exerc"_s)->trigger();
        for (const QString& nom : fermees)
            EXPECT_EQ(f.action(nom)->isEnabled(), !ancien) << nom.toStdString();
        for (const QString& nom : {u"mnu_cptes"_s, u"mnu_autre_exerc"_s, u"mnu_RAZ"_s, u"mnu_13"_s, u"mnu_vers"_s})
            EXPECT_TRUE(f.action(nom)->isEnabled()) << nom.toStdString();
        for (int i = 0; i < 9; ++i)
            EXPECT_EQ(f.controle(controls::familyName(u"Image5", i))->isVisible(), !ancien || i > 2) << i;
        EXPECT_EQ(f.texte(u"Label1(2)"_s), ancien ? u"Année  2025"_s : u"Année  2026"_s);
    }
}

TEST(Form1, une_image_laterale_parait_sauf_quand_son_marqueur_l_ecarte)
{
    FenetrePrincipale f;
    QImage image(40, 60, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(f.t.chemin(u"Photos/Droit.BMP"_s)));
    ASSERT_TRUE(image.save(f.t.chemin(u"Photos/Gauche.BMP"_s)));
    QFile marqueur(f.t.chemin(u"Photos/Droit_V.BMP"_s));
    ASSERT_TRUE(marqueur.open(QIODevice::WriteOnly));
    f.form1.actualiser();
    f.afficher();
    EXPECT_TRUE(f.controle(u"Image2(0)"_s)->isVisible());
    EXPECT_FALSE(f.controle(u"Image2(1)"_s)->isVisible());
}

TEST(Form1, le_choix_de_la_resolution_est_exclusif_et_garde)
{
    FenetrePrincipale f;
    EXPECT_TRUE(f.action(u"R0"_s)->isChecked());
    f.action(u"R2"_s)->trigger();
    EXPECT_FALSE(f.action(u"R0"_s)->isChecked());
    {
        ExpectMessages messages{{u"Veuiller Confirmer Fin de Travail !!"_s, Answer::Yes}};
        f.form1.close();
    }
    EXPECT_EQ(lireResolution(f.t.exercice.installation()), Resolution::Grande);
}

TEST(Form1, quitter_demande_confirmation_et_laisse_une_copie)
{
    FenetrePrincipale f;
    f.afficher();
    const QString copie = f.t.chemin(u"Archives/TAL2026.mdb"_s);
    {
        ExpectMessages messages{{u"Veuiller Confirmer Fin de Travail !!"_s, u"P. Vente"_s, Answer::No}};
        touche(Qt::Key_F7);
    }
    EXPECT_TRUE(f.form1.isVisible());
    EXPECT_TRUE(f.t.exercice.estOuvert());
    EXPECT_FALSE(QFile::exists(copie));
    {
        ExpectMessages messages{{u"Veuiller Confirmer Fin de Travail !!"_s, u"P. Vente"_s, Answer::Yes}};
        f.action(u"mnu_5"_s)->trigger();
    }
    EXPECT_FALSE(f.form1.isVisible());
    EXPECT_FALSE(f.t.exercice.estOuvert());
    EXPECT_TRUE(QFile::exists(copie));
}

TEST(Form1, une_copie_impossible_se_dit_et_la_fenetre_se_ferme)
{
    FenetrePrincipale f;
    f.afficher();
    ASSERT_TRUE(QDir(f.t.dossier()).mkpath(u"Archives/TAL2026.mdb/occupe"_s));
    const auto boites = std::make_shared<QStringList>();
    const auto avant = controls::Message::setScript([boites](const controls::MessageText& boite) {
        boites->append(boite.text);
        return boite.buttons == controls::Buttons::YesNo ? Answer::Yes : Answer::Ok;
    });
    f.form1.close();
    controls::Message::setScript(avant);
    ASSERT_EQ(boites->size(), 2);
    EXPECT_TRUE((*boites)[1].contains(u"sa copie dans Archives n'a pas été faite"_s));
    EXPECT_FALSE(f.form1.isVisible());
}

TEST(Form1, tient_dans_un_ecran_de_1366_par_768_et_de_1920_par_1080_a_l_echelle_double)
{
    FenetrePrincipale f;
    f.t.exercice.configuration().textes[0] = u"Mandataire Agréé du Port de Pêche Ténès"_s; // as long as one may be
    f.form1.actualiser();
    const QSize necessaire = f.form1.minimumSizeHint();
    EXPECT_LE(necessaire.width(), 940);
    EXPECT_LE(necessaire.height(), 500);
}
