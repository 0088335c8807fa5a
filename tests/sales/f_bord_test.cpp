#include "sales/f_bord.h"

#include "platform/controls/grid.h"
#include "platform/reports/preview.h"
#include "platform/services/clock.h"
#include "platform/services/printers.h"
#include "platform/services/sound.h"
#include "reference/q_date_2.h"
#include "reference/q_mos.h"
#include "reference/q_selection.h"
#include "sales/edit_bor2.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace talor;
using controls::Answer;
using controls::Grid;

namespace {

/// A day at the port, with three boats; the journal of sales is a person who notes what was asked.
class FBord : public testing::Test
{
protected:
    FBord()
    {
        services::clock::setToday(QDate(2026, 6, 15));
        for (const QString& nom : {u"AMAL"_s, u"Étoile de Ténès"_s, u"NADJET"_s})
            bateaux.append(exemples.chalutier(nom));
    }
    ~FBord() override { services::clock::followSystem(); }

    qint64 bordereau(const QString& date, qint64 bateau, const QList<std::pair<const char*, QVariant>>& champs = {})
    {
        const qint64 num = exemples.bordereau(date, bateau);
        Exemples::changer(e.Bordereaux, num, champs);
        return num;
    }

    /// Three bordereaux in the order of the list: an open one, an invoiced one, a settled one.
    void troisBordereaux()
    {
        ouvert = bordereau(u"10/05/2026"_s, bateaux[1], {{"brut", 1000}});
        bordereau(u"12/06/2026"_s, bateaux[0], {{"flag_f", true}});
        bordereau(u"14/06/2026"_s, bateaux[2], {{"ordre_decompte", 3}});
    }

    static Grid* grille(QWidget& d) { return control<Grid>(d, u"Grid1"_s); }
    /// Indexes of the commands that can be seen.
    static QList<int> commandes(QWidget& d, int nombre = 6)
    {
        QList<int> montrees;
        for (int i = 0; i < nombre; ++i)
            if (isShown(d, u"Crecettes(%1)"_s.arg(i)))
                montrees.append(i);
        return montrees;
    }

    ExerciceTemporaire t;
    Exercice& e = t.exercice;
    Exemples exemples{e};
    QList<qint64> bateaux;
    qint64 ouvert = 0;
    QList<DemandeSaisie> demandes;
    std::function<void()> pendantSaisie;
    F_Bord::Saisie saisie = [this](QWidget*, const DemandeSaisie& demande) {
        demandes.append(demande);
        if (pendantSaisie)
            pendantSaisie();
    };
    const QList<int> toutes{0, 1, 2, 3, 4, 5}, quitterSeul{5};
};

const QString numero = u"Text2"_s, date = u"Text1"_s, bateau = u"Combo5"_s, ok = u"Image1(0)"_s;

} // namespace

TEST_F(FBord, la_liste_a_onze_colonnes_et_se_tient_sur_la_derniere_ligne)
{
    troisBordereaux();
    F_Bord d(e, saisie);
    show(d);
    const struct
    {
        QString titre;
        Qt::AlignmentFlag place;
    } colonnes[] = {{u"N°"_s, Qt::AlignHCenter},   {u"Date"_s, Qt::AlignHCenter}, {u"Embarcation"_s, Qt::AlignLeft},
                    {u"Cas."_s, Qt::AlignHCenter}, {u"Brut"_s, Qt::AlignRight},   {u"Primes"_s, Qt::AlignRight},
                    {u"Comm."_s, Qt::AlignRight},  {u"Frais"_s, Qt::AlignRight},  {u"Net"_s, Qt::AlignRight},
                    {u"Fact"_s, Qt::AlignHCenter}, {u"Déc."_s, Qt::AlignHCenter}};
    const QAbstractItemModel* modele = grille(d)->model();
    ASSERT_EQ(modele->columnCount(), 11);
    for (int i = 0; i < 11; ++i) {
        EXPECT_EQ(modele->headerData(i, Qt::Horizontal).toString(), colonnes[i].titre);
        EXPECT_TRUE(modele->index(0, i).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & colonnes[i].place) << i;
    }
    EXPECT_EQ(grille(d)->text(0, 2), u"Étoile de Ténès "_s);
    EXPECT_EQ(grille(d)->currentRow(), 2);
    EXPECT_EQ(focusOf(d), u"Grid1"_s);
    EXPECT_EQ(commandes(d), toutes);
    EXPECT_EQ(textOf(d, u"Label4(0)"_s), u"Ensemble des Bordereaux"_s);
    EXPECT_EQ(textOf(d, u"Label4(1)"_s), u"Ensemble des embarcations"_s);
    press(d, Qt::Key_Escape);
    EXPECT_FALSE(d.isVisible());
}

TEST_F(FBord, les_fleches_se_cachent_aux_bouts_et_sonnent_si_les_sons_sont_voulus)
{
    troisBordereaux();
    int bips = 0;
    services::sound::setRecorder([&](const QString&) { ++bips; });
    F_Bord d(e, saisie);
    show(d);
    EXPECT_FALSE(isShown(d, u"Image2(4)"_s));
    click(d, u"Image2(3)"_s);
    EXPECT_EQ(grille(d)->currentRow(), 1);
    EXPECT_EQ(bips, 0);
    e.EffetSonore = 1;
    click(d, u"Image2(3)"_s);
    EXPECT_FALSE(isShown(d, u"Image2(3)"_s));
    click(d, u"Image2(4)"_s);
    EXPECT_EQ(grille(d)->currentRow(), 1);
    EXPECT_EQ(bips, 2);
}

TEST_F(FBord, un_exercice_vide_s_ouvre_sur_le_bordereau_1_et_l_abandon_ne_laisse_que_quitter)
{
    F_Bord d(e, saisie);
    show(d);
    EXPECT_EQ(textOf(d, u"Label2(12)"_s), u"Nouveau bordereau"_s);
    EXPECT_EQ(textOf(d, numero), u"1"_s);
    EXPECT_EQ(textOf(d, date), u"15/06/2026"_s);
    EXPECT_EQ(textOf(d, bateau), u"AMAL"_s);
    EXPECT_EQ(focusOf(d), date);
    EXPECT_EQ(commandes(d), quitterSeul);
    press(d, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(demandes.size(), 1);
    EXPECT_TRUE(isShown(d, u"SSFrame1"_s)) << "nothing was sold: the next bordereau is still the first";
    press(d, Qt::Key_Escape);
    EXPECT_FALSE(isShown(d, u"SSFrame1"_s));
    EXPECT_EQ(commandes(d), quitterSeul);
    EXPECT_EQ(focusOf(d), u"Crecettes(5)"_s);
    EXPECT_EQ(e.Bordereaux.recordCount(), 0);
    press(d, Qt::Key_Escape);
    EXPECT_FALSE(d.isVisible());
}

TEST_F(FBord, trois_touches_commencent_un_bordereau_du_jour)
{
    troisBordereaux();
    pendantSaisie = [this] { exemples.bordereau(u"15/06/2026"_s, bateaux[0]); };
    F_Bord d(e, saisie);
    show(d);
    press(d, Qt::Key_Insert);
    EXPECT_EQ(commandes(d), quitterSeul);
    EXPECT_FALSE(grille(d)->isEnabled());
    press(d, Qt::Key_Return);
    EXPECT_EQ(focusOf(d), bateau);
    press(d, Qt::Key_Return);
    ASSERT_EQ(demandes.size(), 1);
    EXPECT_EQ(demandes[0].date, u"15/06/2026"_s);
    EXPECT_EQ(demandes[0].numero, u"4"_s);
    EXPECT_EQ(demandes[0].nomChalutier, u"AMAL"_s);
    EXPECT_EQ(grille(d)->rowCount(), 4) << "the list is read afresh";
    EXPECT_EQ(grille(d)->currentRow(), 3);
    EXPECT_EQ(commandes(d), toutes);

    // The number of the boat, its first letters, and a number typed over the one proposed.
    const struct
    {
        QString frappe;
        qsizetype rang;
    } cas[] = {{u"3"_s, 2}, {u"eto"_s, 1}};
    for (const auto& c : cas) {
        press(d, Qt::Key_Insert);
        press(d, Qt::Key_Up);
        EXPECT_EQ(focusOf(d), numero);
        type(d.focusWidget(), u"77"_s);
        press(d, Qt::Key_Return);
        press(d, Qt::Key_Return);
        type(d.focusWidget(), c.frappe);
        press(d, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(demandes.last().Num_Chalutier, bateaux[c.rang]) << c.frappe.toStdString();
        EXPECT_EQ(demandes.last().numero, u"77"_s);
    }
}

TEST_F(FBord, un_bordereau_se_commence_au_pointeur_seul)
{
    troisBordereaux();
    F_Bord d(e, saisie);
    show(d);
    click(d, u"Crecettes(3)"_s);
    {
        const auto calendrier = whenOpened<Q_Date_2>([](Q_Date_2& c) {
            press(c, Qt::Key_Left);
            press(c, Qt::Key_Return);
        });
        click(d, u"Image2(0)"_s);
    }
    {
        const auto choix = whenOpened<Q_Bateau>([](Q_Bateau& c) {
            click(c, u"Image1(2)"_s);
            click(c, u"Image1(0)"_s);
        });
        click(d, u"Image2(1)"_s);
    }
    // A boat that came after the list was read.
    exemples.chalutier(u"PIRATE"_s);
    {
        ExpectMessages messages{{u"Embarcation introuvable"_s, u"ATTENTION"_s}};
        const auto choix = whenOpened<Q_Bateau>([](Q_Bateau& c) {
            press(c, Qt::Key_End);
            press(c, Qt::Key_Return);
        });
        click(d, u"Image2(1)"_s);
    }
    click(d, ok);
    ASSERT_EQ(demandes.size(), 1);
    EXPECT_EQ(demandes[0].date, u"14/06/2026"_s);
    EXPECT_EQ(demandes[0].Num_Chalutier, bateaux[1]);

    click(d, u"Crecettes(3)"_s);
    click(d, u"Image1(1)"_s);
    EXPECT_EQ(demandes.size(), 1);
    EXPECT_EQ(commandes(d), toutes);
    EXPECT_EQ(focusOf(d), u"Grid1"_s);
    click(d, u"Crecettes(5)"_s);
    EXPECT_FALSE(d.isVisible());
}

TEST_F(FBord, une_date_fausse_est_refusee_et_se_tape_a_nouveau)
{
    troisBordereaux();
    F_Bord d(e, saisie);
    show(d);
    press(d, Qt::Key_Insert);
    type(d, date, u"1506"_s);
    {
        ExpectMessages messages{{u"Date incorrecte"_s, u"TALOR"_s}};
        press(d, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(messages.shown().first().icon, controls::MessageIcon::Warning);
    }
    EXPECT_EQ(focusOf(d), date);
    EXPECT_TRUE(demandes.isEmpty());
    type(d, date, u"31062026"_s);
    press(d, Qt::Key_Return);
    EXPECT_EQ(textOf(d, date), QString()) << "a day that does not exist is blanked on leaving";
    type(d, date, u"30062026"_s);
    press(d, Qt::Key_Backspace);
    EXPECT_EQ(textOf(d, date), QString()) << "backspace clears the date whole";
    type(d, date, u"01062026"_s);
    click(d, ok);
    ASSERT_EQ(demandes.size(), 1);
    EXPECT_EQ(demandes[0].date, u"01/06/2026"_s);
}

TEST_F(FBord, un_bordereau_ouvert_se_rouvre_sous_ses_donnees_fermees)
{
    troisBordereaux();
    F_Bord d(e, saisie);
    show(d);
    press(d, Qt::Key_Home);
    press(d, Qt::Key_F2);
    EXPECT_EQ(textOf(d, u"Label2(12)"_s), u"Ancien bordereau"_s);
    EXPECT_EQ(textOf(d, date), u"10/05/2026"_s);
    EXPECT_EQ(textOf(d, bateau), u"Étoile de Ténès"_s);
    for (const QString& champ : {numero, date, bateau})
        EXPECT_FALSE(control(d, champ)->isEnabled()) << champ.toStdString();
    for (const QString& bouton : {u"Image2(0)"_s, u"Image2(1)"_s})
        EXPECT_FALSE(isShown(d, bouton));
    press(d, Qt::Key_Return);
    ASSERT_EQ(demandes.size(), 1);
    EXPECT_EQ(demandes[0].num, ouvert);
    EXPECT_EQ(grille(d)->currentRow(), 2);

    grille(d)->selectRow(0);
    QTest::mouseDClick(grille(d)->viewport(), Qt::LeftButton, {},
                       grille(d)->visualRect(grille(d)->currentIndex()).center());
    EXPECT_TRUE(isShown(d, u"SSFrame1"_s));
}

TEST_F(FBord, supprimer_se_confirme_et_la_derniere_ligne_ouvre_le_cadre)
{
    bordereau(u"10/05/2026"_s, bateaux[1]);
    bordereau(u"11/05/2026"_s, bateaux[1]);
    F_Bord d(e, saisie);
    show(d);
    const QString question = u"Confirmer supression de la ligne N° %1"_s, fait = u"Bordereau supprimé avec succès"_s;
    {
        ExpectMessages messages{
            {question.arg(2), u"Confirmation"_s, Answer::No}, {question.arg(2), Answer::Yes}, {fait, u"TALOR"_s}};
        press(d, Qt::Key_Delete);
        EXPECT_EQ(grille(d)->rowCount(), 2);
        click(d, u"Crecettes(2)"_s);
    }
    EXPECT_EQ(grille(d)->rowCount(), 1);
    EXPECT_EQ(commandes(d), toutes);
    ExpectMessages messages{{question.arg(1), Answer::Yes}, {fait}};
    press(d, Qt::Key_Delete);
    EXPECT_EQ(e.Bordereaux.recordCount(), 0);
    EXPECT_EQ(textOf(d, numero), u"1"_s);
    EXPECT_EQ(commandes(d), quitterSeul);
}

TEST_F(FBord, le_filtre_se_donne_au_clavier_et_baisse_le_numero_propose)
{
    troisBordereaux();
    F_Bord d(e, saisie);
    show(d);
    press(d, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(commandes(d), quitterSeul);
    EXPECT_EQ(textOf(d, u"Combo21"_s), u" Ensemble"_s);
    EXPECT_EQ(control<QComboBox>(d, u"Combo1"_s)->itemText(0), u"Janvier"_s);
    EXPECT_EQ(textOf(d, u"Text21(1)"_s), u"15/06/2026"_s);
    EXPECT_EQ(textOf(d, u"Text21(2)"_s), u"15/06/2026"_s);
    type(d.focusWidget(), u"3"_s);
    press(d, Qt::Key_Return);
    press(d, Qt::Key_Return); // the month of today
    EXPECT_EQ(grille(d)->rowCount(), 1);
    EXPECT_EQ(textOf(d, u"Label4(0)"_s), u"Bordereaux du mois de Juin"_s);
    EXPECT_EQ(textOf(d, u"Label4(1)"_s), u"Chalutier   ----> NADJET"_s);
    EXPECT_EQ(focusOf(d), u"Grid1"_s);
    press(d, Qt::Key_Insert);
    EXPECT_EQ(textOf(d, numero), u"2"_s);
    press(d, Qt::Key_Escape);

    press(d, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(textOf(d, u"Combo21"_s), u"NADJET"_s) << "what was chosen last stays";
    press(d, Qt::Key_End);
    type(d, u"Text21(1)"_s, u"10052026"_s);
    press(d, Qt::Key_Return);
    type(d.focusWidget(), u"12062026"_s);
    press(d, Qt::Key_Return);
    EXPECT_EQ(grille(d)->rowCount(), 2);
    EXPECT_EQ(textOf(d, u"Label4(0)"_s), u"Période du 10/05/2026  au 12/06/2026"_s);
    EXPECT_EQ(textOf(d, u"Label4(1)"_s), u"Ensemble des Embarcations"_s);
    press(d, Qt::Key_F, Qt::ControlModifier);
    press(d, Qt::Key_Escape);
    EXPECT_EQ(grille(d)->rowCount(), 2);
    EXPECT_EQ(commandes(d), toutes);
}

TEST_F(FBord, le_filtre_se_donne_au_pointeur_et_ses_refus_le_laissent_ouvert)
{
    troisBordereaux();
    F_Bord d(e, saisie);
    show(d);
    click(d, u"Crecettes(4)"_s);
    {
        const auto choix = whenOpened<Q_Bateau>([](Q_Bateau& c) { click(c, u"Image1(0)"_s); });
        click(d, u"Image31(1)"_s);
    }
    {
        const auto choix = whenOpened<Q_Mos>([](Q_Mos& c) {
            click(c, u"Image1(3)"_s);
            click(c, u"Image1(0)"_s);
        });
        click(d, u"Image31(2)"_s);
    }
    const QString aucun = u"Aucun enregistrement pour cette période"_s;
    {
        ExpectMessages messages{{aucun, u"ATTENTION"_s}};
        click(d, u"Image21(1)"_s); // AMAL in May
        EXPECT_EQ(messages.shown().first().icon, controls::MessageIcon::Information);
    }
    EXPECT_EQ(focusOf(d), u"Combo1"_s);
    {
        ExpectMessages messages{{u"Saisie incomplète"_s, u"ATTENTION"_s}, {u"Dates inversées"_s, u"ATTENTION"_s}};
        type(d, u"Text21(2)"_s, u"1405"_s);
        click(d, u"Image21(3)"_s);
        EXPECT_EQ(focusOf(d), u"Text21(2)"_s);
        type(d, u"Text21(2)"_s, u"14062026"_s);
        click(d, u"Image21(3)"_s);
        EXPECT_EQ(focusOf(d), u"Text21(1)"_s);
    }
    EXPECT_TRUE(isShown(d, u"SSFrame2"_s));
    EXPECT_EQ(grille(d)->rowCount(), 3);
    {
        const auto calendrier = whenOpened<Q_Date_2>([](Q_Date_2& c) {
            press(c, Qt::Key_Up);
            press(c, Qt::Key_Return);
        });
        click(d, u"Image31(3)"_s);
    }
    click(d, u"Image31(0)"_s);
    click(d, u"Image21(3)"_s);
    EXPECT_EQ(grille(d)->rowCount(), 2) << "from 8 to 14 June";
    for (const QString& annuler : {u"Image21(2)"_s, u"Image21(4)"_s}) {
        click(d, u"Crecettes(4)"_s);
        click(d, annuler);
        EXPECT_FALSE(isShown(d, u"SSFrame2"_s));
    }
}

TEST_F(FBord, l_impression_veut_une_imprimante_et_son_modele)
{
    troisBordereaux();
    exemples.ligne({.bordereau = ouvert, .chalutier = bateaux[1], .client = 1, .poisson = 1, .poids = 10, .pu = 100});
    F_Bord d(e, saisie);
    Edit_Bor2 edition(e);
    for (QWidget* porte : QList<QWidget*>{&d, &edition}) {
        show(*porte);
        press(porte, Qt::Key_Home);
        services::printers::setNothingPrints(true);
        {
            ExpectMessages messages{{u"Aucune imprimante installée"_s, u"ATTENTION"_s}};
            press(porte, Qt::Key_P, Qt::ControlModifier);
        }
        services::printers::setNothingPrints(false);
        {
            ExpectMessages messages{{u"Fichier 'BORDERO.RPT' absent"_s, u"ATTENTION"_s}};
            press(porte, Qt::Key_P, Qt::ControlModifier);
        }
        QFile::copy(QStringLiteral(TALOR_SOURCE_DIR "/reports/BORDERO.RPT"), t.chemin(u"BORDERO.RPT"_s));
        {
            const auto apercu = whenOpened<reports::Apercu>([](reports::Apercu& a) { a.close(); });
            click(*porte, porte == &d ? u"Crecettes(0)"_s : u"Crecettes(1)"_s);
        }
        QFile::remove(t.chemin(u"BORDERO.RPT"_s));
        porte->hide();
    }
    e.textes.requery();
    EXPECT_EQ(e.textes.text("ch1"), u"Mandataire Essai"_s);
    EXPECT_EQ(e.textes.text("ch4"), u"Ensemble des Bordereaux"_s);
}

TEST_F(FBord, l_edition_consulte_et_ne_change_rien)
{
    troisBordereaux();
    Edit_Bor2 d(e);
    show(d);
    EXPECT_EQ(commandes(d, 3), (QList<int>{0, 1, 2}));
    EXPECT_EQ(d.findChild<QWidget*>(u"Crecettes(3)"_s), nullptr);
    EXPECT_EQ(d.findChild<QWidget*>(u"SSFrame1"_s), nullptr);
    for (const Qt::Key touche : {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_F2, Qt::Key_Return})
        press(d, touche);
    EXPECT_EQ(e.Bordereaux.recordCount(), 3);
    click(d, u"Crecettes(0)"_s);
    press(d, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(grille(d)->rowCount(), 2);
    EXPECT_EQ(textOf(d, u"Label4(0)"_s), u"Bordereaux du mois de Juin"_s);
    click(d, u"Crecettes(2)"_s);
    EXPECT_FALSE(d.isVisible());
}

TEST_F(FBord, l_edition_d_un_exercice_vide_ne_fait_que_se_quitter)
{
    Edit_Bor2 d(e);
    show(d);
    EXPECT_EQ(commandes(d, 3), QList<int>{2});
    press(d, Qt::Key_Escape);
    EXPECT_FALSE(d.isVisible());
}
