#include "shell/form_v2.h"
#include "shell/identif.h"
#include "shell/new_mps.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

#include <QLineEdit>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

class Dialogues : public testing::Test
{
protected:
    Dialogues()
    {
        t.exercice.configuration().mots = {u"1357"_s, u"CRIÉE"_s, u"MAÎTRE"_s};
        t.exercice.MotAcces = u"X"_s;
        EXPECT_FALSE(t.exercice.configuration().ecrire(fichier));
    }

    ExerciceTemporaire t;
    const QString fichier = t.exercice.installation().configuration();
    QWidget fenetre;
};

using Form_v2Test = Dialogues;
using New_MPSTest = Dialogues;
using IdentifTest = Dialogues;

QLineEdit* champ(QWidget& d, int index)
{
    return control<QLineEdit>(d, u"Text1(%1)"_s.arg(index));
}

/// Presses the keys of the pad, "<" the one that takes a character away.
void paver(QWidget& d, const QString& touches)
{
    for (const QChar c : touches)
        click(d, c == u'<' ? u"Image1(1)"_s : u"SSCommand1(%1)"_s.arg(c.digitValue()));
}

} // namespace

TEST_F(Form_v2Test, accepte_le_mot_tape_ou_pave_et_ne_le_montre_pas)
{
    const auto demander = [this](std::function<void(Form_v2&)> travail) {
        const auto attente = whenOpened<Form_v2>(std::move(travail));
        return Form_v2::demander(&fenetre, t.exercice, Verrou::Programme);
    };
    EXPECT_EQ(demander([](Form_v2& d) {
                  paver(d, u"12<357"_s);
                  EXPECT_EQ(champ(d, 1)->text(), u"1357"_s);
                  EXPECT_EQ(champ(d, 1)->displayText(), QString(4, champ(d, 1)->displayText()[0])) << "dots alone";
                  click(d, u"Image1(2)"_s);
              }),
              Autorisation::Acceptee);
    EXPECT_EQ(demander([](Form_v2& d) {
                  type(d.focusWidget(), u"maître"_s);
                  press(d, Qt::Key_Return);
              }),
              Autorisation::Acceptee);
    EXPECT_EQ(demander([](Form_v2& d) { press(d, Qt::Key_Escape); }), Autorisation::Refusee)
        << "giving up ends no program";
}

TEST_F(Form_v2Test, trois_mots_faux_la_ferment)
{
    const auto attente = whenOpened<Form_v2>([](Form_v2& d) {
        for (int essai = 1; essai <= 3; ++essai) {
            EXPECT_TRUE(d.isVisible() && champ(d, 1)->hasFocus());
            type(d.focusWidget(), u"faux"_s);
            press(d, Qt::Key_Return);
        }
    });
    EXPECT_EQ(Form_v2::demander(&fenetre, t.exercice, Verrou::Programme), Autorisation::FinProgramme);
}

TEST_F(New_MPSTest, change_le_mot_au_pave_seul)
{
    New_MPS d(t.exercice);
    show(d);
    paver(d, u"1357"_s);
    click(champ(d, 2));
    paver(d, u"2468"_s);
    click(champ(d, 3));
    paver(d, u"24689<"_s);
    ExpectMessages messages{{u"Sauvegarde effectuée avec succès"_s, u"TALOR"_s}};
    click(d, u"Image1(2)"_s);
    EXPECT_EQ(messages.shown().value(0).icon, controls::MessageIcon::Information);
    EXPECT_FALSE(d.isVisible());
    EXPECT_EQ(Configuration::lire(fichier)->mots[0], u"2468"_s);
}

TEST_F(New_MPSTest, change_le_mot_au_clavier_apres_une_confirmation_manquee)
{
    New_MPS d(t.exercice);
    show(d);
    for (const QString& mot : {u"1357"_s, u"quai"_s}) {
        type(d.focusWidget(), mot);
        press(d, Qt::Key_Return);
    }
    EXPECT_NE(champ(d, 2)->displayText(), u"quai"_s);
    type(d.focusWidget(), u"quais"_s);
    {
        ExpectMessages messages{{u"Confirmation non concordante"_s, u"ATTENTION"_s}};
        press(d, Qt::Key_Return);
    }
    EXPECT_TRUE(champ(d, 3)->hasFocus() && champ(d, 3)->hasSelectedText());
    type(d.focusWidget(), u"QUAI"_s);
    ExpectMessages messages{{u"Sauvegarde effectuée avec succès"_s}};
    press(d, Qt::Key_Return);
    EXPECT_EQ(Configuration::lire(fichier)->mots[0], u"QUAI"_s);
}

TEST_F(New_MPSTest, le_mot_actuel_faux_se_dit_et_la_troisieme_fois_ferme)
{
    New_MPS d(t.exercice);
    show(d);
    const ExpectedMessage negatif{u"Contrôle négatif"_s, u"ATTENTION"_s};
    ExpectMessages messages{negatif, negatif, negatif};
    for (int essai = 1; essai <= 3; ++essai) {
        EXPECT_TRUE(d.isVisible() && champ(d, 1)->hasFocus());
        type(d.focusWidget(), u"faux"_s);
        click(d, u"Image1(2)"_s);
    }
    EXPECT_FALSE(d.isVisible());
    EXPECT_EQ(Configuration::lire(fichier)->mots[0], u"1357"_s);
}

TEST_F(IdentifTest, tourne_par_entree_et_s_arrete_aux_bouts_par_les_fleches)
{
    Identif d(t.exercice);
    show(d);
    EXPECT_EQ(d.windowTitle(), u" "_s);
    press(d, Qt::Key_Up);
    EXPECT_TRUE(champ(d, 0)->hasFocus());
    for (int i = 0; i < 8; ++i)
        press(d, i % 2 == 0 ? Qt::Key_Return : Qt::Key_Down);
    EXPECT_TRUE(champ(d, 8)->hasFocus());
    press(d, Qt::Key_Down);
    EXPECT_TRUE(champ(d, 8)->hasFocus());
    press(d, Qt::Key_Return);
    EXPECT_TRUE(champ(d, 0)->hasFocus());
}

TEST_F(IdentifTest, ok_enregistre_ce_qui_est_tape_virgule_comprise)
{
    Identif d(t.exercice);
    show(d);
    type(d, u"Text1(5)"_s, u"002 123"_s);
    type(d, u"Text1(6)"_s, u"12,5"_s);
    EXPECT_EQ(champ(d, 6)->text(), u"12.5"_s);
    control<QRadioButton>(d, u"Option1(0)"_s)->click();
    press(d, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(d.isVisible());
    EXPECT_EQ(t.exercice.Commission, 12.5F);
    EXPECT_EQ(t.exercice.EffetSonore, 1);
    EXPECT_EQ(t.exercice.Permn.text("compte"), u"002 123"_s);
}

TEST_F(IdentifTest, annuler_et_echap_laissent_tout)
{
    for (const bool echap : {false, true}) {
        Identif d(t.exercice);
        show(d);
        type(d, u"Text1(6)"_s, u"50"_s);
        if (echap)
            press(d, Qt::Key_Escape);
        else
            click(d, u"Image1(1)"_s);
        EXPECT_FALSE(d.isVisible());
        EXPECT_EQ(t.exercice.Commission, 15.0F);
        EXPECT_EQ(t.exercice.Permn.real("Commission"), 15);
    }
}
