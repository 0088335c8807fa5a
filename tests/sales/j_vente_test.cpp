#include "sales/j_vente.h"

#include "platform/controls/grid.h"
#include "platform/services/sound.h"
#include "reference/q_selection.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"
#include "tools/calclette.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTabWidget>

using namespace Qt::StringLiterals;
using namespace talor;
using controls::Answer;

namespace {

const QString acquise = u"Ligne N°  %1 acquise"_s;

class j_venteTest : public testing::Test
{
protected:
    j_venteTest()
        : exemples(t.exercice)
    {
        nadjet = exemples.chalutier(u"NADJET"_s);
        zoulim = exemples.client(u"ZOULIM"_s, u"Ali"_s);
        amari = exemples.client(u"AMARI"_s, u"Said"_s);
        benali = exemples.client(u"BENALI"_s, u"Omar"_s);
        sardine = exemples.poisson(u"SARDINE"_s);
        crevette = exemples.poisson(u"CREVETTE"_s);
    }

    DemandeSaisie demande(qint64 num = 0) const
    {
        return {
            num ? ModeBordereau::Existant : ModeBordereau::Nouveau, u"15/06/2026"_s, u"12"_s, num, nadjet, u"NADJET"_s};
    }

    /// Opens the dialog on a bordereau, does the work and leaves it by Escape from wherever the work stopped.
    void saisir(const DemandeSaisie& demande, const std::function<void(j_vente&)>& travail)
    {
        const auto attente = whenOpened<j_vente>([&](j_vente& d) {
            travail(d);
            for (int cadres = 0; d.isVisible() && cadres < 3; ++cadres)
                press(d, Qt::Key_Escape);
        });
        j_vente::saisir(&fenetre, t.exercice, demande);
    }

    /// A bordereau of so many lines at 100 dinars a crate, of 1, 2, 3... crates, never above 50.
    qint64 bordereau(int lignes)
    {
        store::Transaction transaction(t.exercice.Base());
        const qint64 num = exemples.bordereau(u"15/06/2026"_s, nadjet);
        for (int i = 1; i <= lignes; ++i)
            exemples.ligne({num, nadjet, i % 2 ? zoulim : amari, sardine, (i - 1) % 50 + 1, 0, 100});
        transaction.commit();
        return num;
    }

    QVariantList ligne(qint64 num)
    {
        store::Recordset l =
            t.exercice.Base().openRecordset(u"select * from L_Vente where num = "_s + QString::number(num));
        if (l.eof())
            return {};
        return {l.integer("num_client"), l.integer("Num_Poisson"), l.integer("Casiers"), l.real("poids"), l.real("PU"),
                l.real("Total")};
    }

    QVariant ecrit(const char* champ)
    {
        store::Recordset b = t.exercice.Base().openRecordset(u"select * from Bordereaux"_s);
        return b.eof() ? QVariant() : b.value(champ);
    }

    ExerciceTemporaire t;
    Exemples exemples;
    QWidget fenetre;
    qint64 nadjet, zoulim, amari, benali, sardine, crevette;
};

controls::Grid* lignes(j_vente& d)
{
    return control<controls::Grid>(d, u"Grid1"_s);
}

/// Types into the field that has the focus, then Enter.
void entrer(j_vente& d, const QString& texte)
{
    type(d.focusWidget(), texte);
    press(d, Qt::Key_Return);
}

void entrerLigne(j_vente& d, const QStringList& cinq)
{
    for (const QString& texte : cinq)
        entrer(d, texte);
}

} // namespace

TEST_F(j_venteTest, une_ligne_se_saisit_par_cinq_nombres_et_cinq_fois_Entree)
{
    saisir(demande(), [&](j_vente& d) {
        EXPECT_EQ(textOf(d, u"Label1(10)"_s), u"Bordereau N° : 12\n Du : 15/06/2026\nEmbarcation : NADJET"_s);
        EXPECT_EQ(textOf(d, u"Label1(8)"_s), u"Nouveau Bordereau"_s);
        EXPECT_EQ(textOf(d, u"SSPanel2"_s), u"NOUVEL ACHAT"_s); // without a line it opens on entry
        EXPECT_EQ(focusOf(d), u"Text1(0)"_s);
        {
            ExpectMessages messages{acquise.arg(1)};
            entrerLigne(d, {u"2"_s, u"1"_s, u"10"_s, u"12,5"_s, u"480"_s});
            EXPECT_EQ(messages.shown()[0].title, QString());
        }
        EXPECT_EQ(ligne(1), (QVariantList{amari, sardine, 10, 12.5, 480.0, 6000.0})) << "on disk when it is announced";
        EXPECT_EQ(focusOf(d), u"Text1(0)"_s);
        EXPECT_EQ(textOf(d, u"Text1(0)"_s), u"2"_s) << "client and fish stay, quantities go";
        EXPECT_EQ(textOf(d, u"Text1(2)"_s) + textOf(d, u"Text1(3)"_s) + textOf(d, u"Text1(4)"_s), QString());
        EXPECT_EQ(textOf(d, u"Label2(2)"_s), QString());
        EXPECT_EQ(lignes(d)->text(0, ColLigneClient), u"AMARI  Said "_s);

        ExpectMessages messages{acquise.arg(2)};
        entrerLigne(d, {u"3"_s, u"2"_s, u"4"_s, u""_s, u"1000"_s});
        EXPECT_EQ(textOf(d, u"Label1(7)"_s), u"14"_s);
        EXPECT_EQ(textOf(d, u"Label2(20)"_s), u"10 000.00 "_s);
        EXPECT_EQ(textOf(d, u"Label2(21)"_s), u"1 500 .00 "_s);
        EXPECT_EQ(textOf(d, u"Label2(23)"_s), u"8 500 .00 "_s);
        press(d, Qt::Key_Escape); // back to the lines
        EXPECT_EQ(focusOf(d), u"Grid1"_s);
        press(d, Qt::Key_Escape); // and out
        EXPECT_FALSE(d.isVisible());
    });
    EXPECT_EQ(ecrit("brut"), 10000.0);
    EXPECT_EQ(ecrit("Casiers"), 14);
}

TEST_F(j_venteTest, Entree_ferme_l_annonce_et_rend_la_main_au_client)
{
    saisir(demande(), [](j_vente& d) {
        const RealMessages boites;
        const auto annonce = whenOpened<controls::Message>([](controls::Message& boite) {
            EXPECT_EQ(textOf(boite, u"Texte"_s), acquise.arg(1));
            press(boite, Qt::Key_Return);
        });
        entrerLigne(d, {u"2"_s, u"1"_s, u"10"_s, u""_s, u"480"_s});
        ASSERT_TRUE(QTest::qWaitForWindowActive(&d));
        EXPECT_EQ(focusOf(d), u"Text1(0)"_s);
        entrer(d, u"3"_s);
        EXPECT_EQ(textOf(d, u"Label3(0)"_s), u"BENALI  Omar"_s);
    });
}

TEST_F(j_venteTest, ce_qui_manque_a_une_ligne_est_dit_et_rien_n_est_perdu)
{
    saisir(demande(), [&](j_vente& d) {
        ExpectMessages messages{{u"Prix Unitaire omis"_s, u"ATTENTION"_s},
                                {u"Quantité omise"_s, u"ATTENTION"_s},
                                {u"Numéro omis"_s, QString()},
                                {u"N° de client omis"_s, u"ATTENTION"_s},
                                {u"Numéro omis"_s, QString()},
                                {u"N° de poisson omis "_s, u"ATTENTION"_s}};
        entrerLigne(d, {u"2"_s, u"1"_s, u"10"_s, u""_s, u""_s});
        EXPECT_EQ(textOf(d, u"Text1(2)"_s), u"10"_s);
        control<QLineEdit>(d, u"Text1(2)"_s)->clear();
        type(d, u"Text1(4)"_s, u"480"_s);
        click(d, u"Image1(0)"_s);
        control<QLineEdit>(d, u"Text1(2)"_s)->setText(u"10"_s);
        for (const int choix : {0, 1}) {
            auto* numero = control<QLineEdit>(d, u"Text1(%1)"_s.arg(choix));
            numero->setFocus();
            numero->clear();
            control(d, u"Text1(4)"_s)->setFocus(); // told on leaving, and the focus goes on all the same
            EXPECT_EQ(focusOf(d), u"Text1(4)"_s);
            click(d, u"Image1(0)"_s);
        }
    });
    EXPECT_FALSE(t.exercice.Base().exists(u"select num from L_Vente"_s));
}

TEST_F(j_venteTest, apres_un_numero_inconnu_la_ligne_garde_le_choix_precedent)
{
    saisir(demande(), [&](j_vente& d) {
        ExpectMessages messages{{u"Numéro d'ordre introuvable"_s, u"ATTENTION"_s}, acquise.arg(1)};
        entrer(d, u"3"_s);
        EXPECT_EQ(textOf(d, u"Label3(0)"_s), u"BENALI  Omar"_s);
        control(d, u"Text1(0)"_s)->setFocus();
        entrer(d, u"77"_s);
        EXPECT_EQ(focusOf(d), u"Text1(1)"_s);
        EXPECT_EQ(textOf(d, u"Label3(0)"_s), u"BENALI  Omar"_s);
        entrerLigne(d, {u"1"_s, u"1"_s, u""_s, u"10"_s});
        EXPECT_EQ(ligne(1)[0], benali);
    });
}

TEST_F(j_venteTest, un_numero_encore_en_frappe_est_cherche_avant_que_la_ligne_soit_prise)
{
    saisir(demande(), [&](j_vente& d) {
        for (const auto& [nom, texte] : {std::pair{u"Text1(2)"_s, u"5"_s}, {u"Text1(4)"_s, u"10"_s}})
            control<QLineEdit>(d, nom)->setText(texte);
        ExpectMessages messages{u"Numéro d'ordre introuvable"_s, acquise.arg(1)};
        type(d, u"Text1(0)"_s, u"99"_s);
        click(d, u"Image1(0)"_s);
        EXPECT_EQ(lignes(d)->rowCount(), 0);
        control<QLineEdit>(d, u"Text1(0)"_s)->selectAll();
        type(d, u"Text1(0)"_s, u"1"_s);
        press(d, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(ligne(1)[0], zoulim);
    });
}

TEST_F(j_venteTest, les_fleches_menent_d_un_champ_a_l_autre)
{
    struct
    {
        QString champ;
        Qt::Key touche;
        QString apres;
    } const cas[] = {
        {u"Text1(1)"_s, Qt::Key_Up, u"Text1(0)"_s},       {u"Text1(0)"_s, Qt::Key_Up, u"Text1(0)"_s},
        {u"Text1(2)"_s, Qt::Key_Down, u"Text1(3)"_s},     {u"Text1(4)"_s, Qt::Key_Down, u"Text1(4)"_s},
        {u"Text1(2)"_s, Qt::Key_Right, u"Text1(3)"_s},    {u"Text1(4)"_s, Qt::Key_Right, u"Text1(4)"_s},
        {u"Text1(2)"_s, Qt::Key_Left, u"Text1(2)"_s}, // inert, on purpose
        {u"Text2(1)"_s, Qt::Key_Return, u"Text3(1)"_s},   {u"Text2(2)"_s, Qt::Key_Up, u"Text2(1)"_s},
        {u"Text2(1)"_s, Qt::Key_Up, u"Text2(1)"_s},       {u"Text2(9)"_s, Qt::Key_Down, u"Text2(10)"_s},
        {u"Text2(10)"_s, Qt::Key_Down, u"Text2(10)"_s},   {u"Text2(4)"_s, Qt::Key_Right, u"Text3(4)"_s},
        {u"Text2(4)"_s, Qt::Key_Left, u"Text2(4)"_s},     {u"Text3(3)"_s, Qt::Key_Return, u"Text3(4)"_s},
        {u"Text3(10)"_s, Qt::Key_Return, u"Text3(10)"_s}, {u"Text3(2)"_s, Qt::Key_Up, u"Text3(1)"_s},
        {u"Text3(9)"_s, Qt::Key_Down, u"Text3(10)"_s},    {u"Text3(5)"_s, Qt::Key_Left, u"Text2(5)"_s},
        {u"Text3(5)"_s, Qt::Key_Right, u"Text3(5)"_s},    {u"Text22(0)"_s, Qt::Key_Return, u"Text22(1)"_s},
        {u"Text22(2)"_s, Qt::Key_Return, u"Text22(2)"_s}, {u"Text22(1)"_s, Qt::Key_Up, u"Text22(0)"_s},
        {u"Text22(1)"_s, Qt::Key_Down, u"Text22(2)"_s},
    };
    saisir(demande(bordereau(1)), [&](j_vente& d) {
        QString famille;
        for (const auto& c : cas) {
            const QString laSienne = c.champ.section(u'(', 0, 0);
            if (laSienne != famille) {
                if (laSienne == u"Text1"_s)
                    press(d, Qt::Key_Insert);
                else if (laSienne == u"Text2"_s) {
                    press(d, Qt::Key_Escape);
                    press(d, Qt::Key_F6);
                } else if (laSienne == u"Text22"_s) {
                    press(d, Qt::Key_Escape);
                    press(d, Qt::Key_Insert);
                    press(d, Qt::Key_F7);
                }
                famille = laSienne;
            }
            control(d, c.champ)->setFocus();
            press(d, c.touche);
            EXPECT_EQ(focusOf(d), c.apres) << c.champ.toStdString() << " " << c.touche;
        }
    });
}

TEST_F(j_venteTest, une_ligne_se_saisit_au_doigt)
{
    t.exercice.EffetSonore = 1;
    QStringList sons;
    const auto avant = services::sound::setRecorder([&](const QString& son) { sons << QFileInfo(son).fileName(); });
    saisir(demande(), [&](j_vente& d) {
        clickRow(d, u"Grid2(1)"_s, 1); // by name: AMARI, BENALI, ZOULIM
        EXPECT_EQ(control<QTabWidget>(d, u"SSTab1"_s)->currentIndex(), 1) << "after the client, the fish";
        clickRow(d, u"Grid2(0)"_s, 1);
        EXPECT_EQ(textOf(d, u"Combo1(0)"_s), u"BENALI  Omar"_s);
        EXPECT_EQ(textOf(d, u"Text1(1)"_s), u"2"_s);
        EXPECT_EQ(focusOf(d), u"Text1(2)"_s);

        click(d, u"Image1(4)"_s);
        EXPECT_FALSE(control(d, u"SSFrame1"_s)->isEnabled());
        EXPECT_EQ(textOf(d, u"Label5(0)"_s) + textOf(d, u"Label5(1)"_s), u"BENALI  OmarCREVETTE"_s);
        EXPECT_FALSE(control(d, u"SSCommand11(10)"_s)->isEnabled()) << "crates are whole";
        clickPad(d, u"SSCommand11"_s, u"129"_s);
        click(d, u"Image22(0)"_s); // backspace
        click(d, u"Text22(1)"_s);
        EXPECT_EQ(textOf(d, u"Label11"_s), QString());
        clickPad(d, u"SSCommand11"_s, u"7.51"_s);
        click(d, u"Text22(2)"_s);
        clickPad(d, u"SSCommand11"_s, u"123"_s);
        EXPECT_TRUE(sons.isEmpty());
        click(d, u"Image22(1)"_s);
        EXPECT_EQ(sons, QStringList{QString()});
        EXPECT_EQ(textOf(d, u"Text1(2)"_s), u"12"_s);

        sons.clear();
        ExpectMessages messages{acquise.arg(1)};
        click(d, u"Image1(0)"_s);
        EXPECT_EQ(sons, QStringList{u"caisse.wav"_s});
        EXPECT_EQ(ligne(1), (QVariantList{benali, crevette, 12, 7.51, 123.0, 923.73}));
        click(d, u"Image1(1)"_s);
    });
    services::sound::setRecorder(avant);
}

TEST_F(j_venteTest, le_second_appui_d_un_double_clic_sur_un_client_ne_choisit_pas_de_poisson)
{
    saisir(demande(), [&](j_vente& d) {
        auto* clients = control<controls::Grid>(d, u"Grid2(1)"_s);
        auto* poissons = control<controls::Grid>(d, u"Grid2(0)"_s);
        const QPoint place = clients->visualRect(clients->model()->index(1, 1)).center();
        QTest::mouseClick(clients->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(poissons->viewport(), Qt::LeftButton, {},
                           place); // of which the first press is no second one
        QMouseEvent second(QEvent::MouseButtonDblClick, place, poissons->viewport()->mapToGlobal(place), Qt::LeftButton,
                           Qt::LeftButton, {});
        clickRow(d, u"Grid2(0)"_s, 0);
        control(d, u"Text1(0)"_s)->setFocus();
        QTest::mouseClick(clients->viewport(), Qt::LeftButton, {}, place);
        QCoreApplication::sendEvent(poissons->viewport(), &second);
        EXPECT_EQ(textOf(d, u"Label3(0)"_s) + textOf(d, u"Label3(1)"_s), u"BENALI  OmarSARDINE"_s);
    });
}

TEST_F(j_venteTest, le_pave_demande_le_client_et_le_poisson_et_se_quitte_sans_rien_poser)
{
    saisir(demande(), [&](j_vente& d) {
        press(d, Qt::Key_F7);
        {
            const auto client = whenOpened<Q_Client>([](Q_Client& q) {
                press(q, Qt::Key_End);
                press(q, Qt::Key_Return);
            });
            click(d, u"Image22(3)"_s);
        }
        EXPECT_EQ(textOf(d, u"Label5(0)"_s), u"ZOULIM  Ali"_s);
        {
            const auto poisson = whenOpened<Q_Poisson>([](Q_Poisson& q) { press(q, Qt::Key_Escape); });
            click(d, u"Image22(2)"_s);
        }
        EXPECT_EQ(textOf(d, u"Label5(1)"_s), u"SARDINE"_s);
        clickPad(d, u"SSCommand11"_s, u"5"_s);
        click(d, u"Image22(4)"_s);
        EXPECT_EQ(textOf(d, u"Text1(0)"_s), u"1"_s);
        EXPECT_EQ(textOf(d, u"Text1(2)"_s), QString());
        EXPECT_TRUE(control(d, u"SSTab1"_s)->isEnabled());
    });
}

TEST_F(j_venteTest, la_correction_reecrit_la_premiere_ligne_quelle_que_soit_la_selection)
{
    const qint64 num = bordereau(3);
    saisir(demande(num), [&](j_vente& d) {
        EXPECT_EQ(textOf(d, u"Label1(8)"_s), u"Correction du bordereau"_s);
        press(d, Qt::Key_Down);
        press(d, Qt::Key_F2);
        EXPECT_EQ(textOf(d, u"SSPanel2"_s), u"MODIFICATION"_s);
        EXPECT_EQ(textOf(d, u"Text1(0)"_s), u"2"_s);
        EXPECT_EQ(textOf(d, u"Text1(2)"_s), u"2"_s);
        EXPECT_EQ(textOf(d, u"Text1(4)"_s), u"100.00"_s);
        ExpectMessages messages{acquise.arg(2)};
        entrerLigne(d, {u"3"_s, u"2"_s, u"9"_s, u""_s, u"50"_s});
        EXPECT_EQ(ligne(1), (QVariantList{benali, crevette, 9, 0.0, 50.0, 450.0}));
        EXPECT_EQ(ligne(2)[2], 2);
        EXPECT_EQ(lignes(d)->text(1, ColLigneCageots), u"2 "_s);
        EXPECT_FALSE(isShown(d, u"SSFrame1"_s)) << "a correction ends where it began";
        EXPECT_TRUE(lignes(d)->isEnabled());
    });
}

TEST_F(j_venteTest, une_ligne_supprimee_laisse_les_autres_numerotees_sans_trou)
{
    saisir(demande(bordereau(3)), [&](j_vente& d) {
        const QString question = u"Confirmer supression de ligne N° 2"_s;
        ExpectMessages messages{{question, u"Confirmation"_s, Answer::No},
                                {question, u"Confirmation"_s, Answer::Yes},
                                {u"Confirmer supression de ligne N° 1"_s, Answer::Yes},
                                {u"Confirmer supression de ligne N° 1"_s, Answer::Yes}};
        press(d, Qt::Key_Down);
        press(d, Qt::Key_Delete);
        EXPECT_EQ(lignes(d)->rowCount(), 3);
        press(d, Qt::Key_Delete);
        EXPECT_EQ(lignes(d)->text(1, ColLigneNumero) + lignes(d)->text(1, ColLigneCageots), u"23 "_s);
        EXPECT_EQ(lignes(d)->currentRow(), 0);
        EXPECT_EQ(textOf(d, u"Label1(7)"_s), u"4"_s);
        click(d, u"Crecettes(2)"_s);
        click(d, u"Crecettes(2)"_s);
        EXPECT_FALSE(lignes(d)->isEnabled());
        for (const int sansEffet : {1, 2})
            click(d, u"Crecettes(%1)"_s.arg(sansEffet));
        EXPECT_FALSE(isShown(d, u"SSFrame1"_s));
    });
    EXPECT_EQ(ecrit("brut"), 0.0) << "an existing bordereau stays, empty";
}

TEST_F(j_venteTest, les_frais_se_saisissent_et_ne_comptent_qu_une_fois_acceptes)
{
    t.exercice.EffetSonore = 1;
    int sons = 0;
    const auto avant = services::sound::setRecorder([&](const QString&) { ++sons; });
    saisir(demande(bordereau(1)), [&](j_vente& d) {
        press(d, Qt::Key_F6);
        EXPECT_EQ(focusOf(d), u"Text3(1)"_s);
        EXPECT_FALSE(isShown(d, u"Crecettes(0)"_s));
        entrer(d, u"30"_s);
        clickPad(d, u"SSCommand10"_s, u"12.5"_s); // the second row came in hand
        EXPECT_EQ(textOf(d, u"Text3(2)"_s), u"12.5"_s);
        click(d, u"Image1(6)"_s);
        EXPECT_EQ(textOf(d, u"Text3(2)"_s), u"12."_s);
        type(d, u"Text2(8)"_s, u"Pain"_s);
        EXPECT_EQ(textOf(d, u"Label1(9)"_s), u"42.00"_s);
        press(d, Qt::Key_Escape); // left without taking them
        EXPECT_EQ(textOf(d, u"Label2(22)"_s), QString());
        EXPECT_EQ(sons, 0);

        click(d, u"Label2(18)"_s);
        EXPECT_EQ(textOf(d, u"Text2(8)"_s), u"Pain"_s);
        click(d, u"Label2(22)"_s); // already open: nothing
        press(d, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(sons, 1);
        EXPECT_EQ(textOf(d, u"Label2(22)"_s), u"42.00"_s);
        EXPECT_EQ(textOf(d, u"Label2(23)"_s), u"100 .00 "_s) << "the net is computed afresh at departure only";
    });
    EXPECT_EQ(ecrit("frais"), 42.0);
    EXPECT_EQ(ecrit("net"), 58.0);
    saisir(demande(1), [&](j_vente& d) {
        click(d, u"Image1(7)"_s);
        EXPECT_EQ(textOf(d, u"Text3(1)"_s), u"30.00"_s);
        click(d, u"Image1(8)"_s);
        EXPECT_FALSE(isShown(d, u"SSFrame2"_s));
        press(d, Qt::Key_F6);
        EXPECT_EQ(textOf(d, u"Text3(1)"_s) + textOf(d, u"Label1(9)"_s), QString());
    });
    services::sound::setRecorder(avant);
}

TEST_F(j_venteTest, les_frais_ouverts_pendant_une_saisie_y_ramenent)
{
    saisir(demande(), [&](j_vente& d) {
        entrerLigne(d, {u"3"_s, u"2"_s, u"7"_s});
        click(d, u"Label2(22)"_s);
        press(d, Qt::Key_Escape);
        EXPECT_EQ(textOf(d, u"Text1(2)"_s), u"7"_s);
        EXPECT_FALSE(isShown(d, u"Crecettes(0)"_s));
        EXPECT_TRUE(control(d, u"SSTab1"_s)->isEnabled());
    });
}

TEST_F(j_venteTest, primes_et_taux_viennent_du_pave_ou_du_clavier)
{
    saisir(demande(bordereau(1)), [&](j_vente& d) {
        EXPECT_EQ(textOf(d, u"Text4(1)"_s), u".00"_s);
        {
            const auto pave = whenOpened<Calclette>([](Calclette& c) {
                EXPECT_EQ(control<QLineEdit>(c, u"Text1(1)"_s)->text(), u".00"_s);
                type(c, u"Text1(0)"_s, u"20"_s);
                control<QLineEdit>(c, u"Text1(1)"_s)->selectAll();
                type(c, u"Text1(1)"_s, u"100"_s);
                press(c, Qt::Key_Return);
            });
            press(d, Qt::Key_F5);
        }
        EXPECT_EQ(textOf(d, u"Text4(0)"_s), u"20"_s);
        EXPECT_EQ(textOf(d, u"Text4(1)"_s), QString()) << "a rate of 100 is emptied";
        {
            const auto pave = whenOpened<Calclette>([](Calclette& c) { press(c, Qt::Key_Escape); });
            click(d, u"Image1(5)"_s);
        }
        EXPECT_EQ(textOf(d, u"Text4(0)"_s), u"20"_s);
        control<QLineEdit>(d, u"Text4(1)"_s)->setFocus();
        type(d, u"Text4(1)"_s, u"10"_s);
        EXPECT_EQ(textOf(d, u"Label2(21)"_s), QString()) << "the old commission stands until the next line";
    });
    EXPECT_EQ(ecrit("primes"), 20.0);
    EXPECT_EQ(ecrit("net"), 72.0);
    EXPECT_EQ(ecrit("MT_Commission"), 10.0);
}

TEST_F(j_venteTest, un_bordereau_qui_compte_trop_de_cageots_ne_s_ouvre_pas)
{
    const qint64 num = exemples.bordereau(u"15/06/2026"_s, nadjet);
    exemples.ligne({num, nadjet, amari, sardine, 40000, 0, 1});
    ExpectMessages messages{u"Le total des cageots du bordereau dépasse 32767"_s};
    j_vente::saisir(&fenetre, t.exercice, demande(num));
}

TEST_F(j_venteTest, la_grille_porte_ses_sept_colonnes_et_s_ouvre_sur_sa_fin)
{
    saisir(demande(bordereau(500)), [](j_vente& d) {
        const controls::Grid* g = lignes(d);
        QStringList legendes;
        for (int c = 0; c < g->columnCount(); ++c)
            legendes << g->model()->headerData(c, Qt::Horizontal).toString();
        EXPECT_EQ(legendes,
                  (QStringList{u"N°"_s, u"Client"_s, u"Poisson"_s, u"Cas."_s, u"Poids"_s, u"P.U."_s, u"Montant"_s}));
        EXPECT_EQ(g->currentRow(), 0);
        EXPECT_TRUE(g->viewport()->rect().intersects(g->visualRect(g->model()->index(499, 0))));
        EXPECT_EQ(g->text(499, ColLigneMontant), u"5 000.00 "_s);
    });
}
