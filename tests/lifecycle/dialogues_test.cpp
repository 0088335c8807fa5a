#include "lifecycle/form12.h"
#include "lifecycle/mecano.h"

#include "platform/controls/grid.h"
#include "platform/controls/text_field.h"
#include "platform/services/clock.h"
#include "tests/support/dossier_programme.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace talor;

TEST(Form12, propose_l_annee_du_jour_et_une_annee_refusee_laisse_corriger)
{
    const DossierProgramme dossier;
    services::clock::setToday(QDate(2026, 3, 2));
    ExpectMessages messages{{u"Saisie  incorrecte"_s, u"A T T E N T I O N"_s}};
    const auto dialogue = whenOpened<Form12>([&](Form12& d) {
        EXPECT_EQ(d.windowTitle(), u"Initialisation"_s);
        auto* annee = control<controls::TextField>(d, u"Text1"_s);
        EXPECT_EQ(annee->text(), u"2026"_s);
        annee->selectAll();
        type(annee, u"19x93"_s); // the letter is refused
        press(d, Qt::Key_Return);
        messages.verify();
        ASSERT_TRUE(d.isVisible());
        EXPECT_EQ(annee->text(), u"1993"_s);
        type(annee, u"2026"_s);
        press(d, Qt::Key_Return);
    });
    const auto pointeur = Form12::demander(dossier.installation(), u"TLR"_s);
    services::clock::followSystem();
    ASSERT_TRUE(pointeur);
    EXPECT_EQ(pointeur->anneeCourante(), 2026);
    EXPECT_TRUE(dossier.contient(u"TAL2026.mdb"_s));
}

TEST(Form12, renoncer_ne_fait_aucun_exercice)
{
    for (const bool parEchap : {true, false}) {
        const DossierProgramme dossier;
        const auto dialogue = whenOpened<Form12>([parEchap](Form12& d) {
            if (parEchap)
                press(d, Qt::Key_Escape);
            else
                click(d, u"Image5(1)"_s);
        });
        EXPECT_FALSE(Form12::demander(dossier.installation(), u"TLR"_s));
        EXPECT_FALSE(dossier.contient(u"TLR.INI"_s));
    }
}

TEST(Mecano, choisit_le_dernier_exercice_et_dit_son_succes)
{
    ExerciceTemporaire t;
    QFile::copy(t.exercice.CheminBase, t.chemin(u"TAL2025.mdb"_s));
    ExpectMessages messages{{u"Base de données réparée avec succès"_s, u"TALOR"_s}};
    const auto dialogue = whenOpened<Mecano>([&](Mecano& d) {
        auto* fichiers = control<controls::Grid>(d, u"File1"_s);
        EXPECT_EQ(fichiers->rowCount(), 2);
        EXPECT_EQ(fichiers->text(fichiers->currentRow(), 0), u"TAL2026.mdb"_s);
        click(d, u"Image1(0)"_s);
        messages.verify();
        EXPECT_TRUE(d.isVisible());
        press(d, Qt::Key_Escape);
    });
    EXPECT_EQ(Mecano::ouvrir(t.exercice), Mecano::Fin::Ferme);
    EXPECT_TRUE(t.exercice.estOuvert());
}

TEST(Mecano, un_echec_se_dit_et_met_fin_au_programme)
{
    ExerciceTemporaire t;
    QFile etranger(t.chemin(u"TAL2027.mdb"_s));
    ASSERT_TRUE(etranger.open(QIODevice::WriteOnly));
    etranger.write(QByteArray(4096, 'z'));
    etranger.close();
    QStringList boites;
    const auto avant = controls::Message::setScript([&](const controls::MessageText& boite) {
        EXPECT_EQ(boite.title, u"TALOR"_s);
        boites.append(boite.text);
        return controls::Answer::Ok;
    });
    const auto dialogue = whenOpened<Mecano>([](Mecano& d) { click(d, u"Image1(0)"_s); });
    EXPECT_EQ(Mecano::ouvrir(t.exercice), Mecano::Fin::Echoue);
    controls::Message::setScript(avant);
    ASSERT_EQ(boites.size(), 1);
    EXPECT_TRUE(boites[0].startsWith(u"Erreur N° "_s));
    EXPECT_FALSE(t.exercice.estOuvert());
}

TEST(Mecano, sans_exercice_il_n_y_a_rien_a_reparer)
{
    ExerciceTemporaire t;
    t.exercice.FermerBase();
    QFile::remove(t.exercice.CheminBase);
    const auto dialogue = whenOpened<Mecano>([](Mecano& d) {
        EXPECT_FALSE(control(d, u"Image1(0)"_s)->isEnabled());
        press(d, Qt::Key_Escape);
    });
    EXPECT_EQ(Mecano::ouvrir(t.exercice), Mecano::Fin::Ferme);
}
