#include "invoicing/factura.h"

#include "invoicing/fact_bis.h"
#include "platform/controls/grid.h"
#include "platform/services/clock.h"
#include "reference/q_date_2.h"
#include "reference/q_selection.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"
#include "tests/support/progression.h"

#include <QComboBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

class FacturaTest : public testing::Test
{
protected:
    FacturaTest()
    {
        services::clock::setToday(QDate(2026, 6, 15));
        for (const QString& nom : {u"AMARI"_s, u"ZOULIM"_s, u"KACI"_s})
            clients.append(exemples.client(nom));
        amal = exemples.chalutier(u"AMAL"_s);
        nadjet = exemples.chalutier(u"NADJET"_s);
    }
    ~FacturaTest() override { services::clock::followSystem(); }

    void vendre(qint64 client, qint64 casiers = 1, qint64 chalutier = 1)
    {
        exemples.ligne({.chalutier = chalutier, .client = client, .casiers = casiers, .pu = 100});
    }

    qint64 nbFactures(const QString& date)
    {
        return t.exercice.Base().scalar(u"select count(*) from Factures where Date = ?"_s, {date}).toLongLong();
    }

    ExerciceTemporaire t;
    Exemples exemples{t.exercice};
    QList<qint64> clients;
    qint64 amal = 0, nadjet = 0;
};

} // namespace

TEST_F(FacturaTest, au_clavier_un_client_est_facture_et_sa_facture_s_ouvre_a_sa_date)
{
    vendre(clients[0]);
    vendre(clients[1]);
    ExpectMessages messages{{u"1 Facture(s) calculées"_s, u"TALOR"_s}};
    Factura d(t.exercice);
    show(d);
    EXPECT_EQ(textOf(d, u"Text1"_s), u"15/06/2026"_s);
    EXPECT_EQ(textOf(d, u"Combo1"_s), u" Ensemble"_s);
    EXPECT_EQ(textOf(d, u"Combo2"_s), u" Ensemble"_s);
    const auto liste = whenOpened<Fact_Bis>([](Fact_Bis& bis) {
        EXPECT_EQ(textOf(bis, u"Label4(0)"_s), u"Journée du  20/06/2026"_s);
        EXPECT_EQ(control<controls::Grid>(bis, u"Grid1"_s)->text(0, 2), u"ZOULIM   "_s);
        press(bis, Qt::Key_Escape);
    });
    type(d.focusWidget(), u"20062026"_s);
    press(d, Qt::Key_Return);
    type(d.focusWidget(), QString::number(clients[1]));
    for (int i = 0; i < 4; ++i)
        press(d, Qt::Key_Return);
    EXPECT_EQ(textOf(d, u"Combo1"_s), u"ZOULIM"_s);
    EXPECT_EQ(nbFactures(u"20/06/2026"_s), 0) << "Enter walks through the fields and stops on the command";
    press(d, Qt::Key_Return);
    EXPECT_FALSE(d.isVisible());
    EXPECT_EQ(nbFactures(u"20/06/2026"_s), 1);
}

TEST_F(FacturaTest, au_pointeur_date_client_et_bateau_se_choisissent)
{
    vendre(clients[0], 1, nadjet);
    vendre(clients[1], 1, amal);
    ExpectMessages messages{{u"1 Facture(s) calculées"_s, u"TALOR"_s}};
    Factura d(t.exercice);
    show(d);
    {
        const auto calendrier = whenOpened<Q_Date_2>([](Q_Date_2& c) { press(c, Qt::Key_Return); });
        click(d, u"Image1(0)"_s);
    }
    {
        const auto choix = whenOpened<Q_Client>([](Q_Client& q) { click(q, u"Image1(0)"_s); });
        click(d, u"Image4(1)"_s);
    }
    EXPECT_EQ(textOf(d, u"Combo1"_s), u"AMARI"_s) << "the first by name";
    EXPECT_EQ(textOf(d, u"Text2(1)"_s), QString::number(clients[0]));
    {
        const auto renonce = whenOpened<Q_Client>([](Q_Client& q) { click(q, u"Image1(1)"_s); });
        click(d, u"Image4(1)"_s);
    }
    EXPECT_EQ(textOf(d, u"Combo1"_s), u"AMARI"_s) << "given up: all stays";
    click(d, u"Image4(0)"_s);
    EXPECT_EQ(textOf(d, u"Combo1"_s), u" Ensemble"_s);
    EXPECT_EQ(textOf(d, u"Text2(1)"_s), u"-1"_s);
    {
        const auto choix = whenOpened<Q_Bateau>([](Q_Bateau& q) { click(q, u"Image1(0)"_s); });
        click(d, u"Image4(3)"_s);
    }
    EXPECT_EQ(textOf(d, u"Combo2"_s), u"AMAL"_s);
    click(d, u"Image4(2)"_s);
    EXPECT_EQ(textOf(d, u"Combo2"_s), u" Ensemble"_s);
    control<QComboBox>(d, u"Combo2"_s)->setFocus();
    press(d, Qt::Key_Up);
    EXPECT_EQ(textOf(d, u"Text2(2)"_s), QString::number(nadjet)) << "the number follows the list";
    const auto liste = whenOpened<Fact_Bis>([](Fact_Bis& bis) { click(bis, u"Image1(3)"_s); });
    click(d, u"Image1(1)"_s);
    EXPECT_EQ(t.exercice.Factures.recordCount(), 1);
    t.exercice.Factures.moveFirst();
    EXPECT_EQ(t.exercice.Factures.integer("num_client"), clients[0]) << "the boat's only buyer";
}

TEST_F(FacturaTest, un_refus_garde_le_dialogue_et_montre_le_champ_fautif)
{
    struct
    {
        QString champ, saisie, refus;
    } const cas[] = {
        {u"Text1"_s, u"1562026"_s, u"Date incorrecte"_s},
        {u"Text2(1)"_s, u"99"_s, u"Numéro d'ordre introuvable"_s},
        {u"Text2(1)"_s, u"-2"_s, u"Numéro d'ordre introuvable"_s},
        {u"Text2(2)"_s, u"AMAL"_s, u"Numéro d'ordre introuvable"_s},
        {u"Text2(1)"_s, u"-1"_s, u"Aucune vente selon ces critères"_s},
    };
    for (const auto& c : cas) {
        ExpectMessages messages{{c.refus, u"ATTENTION"_s}};
        Factura d(t.exercice);
        show(d);
        auto* champ = control<QLineEdit>(d, c.champ);
        type(champ, c.saisie);
        press(d, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_TRUE(d.isVisible()) << c.refus.toStdString();
        EXPECT_EQ(d.focusWidget(), champ) << c.refus.toStdString();
        EXPECT_EQ(champ->selectedText(), champ->text()) << c.refus.toStdString();
        EXPECT_EQ(messages.shown()[0].icon, controls::MessageIcon::Stop);
    }
    EXPECT_EQ(t.exercice.Factures.recordCount(), 0);
}

TEST_F(FacturaTest, un_numero_inconnu_se_dit_en_quittant_le_champ)
{
    ExpectMessages messages{{u"Numéro d'ordre introuvable"_s, u"ATTENTION"_s}};
    Factura d(t.exercice);
    show(d);
    type(d, u"Text2(1)"_s, u"99"_s);
    press(d, Qt::Key_Return);
    EXPECT_EQ(focusOf(d), u"Text2(1)"_s);
    EXPECT_EQ(textOf(d, u"Combo1"_s), u" Ensemble"_s);
    press(d, Qt::Key_Escape);
    EXPECT_FALSE(d.isVisible()) << "nobody is asked again on the way out";
}

TEST_F(FacturaTest, un_client_qui_ne_peut_etre_facture_est_dit_et_les_autres_le_sont)
{
    vendre(clients[0], 40000);
    vendre(clients[1]);
    const QString trop = u"Le total des cageots du client AMARI dépasse 32767 : sa facture n'est pas établie"_s;
    {
        ExpectMessages messages{{trop}, {u"1 Facture(s) calculées"_s, u"TALOR"_s}};
        const auto liste = whenOpened<Fact_Bis>([](Fact_Bis& bis) { press(bis, Qt::Key_Escape); });
        Factura d(t.exercice);
        show(d);
        click(d, u"Image1(1)"_s);
    }
    ExpectMessages messages{{trop}, {u"0 Facture(s) calculées"_s, u"TALOR"_s}};
    Factura d(t.exercice);
    show(d);
    click(d, u"Image1(1)"_s);
    EXPECT_TRUE(d.isVisible()) << "nothing was made, there is nothing to print";
}

TEST_F(FacturaTest, interrompue_entre_deux_clients_elle_garde_et_dit_ce_qui_est_fait)
{
    for (const qint64 client : clients)
        vendre(client);
    ExpectMessages messages{{u"Facturation interrompue : 1 Facture(s) calculées sur 3"_s, u"TALOR"_s}};
    const AnnulerProgression annulation;
    const auto liste = whenOpened<Fact_Bis>([](Fact_Bis& bis) {
        EXPECT_EQ(control<controls::Grid>(bis, u"Grid1"_s)->rowCount(), 1);
        press(bis, Qt::Key_Escape);
    });
    Factura d(t.exercice);
    show(d);
    click(d, u"Image1(1)"_s);
}
