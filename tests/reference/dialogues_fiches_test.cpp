#include "core/composer.h"
#include "platform/services/telephone.h"
#include "reference/fichiers.h"
#include "reference/j_armateurs.h"
#include "reference/j_chalutiers.h"
#include "tests/reference/fichier_a_l_ecran.h"

using namespace Qt::StringLiterals;
using namespace talor;
using controls::Answer;

namespace {

void ajouterArmateurs(Exercice& exercice, const QStringList& noms)
{
    Fiches armateurs(exercice, fichierArmateurs());
    armateurs.remplir();
    for (const QString& nom : noms)
        ASSERT_TRUE(armateurs.enregistrer({{u"nom"_s, nom}, {u"prenom"_s, u"Ali"_s}}, {}));
}

/// The telephone of the machine, replaced while it lives.
class Telephone
{
public:
    explicit Telephone(bool repond)
        : m_ancien(services::telephone::setDialler([this, repond](const QString& numero) {
            composes.append(numero);
            return repond;
        }))
    {}
    ~Telephone() { services::telephone::setDialler(m_ancien); }
    Telephone(const Telephone&) = delete;
    Telephone& operator=(const Telephone&) = delete;

    QStringList composes;

private:
    services::telephone::Dialler m_ancien;
};

} // namespace

TEST(J_Armateurs, vit_par_le_clavier_du_premier_armateur_a_sa_suppression)
{
    ExerciceTemporaire t;
    FichierALEcran<J_Armateurs> f(t.exercice);
    EXPECT_TRUE(f.enSaisie()) << "an empty file goes straight to a new card";
    EXPECT_EQ(f.titre(), u"Nouvel Armateur"_s);
    EXPECT_FALSE(f.grille()->isEnabled());
    EXPECT_FALSE(control(f.dialogue, u"Crecettes(0)"_s)->isVisible());

    EXPECT_EQ(f.focus(), u"Text1(1)"_s);
    f.taperSuite({u"ould élie"_s, u"mourad"_s, u"12, rue du port"_s, u""_s, u"021a36-45"_s, u"fax"_s, u"ténès"_s,
                  u"02b00"_s, u"id"_s, u"article"_s});
    f.touche(Qt::Key_Return);
    EXPECT_EQ(f.focus(), u"Text1(11)"_s) << "from the last line into the observations";
    f.touche(Qt::Key_Return);
    EXPECT_EQ(f.focus(), u"Text1(11)"_s) << "where Enter is a new line";
    f.ok();

    EXPECT_FALSE(f.enSaisie());
    EXPECT_EQ(f.focus(), u"Grid1"_s);
    EXPECT_EQ(f.grille()->text(0, 1), u" OULD éLIE"_s) << "accented letters are left alone";
    EXPECT_EQ(f.grille()->text(0, 4), u" Ténès"_s);

    f.touche(Qt::Key_Return);
    EXPECT_EQ(f.titre(), u"Modification"_s);
    const QStringList relus = {u"OULD éLIE"_s, u"Mourad"_s, u"12, rue du port"_s, u""_s,   u"0213645"_s,
                               u"fax"_s,       u"Ténès"_s,  u"02B00"_s,           u"id"_s, u"article"_s};
    for (int i = 0; i < relus.size(); ++i)
        EXPECT_EQ(f.champ(i + 1), relus[i]);
    f.taper(2, u"ali"_s);
    f.ok();
    EXPECT_EQ(f.colonne(2), QStringList{u" Ali"_s});

    {
        ExpectMessages questions{{u"Confirmer supression de ligne N° 1"_s, u"Confirmation"_s, Answer::No},
                                 {u"Confirmer supression de ligne N° 1"_s, u"Confirmation"_s, Answer::Yes}};
        f.touche(Qt::Key_Delete);
        EXPECT_EQ(f.grille()->rowCount(), 1);
        f.touche(Qt::Key_Delete);
    }
    EXPECT_EQ(f.grille()->rowCount(), 0);
    EXPECT_FALSE(f.grille()->isEnabled());
    f.touche(Qt::Key_Insert);
    EXPECT_TRUE(f.enSaisie());
    f.touche(Qt::Key_Escape);
    EXPECT_FALSE(f.enSaisie());
    EXPECT_FALSE(f.grille()->isEnabled());
    EXPECT_TRUE(f.dialogue.isVisible());
    f.touche(Qt::Key_Escape);
    EXPECT_FALSE(f.dialogue.isVisible());
    EXPECT_EQ(t.exercice.Armateurs.recordCount(), 0);
}

TEST(J_Armateurs, les_fleches_parcourent_les_champs)
{
    ExerciceTemporaire t;
    FichierALEcran<J_Armateurs> f(t.exercice);
    f.touche(Qt::Key_Up);
    EXPECT_EQ(f.focus(), u"Text1(1)"_s);
    for (int index = 2; index <= 11; ++index) {
        f.touche(Qt::Key_Down);
        EXPECT_EQ(f.focus(), f.nom(index));
    }
    f.touche(Qt::Key_Up);
    EXPECT_EQ(f.focus(), u"Text1(10)"_s);
}

TEST(J_Armateurs, appeler_compose_le_telephone_de_la_ligne_et_rien_s_il_manque)
{
    ExerciceTemporaire t;
    ajouterArmateurs(t.exercice, {u"AMRANI"_s, u"KACI"_s});
    t.exercice.Armateurs.moveFirst();
    t.exercice.Armateurs.edit();
    t.exercice.Armateurs.set("tel", u"+213 (0)21 36-45"_s);
    t.exercice.Armateurs.update();
    FichierALEcran<J_Armateurs> f(t.exercice);

    Telephone repond(true);
    click(f.dialogue, u"Crecettes(4)"_s);
    f.grille()->selectRow(1);
    click(f.dialogue, u"Crecettes(4)"_s);
    EXPECT_EQ(repond.composes, QStringList{u"+2130213645"_s});
}

TEST(Composer, dit_le_numero_omis_et_l_appel_manque)
{
    Telephone muet(false);
    ExpectMessages messages{{u"Numéro omis"_s, u"ATTENTION "_s}, {u"Erreur dans l'appel"_s, u"TALOR"_s}};
    Composer(nullptr, u"  "_s);
    EXPECT_EQ(muet.composes, QStringList());
    Composer(nullptr, u" 17 "_s);
    EXPECT_EQ(muet.composes, QStringList{u"17"_s});
}

TEST(j_Chalutiers, un_bateau_nait_avec_son_armateur_et_ses_lignes_de_travail)
{
    ExerciceTemporaire t;
    ajouterArmateurs(t.exercice, {u"AMRANI"_s, u"KACI"_s});
    FichierALEcran<j_Chalutiers> f(t.exercice);
    EXPECT_EQ(f.titre(), u"NOUVELLE  EMBARCATION"_s);
    auto* armateurs = control<QComboBox>(f.dialogue, u"Combo1"_s);
    EXPECT_EQ(armateurs->currentText(), u"AMRANI  Ali"_s) << "the first is proposed";

    f.taperSuite({u"sidi brahim"_s, u"ténès"_s, u"tn 1200"_s});
    f.touche(Qt::Key_Return);
    EXPECT_EQ(f.focus(), u"Text1(3)"_s) << "Enter does nothing in the last one-line field";
    f.touche(Qt::Key_Tab);
    EXPECT_EQ(f.focus(), u"Combo1"_s);
    f.touche(Qt::Key_Down);
    f.ok();

    const QStringList ligne = {u"1"_s, u" Sidi brahim"_s, u" KACI  Ali"_s, u" Ténès"_s, u" Tn 1200"_s};
    for (int colonne = 0; colonne < ligne.size(); ++colonne)
        EXPECT_EQ(f.grille()->text(0, colonne), ligne[colonne]);

    f.touche(Qt::Key_F2);
    EXPECT_EQ(f.titre(), u"MODIFICATION"_s);
    EXPECT_EQ(armateurs->currentText(), u"KACI  Ali"_s);
    f.taper(2, u"  "_s);
    {
        ExpectMessages refus{{u"Saisie incomplète"_s, u"ATTENTION"_s}};
        f.ok();
    }
    EXPECT_EQ(f.focus(), u"Text1(2)"_s);
    f.touche(Qt::Key_Escape);
    EXPECT_EQ(f.grille()->text(0, 3), u" Ténès"_s);
}

// Kept on purpose: nothing forbids the deletion of a boat, or of the shipowner of one.
TEST(j_Chalutiers, un_bateau_dont_l_armateur_a_disparu_se_modifie_sans_en_changer)
{
    ExerciceTemporaire t;
    ajouterArmateurs(t.exercice, {u"AMRANI"_s, u"KACI"_s});
    Fiches bateaux(t.exercice, fichierChalutiers());
    bateaux.remplir();
    ASSERT_TRUE(bateaux.enregistrer({{u"denom"_s, u"Amel"_s}, {u"Port"_s, u"Oran"_s}, {u"armateur"_s, u"9"_s}}, {}));
    FichierALEcran<j_Chalutiers> f(t.exercice);
    EXPECT_EQ(f.grille()->text(0, 2), QString());
    f.touche(Qt::Key_Return);
    EXPECT_EQ(control<QComboBox>(f.dialogue, u"Combo1"_s)->currentIndex(), -1);
    f.taper(2, u"alger"_s);
    f.ok();
    EXPECT_EQ((*bateaux.lire(0))[u"armateur"_s], u"9"_s);
    EXPECT_EQ((*bateaux.lire(0))[u"Port"_s], u"Alger"_s);

    t.exercice.Base().execute(u"insert into Bordereaux (Num_Chalutier) values (1)"_s);
    ExpectMessages question{{u"Confirmer supression de ligne N° 1"_s, u"Confirmation"_s, Answer::Yes}};
    f.touche(Qt::Key_Delete);
    EXPECT_EQ(t.exercice.Chalutiers.recordCount(), 0);
    EXPECT_EQ(t.exercice.Decomptes0.recordCount(), 2) << "its working row stays, beside the simulation's";
}

TEST(j_Chalutiers, une_fiche_disparue_sous_la_main_est_dite_alteree_et_la_saisie_reste)
{
    ExerciceTemporaire t;
    ajouterArmateurs(t.exercice, {u"AMRANI"_s});
    FichierALEcran<j_Chalutiers> f(t.exercice);
    f.taperSuite({u"amel"_s, u"oran"_s});
    f.ok();
    f.touche(Qt::Key_Return);
    f.taper(1, u"nour"_s);
    t.exercice.Base().execute(u"Delete * from Chalutiers"_s);
    ExpectMessages messages{{u"Mouvement altéré"_s, u"ATTENTION"_s}};
    f.ok();
    EXPECT_TRUE(f.enSaisie());
    EXPECT_EQ(f.champ(1), u"Nour"_s);
    f.touche(Qt::Key_Escape);
}

TEST(j_Chalutiers, un_nom_revient_comme_il_fut_tape)
{
    ExerciceTemporaire t;
    ajouterArmateurs(t.exercice, {u"AMRANI"_s});
    const QStringList noms = {
        u"O'Brien"_s, u"Œil-de-bœuf"_s, u"مرسى الدجاج"_s,
        u"Un nom de quatre-vingts lettres, espaces compris, pour voir où le champ le couperait"_s};
    FichierALEcran<j_Chalutiers> f(t.exercice);
    for (const QString& nom : noms) {
        if (!f.enSaisie())
            f.touche(Qt::Key_Insert);
        f.taperSuite({nom, nom});
        f.ok();
        f.touche(Qt::Key_Return);
        EXPECT_EQ(f.champ(1), nom);
        EXPECT_EQ(f.champ(2), nom);
        f.touche(Qt::Key_Escape);
    }
    FichierALEcran<j_Chalutiers> relu(t.exercice);
    for (int ligne = 0; ligne < noms.size(); ++ligne)
        EXPECT_EQ(relu.grille()->text(ligne, 1), u' ' + noms[ligne]);
}
