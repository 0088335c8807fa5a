#include "invoicing/factures.h"

#include "invoicing/fact_bis.h"
#include "platform/controls/grid.h"
#include "platform/services/clock.h"
#include "platform/services/printers.h"
#include "reference/q_date_2.h"
#include "reference/q_selection.h"
#include "tests/support/apercu.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/messages.h"
#include "tests/support/progression.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPrinter>

using namespace Qt::StringLiterals;
using namespace talor;
using controls::Grid;
using reports::Apercu;

namespace {

const QString jour = u"15/06/2026"_s;

class FacturesTest : public testing::Test
{
protected:
    FacturesTest()
    {
        services::clock::setToday(QDate(2026, 6, 15));
        for (const QString& modele : {u"Facture.RPT"_s, u"List_fct.RPT"_s})
            EXPECT_TRUE(QFile::copy(QStringLiteral(TALOR_SOURCE_DIR "/reports/") + modele, t.chemin(modele)));
        zoulim = exemples.client(u"ZOULIM"_s, u"Ali"_s, u"024 11 22 33"_s);
        amari = exemples.client(u"AMARI"_s, u"Said"_s);
        Apercu::services.choosePrinter = [this](QPrinter& imprimante, int pages, QWidget*) {
            pagesDemandees.append(pages);
            imprimante.setOutputFormat(QPrinter::PdfFormat);
            imprimante.setOutputFileName(t.chemin(u"papier.pdf"_s));
            return true;
        };
    }
    ~FacturesTest() override
    {
        Apercu::services = avant;
        services::clock::followSystem();
    }

    /// An invoice of one line.
    qint64 facturer(qint64 client, qint64 ordre, const QString& date = jour, bool reglee = false)
    {
        const qint64 num = exemples.facture({.client = client,
                                             .ordre = ordre,
                                             .date = date,
                                             .casiers = 2,
                                             .Total_HT = 5000,
                                             .Consigne = 200,
                                             .reglee = reglee});
        const qint64 ligne = exemples.ligne({.client = client, .casiers = 2, .poids = 10, .pu = 500});
        t.exercice.Base().execute(u"update L_Vente set Num_Facture = ? where num = ?"_s, {num, ligne});
        return num;
    }

    /// Three invoices of the day, by name: 2 and 3 of AMARI, then 1 of ZOULIM.
    void troisFactures()
    {
        facturer(zoulim, 1);
        facturer(amari, 2);
        facturer(amari, 3);
    }

    static Grid* liste(QWidget& d) { return control<Grid>(d, u"Grid1"_s); }
    static QStringList colonne(QWidget& d, int index)
    {
        QStringList textes;
        for (int rang = 0; rang < liste(d)->rowCount(); ++rang)
            textes += liste(d)->text(rang, index);
        return textes;
    }
    static QStringList marques(QWidget& d) { return colonne(d, 9); }
    static QAbstractButton* bouton(QWidget& d, const QString& nom) { return control<QAbstractButton>(d, nom); }

    ExerciceTemporaire t;
    Exemples exemples{t.exercice};
    qint64 zoulim = 0, amari = 0;
    QList<int> pagesDemandees; ///< of each document that went to the printer
    Apercu::Services avant = Apercu::services;
};

} // namespace

TEST_F(FacturesTest, dix_colonnes_dans_leur_ordre_et_leurs_alignements)
{
    facturer(amari, 7, jour, true);
    FACTURES d(t.exercice);
    Fact_Bis bis(t.exercice, jour);
    struct
    {
        QString titre, cellule;
        Qt::Alignment alignement;
    } const cas[] = {
        {u"N°"_s, u"7"_s, Qt::AlignRight},
        {u"Date"_s, jour, Qt::AlignLeft},
        {u"Client"_s, u"AMARI  Said "_s, Qt::AlignLeft},
        {u"Téléphone"_s, u" "_s, Qt::AlignLeft},
        {u"Cas."_s, u"2"_s, Qt::AlignRight},
        {u"Poisson"_s, u"5 000.00 "_s, Qt::AlignRight},
        {u"Consigne"_s, u"200.00 "_s, Qt::AlignRight},
        {u"Total"_s, u"5 200.00 "_s, Qt::AlignRight},
        {u"Règl"_s, u"OUI  "_s, Qt::AlignHCenter},
        {u"Impr"_s, QString(), Qt::AlignHCenter},
    };
    ASSERT_EQ(liste(d)->columnCount(), 10);
    const QAbstractItemModel* modele = liste(d)->model();
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(modele->headerData(i, Qt::Horizontal).toString(), cas[i].titre);
        EXPECT_EQ(liste(d)->text(0, i), cas[i].cellule) << i;
        EXPECT_TRUE(modele->index(0, i).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & cas[i].alignement) << i;
    }
    const QString survols[] = {u" Filtre "_s, u" Impr. Facture "_s, u" Impr. Listing "_s, u" Quitter "_s};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(bouton(bis, u"Image1(%1)"_s.arg(i))->toolTip(), survols[i]);
    EXPECT_EQ(textOf(d, u"Label3(0)"_s), u"5 000 "_s);
    EXPECT_EQ(textOf(d, u"Label3(1)"_s), u"200 "_s);
    EXPECT_EQ(textOf(d, u"Label3(2)"_s), u"5 200 "_s);
    EXPECT_EQ(textOf(d, u"Label4"_s), u"Nombre total de facture(s) : 1"_s);
}

TEST_F(FacturesTest, un_jour_sans_facture_ouvre_une_liste_fermee_et_le_filtre_en_sort)
{
    facturer(amari, 1, u"03/01/2026"_s);
    facturer(amari, 2, u"20/05/2026"_s);
    FACTURES d(t.exercice);
    show(d);
    EXPECT_FALSE(liste(d)->isEnabled());
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(textOf(d, u"Label3(%1)"_s.arg(i)), QString());
    EXPECT_EQ(textOf(d, u"Label4"_s), u"Nombre total de facture(s) : 0"_s);
    EXPECT_FALSE(bouton(d, u"Image1(1)"_s)->isEnabled());
    EXPECT_EQ(d.focusWidget(), control(d, u"Image1(0)"_s));

    press(d, Qt::Key_Return);
    EXPECT_TRUE(control(d, u"SSFrame1"_s)->isVisible());
    for (int i = 0; i < 4; ++i)
        EXPECT_FALSE(bouton(d, u"Image1(%1)"_s.arg(i))->isEnabled());
    press(d, Qt::Key_Down);
    EXPECT_EQ(textOf(d, u"Text1(1)"_s), u"03/01/2026"_s);
    EXPECT_EQ(textOf(d, u"Text1(2)"_s), u"20/05/2026"_s);
    press(d, Qt::Key_Return);
    press(d, Qt::Key_Return);
    EXPECT_FALSE(control(d, u"SSFrame1"_s)->isVisible());
    EXPECT_EQ(liste(d)->rowCount(), 2);
    EXPECT_EQ(d.focusWidget(), liste(d));
    EXPECT_EQ(liste(d)->currentRow(), 0);
    EXPECT_EQ(textOf(d, u"Label4(0)"_s), u"Ensemble des factures du 03/01/2026 au 20/05/2026"_s);
    press(d, Qt::Key_Escape);
    EXPECT_FALSE(d.isVisible());
}

TEST_F(FacturesTest, les_marques_se_mettent_au_clavier_et_au_pointeur)
{
    troisFactures();
    FACTURES d(t.exercice);
    show(d);
    const QString oui = u"OUI"_s, non;
    press(d, Qt::Key_Space);
    press(d, Qt::Key_Down);
    press(d, Qt::Key_Return);
    EXPECT_EQ(marques(d), QStringList({oui, oui, non}));
    press(d, Qt::Key_Return);
    press(d, Qt::Key_Plus);
    press(d, Qt::Key_Plus);
    EXPECT_EQ(marques(d), QStringList({oui, oui, non})) << "to mark twice is to mark";
    press(d, Qt::Key_Minus);
    EXPECT_EQ(marques(d), QStringList({oui, non, non}));
    press(d, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(marques(d), QStringList({oui, oui, oui}));
    press(d, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(marques(d), QStringList({non, non, non}));

    const QPoint troisieme = liste(d)->visualRect(liste(d)->model()->index(2, 2)).center();
    QTest::mouseClick(liste(d)->viewport(), Qt::LeftButton, {}, troisieme);
    EXPECT_EQ(liste(d)->currentRow(), 2);
    click(d, u"Image3(0)"_s);
    EXPECT_EQ(marques(d), QStringList({non, non, oui}));
    QTest::mouseDClick(liste(d)->viewport(), Qt::LeftButton, {}, troisieme);
    EXPECT_EQ(marques(d), QStringList({non, non, non}));
    click(d, u"Image3(3)"_s);
    click(d, u"Image3(1)"_s);
    EXPECT_EQ(marques(d), QStringList({oui, oui, non}));
    click(d, u"Image3(2)"_s);
    click(d, u"Image3(3)"_s);

    click(d, u"Image1(0)"_s);
    click(d, u"Image2(1)"_s);
    EXPECT_EQ(marques(d), QStringList({non, non, non})) << "a reload forgets them";
}

TEST_F(FacturesTest, le_filtre_au_pointeur_joint_client_reglement_et_classement)
{
    facturer(zoulim, 1, u"01/06/2026"_s);
    facturer(amari, 2, u"02/06/2026"_s, true);
    facturer(amari, 3, u"03/06/2026"_s);
    FACTURES d(t.exercice);
    show(d);
    const auto filtrer = [&] {
        click(d, u"Image2(3)"_s);
        const QStringList numeros = colonne(d, 0);
        click(d, u"Image1(0)"_s);
        return numeros;
    };
    click(d, u"Image1(0)"_s);
    EXPECT_EQ(filtrer(), QStringList({u"2"_s, u"3"_s, u"1"_s}));
    click(bouton(d, u"SSOption4(1)"_s));
    EXPECT_EQ(filtrer(), QStringList({u"1"_s, u"2"_s, u"3"_s}));
    click(bouton(d, u"SSOption1(0)"_s));
    EXPECT_EQ(filtrer(), QStringList({u"1"_s, u"3"_s}));
    EXPECT_EQ(textOf(d, u"Label4(0)"_s), u"Factures non réglées du 01/06/2026 au 03/06/2026"_s);
    {
        const auto choix = whenOpened<Q_Client>([](Q_Client& q) { click(q, u"Image1(0)"_s); });
        click(d, u"Image4(5)"_s);
    }
    EXPECT_EQ(filtrer(), QStringList({u"3"_s}));
    EXPECT_EQ(textOf(d, u"Label4(1)"_s), u"Client ----> AMARI  Said"_s);
    click(bouton(d, u"SSOption1(1)"_s));
    click(d, u"Image4(6)"_s);
    EXPECT_EQ(filtrer(), QStringList({u"2"_s}));
    {
        const auto calendrier = whenOpened<Q_Date_2>([](Q_Date_2& c) {
            press(c, Qt::Key_Right);
            press(c, Qt::Key_Return);
        });
        click(d, u"Image4(0)"_s);
    }
    EXPECT_EQ(textOf(d, u"Text1(0)"_s), u"16/06/2026"_s);
    click(d, u"Image2(4)"_s);
    EXPECT_FALSE(control(d, u"SSFrame1"_s)->isVisible());
    EXPECT_EQ(d.focusWidget(), liste(d));
}

TEST_F(FacturesTest, un_filtre_refuse_reste_ouvert_sur_le_champ_fautif)
{
    facturer(amari, 1);
    struct
    {
        int champ;
        QString saisie;
        int ok;
        QString refus;
    } const cas[] = {
        {0, u"15062"_s, 1, u"Date incorrecte"_s},
        {1, u"15062"_s, 3, u"Date incorrecte"_s},
        {2, u"15062"_s, 3, u"Date incorrecte"_s},
        {1, u"16062026"_s, 3, u"Dates inversées"_s},
        {0, u"16062026"_s, 1, u"Aucune Facture ne répond à ces critères"_s},
    };
    for (const auto& c : cas) {
        ExpectMessages messages{{c.refus, u"ATTENTION"_s}};
        FACTURES d(t.exercice);
        show(d);
        press(d, Qt::Key_F, Qt::ControlModifier);
        auto* champ = control<QLineEdit>(d, u"Text1(%1)"_s.arg(c.champ));
        type(champ, c.saisie);
        click(d, u"Image2(%1)"_s.arg(c.ok));
        EXPECT_TRUE(control(d, u"SSFrame1"_s)->isVisible());
        EXPECT_EQ(d.focusWidget(), champ) << c.refus.toStdString() << c.champ;
        EXPECT_EQ(champ->selectedText(), champ->text());
        EXPECT_EQ(liste(d)->rowCount(), 1);
        press(d, Qt::Key_Escape);
        EXPECT_TRUE(d.isVisible() && liste(d)->hasFocus()) << "Escape closes the frame first";
    }
    ExpectMessages messages{{u"Client introuvable"_s, u"ATTENTION"_s}};
    FACTURES d(t.exercice);
    show(d);
    exemples.client(u"AAA"_s); // after the list was read
    click(d, u"Image1(0)"_s);
    const auto choix = whenOpened<Q_Client>([](Q_Client& q) { click(q, u"Image1(0)"_s); });
    click(d, u"Image4(5)"_s);
}

TEST_F(FacturesTest, la_reimpression_avance_d_un_client_a_l_autre)
{
    facturer(amari, 1);
    Fact_Bis d(t.exercice, jour);
    show(d);
    click(d, u"Image1(0)"_s);
    auto* client = control<QComboBox>(d, u"Combo2"_s);
    EXPECT_FALSE(control(d, u"Image4(4)"_s)->isVisible()) << "Ensemble is the last";
    click(d, u"Image4(3)"_s);
    EXPECT_EQ(client->currentText(), u"ZOULIM  Ali"_s);
    EXPECT_TRUE(control(d, u"Image4(4)"_s)->isVisible());
    control(d, u"Image4(3)"_s)->setFocus();
    press(d, Qt::Key_Space);
    EXPECT_EQ(client->currentText(), u"AMARI  Said"_s);
    EXPECT_FALSE(control(d, u"Image4(3)"_s)->isVisible());
    EXPECT_EQ(d.focusWidget(), client);
    click(d, u"Image4(4)"_s);
    EXPECT_EQ(client->currentIndex(), 1);
}

TEST_F(FacturesTest, la_facture_actuelle_s_imprime_a_l_ecran_au_clavier)
{
    troisFactures();
    for (const bool bis : {false, true}) {
        const std::unique_ptr<DialogueFactures> d(bis ? static_cast<DialogueFactures*>(new Fact_Bis(t.exercice, jour))
                                                      : new FACTURES(t.exercice));
        show(*d);
        press(*d, Qt::Key_Down);
        press(*d, Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(focusOf(*d), u"Option2(1)"_s) << "nothing is marked: the selected one";
        const QStringList facture = pagesMontrees([&] { press(*d, Qt::Key_Return); });
        ASSERT_EQ(facture.size(), 1);
        for (const QString& attendu : {u"Facture N° 3 / 2026"_s, u"Arrêtée la présente facture à la somme de :"_s,
                                       u"*** CINQ MILLE DEUX CENTS DINARS"_s, u"5 200.00"_s})
            EXPECT_TRUE(facture[0].contains(attendu)) << attendu.toStdString() << '\n' << facture[0].toStdString();

        press(*d, Qt::Key_L, Qt::AltModifier);
        const QStringList bon = pagesMontrees([&] { press(*d, Qt::Key_Return); });
        ASSERT_EQ(bon.size(), 1);
        EXPECT_TRUE(bon[0].contains(u"Bon de Livraison N° 3 / 2026"_s)) << bon[0].toStdString();
        EXPECT_TRUE(bon[0].contains(u"Consigne\n200.00"_s) && bon[0].contains(u"5 200.00"_s));
        EXPECT_FALSE(bon[0].contains(u"***"_s) || bon[0].contains(u"Arrêtée"_s)) << "no sum in words";
        press(*d, Qt::Key_Escape);
        EXPECT_FALSE(control(*d, u"SSPanel3"_s)->isVisible());
        press(*d, Qt::Key_Escape);
        EXPECT_FALSE(d->isVisible());
    }
}

TEST_F(FacturesTest, les_lignes_marquees_font_un_seul_document_a_l_ecran_ou_sur_papier)
{
    troisFactures();
    FACTURES d(t.exercice);
    show(d);
    click(d, u"Image3(0)"_s);
    press(d, Qt::Key_End);
    click(d, u"Image3(0)"_s);
    click(d, u"Image1(1)"_s);
    EXPECT_TRUE(bouton(d, u"Option2(0)"_s)->isChecked()) << "some are marked";
    const QStringList pages = pagesMontrees([&] { click(d, u"Image5(0)"_s); });
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[0].contains(u"Facture N° 2 / 2026"_s) && pages[1].contains(u"Facture N° 1 / 2026"_s));
    EXPECT_TRUE(pages[0].startsWith(u"Factures\n"_s));

    click(bouton(d, u"SSOption3(1)"_s));
    click(d, u"Image5(0)"_s);
    EXPECT_EQ(pagesDemandees, QList<int>{2}) << "the printer is asked for once";
    EXPECT_TRUE(QFile::exists(t.chemin(u"papier.pdf"_s)));
    click(d, u"Image5(1)"_s);
    EXPECT_EQ(marques(d).filter(u"OUI"_s).size(), 2) << "printing leaves the marks";
}

TEST_F(FacturesTest, ce_qui_empeche_d_imprimer_se_dit)
{
    troisFactures();
    FACTURES d(t.exercice);
    show(d);
    click(d, u"Image1(1)"_s);
    {
        ExpectMessages messages{{u"Aucune sélection"_s, u"ATTENTION"_s}};
        click(bouton(d, u"Option2(0)"_s));
        press(d, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(focusOf(d), u"Option2(0)"_s);
    }
    QFile::remove(t.chemin(u"Facture.RPT"_s));
    QFile::remove(t.chemin(u"List_fct.RPT"_s));
    click(bouton(d, u"Option2(1)"_s));
    {
        ExpectMessages messages{{u"Fichier 'Facture.RPT' absent"_s, u"ATTENTION"_s},
                                {u"Fichier 'List_fct.RPT' absent"_s, u"ATTENTION"_s}};
        click(d, u"Image5(0)"_s);
        click(d, u"Image5(1)"_s);
        click(d, u"Image1(2)"_s);
    }
    ExpectMessages messages{{u"Aucune imprimante installée"_s, u"ATTENTION"_s},
                            {u"Aucune imprimante installée"_s, u"ATTENTION"_s}};
    services::printers::setNothingPrints(true);
    click(d, u"Image1(2)"_s);
    click(d, u"Image1(1)"_s);
    click(d, u"Image5(0)"_s);
    services::printers::setNothingPrints(false);
}

TEST_F(FacturesTest, un_etat_absent_se_dit_une_fois_et_les_autres_factures_s_impriment)
{
    troisFactures();
    exemples.regularisation(amari, jour, 500);
    exemples.regularisation(zoulim, jour, 700);
    FACTURES d(t.exercice);
    show(d);
    click(d, u"Image3(3)"_s);
    click(d, u"Image1(1)"_s);
    ExpectMessages messages{{u"Fichier 'F_Regul.rpt' absent"_s, u"ATTENTION"_s}};
    EXPECT_EQ(pagesMontrees([&] { click(d, u"Image5(0)"_s); }).size(), 3);
}

TEST_F(FacturesTest, un_lot_interrompu_entre_deux_factures_n_imprime_rien)
{
    troisFactures();
    FACTURES d(t.exercice);
    show(d);
    click(d, u"Image3(3)"_s);
    click(d, u"Image1(1)"_s);
    click(bouton(d, u"SSOption3(1)"_s));
    {
        const AnnulerProgression annulation;
        click(d, u"Image5(0)"_s);
    }
    EXPECT_EQ(pagesDemandees, QList<int>());
    EXPECT_TRUE(control(d, u"SSPanel3"_s)->isVisible());
    click(d, u"Image5(0)"_s);
    EXPECT_EQ(pagesDemandees, QList<int>{3}) << "and can be asked for again";
}

TEST_F(FacturesTest, le_listing_reprend_la_liste_ses_titres_et_ses_sommes)
{
    troisFactures();
    facturer(amari, 4, jour, true);
    exemples.regularisation(zoulim, jour, 500);
    FACTURES d(t.exercice);
    show(d);
    const QStringList pages = pagesMontrees([&] { press(d, Qt::Key_L, Qt::ControlModifier); });
    ASSERT_EQ(pages.size(), 1);
    for (const QString& attendu :
         {u"Mandataire Essai"_s, u"Port de Ténès"_s, u"RC 02/00-1234567"_s, u"Journée du  15/06/2026"_s,
          u"Ensemble des clients"_s, u"4\n15/06/2026\nAMARI  Said\n2\n5 000.00\n200.00\n5 200.00\nOUI"_s,
          u"-1\n15/06/2026\nZOULIM  Ali\n500.00"_s, u"Nombre total de factures : 5"_s,
          u"8\n20 500.00\n800.00\n21 300.00"_s})
        EXPECT_TRUE(pages[0].contains(attendu)) << attendu.toStdString() << '\n' << pages[0].toStdString();
}
