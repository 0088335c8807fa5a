// A whole day at the quay through the real windows: six bordereaux, the invoices and the papers, once by keys alone and
// once by touch alone. Both leave the same rows.

#include "tests/shell/journee.h"

#include "invoicing/fact_bis.h"
#include "invoicing/factura.h"
#include "platform/controls/grid.h"
#include "platform/services/clock.h"
#include "reference/q_selection.h"
#include "sales/f_bord.h"
#include "sales/j_vente.h"
#include "shell/fonctions.h"
#include "shell/form1.h"
#include "tests/support/apercu.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/messages.h"
#include "tools/calclette.h"

#include <QFile>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace talor;
using controls::Grid;

namespace {

/// One way of working: every gesture by keys, or every gesture by touch.
class Geste
{
public:
    virtual ~Geste() = default;
    virtual void nouveauBordereau(F_Bord& d, int bateau) = 0;
    virtual void ligne(j_vente& d, const LigneCriee& ligne) = 0;
    virtual void finDeSaisie(j_vente& d) = 0;
    virtual void corriger(j_vente& d) = 0;
    virtual void supprimer(j_vente& d, int rang) = 0;
    virtual void frais(j_vente& d, const QList<QString>& montants) = 0;
    virtual void primes(j_vente& d, const QString& primes, const QString& taux) = 0;
    virtual void quitter(QWidget& d) = 0;
    virtual void choisirRang(QWidget& d, int rang) = 0;
    virtual void reouvrir(F_Bord& d) = 0;
    virtual void supprimer(F_Bord& d) = 0;
    virtual void facturer(Factura& d) = 0;
    virtual void imprimerTout(Fact_Bis& d) = 0;
    virtual void imprimerBon(Fact_Bis& d) = 0;
};

class AuClavier : public Geste
{
public:
    void nouveauBordereau(F_Bord& d, int bateau) override
    {
        if (!control(d, u"SSFrame1"_s)->isVisible()) // an empty register opens on it
            press(d, Qt::Key_Insert);
        press(d, Qt::Key_Return); // today
        type(d.focusWidget(), QString::number(bateau));
        press(d, Qt::Key_Return);
    }
    void ligne(j_vente& d, const LigneCriee& l) override
    {
        for (const QString& texte : {QString::number(l.client), QString::number(l.poisson), l.cageots, l.poids, l.pu}) {
            auto* champ = static_cast<QLineEdit*>(d.focusWidget());
            if (texte.isEmpty() && champ->hasSelectedText())
                press(d, Qt::Key_Delete);
            type(champ, texte);
            press(d, Qt::Key_Return);
        }
    }
    void finDeSaisie(j_vente& d) override { press(d, Qt::Key_Escape); }
    void corriger(j_vente& d) override
    {
        press(d, Qt::Key_Home);
        press(d, Qt::Key_F2);
    }
    void supprimer(j_vente& d, int rang) override
    {
        choisirRang(d, rang);
        press(d, Qt::Key_Delete);
    }
    void frais(j_vente& d, const QList<QString>& montants) override
    {
        press(d, Qt::Key_F6);
        for (const QString& montant : montants) {
            type(d.focusWidget(), montant);
            press(d, Qt::Key_Return);
        }
        press(d, Qt::Key_Return, Qt::ControlModifier);
    }
    void primes(j_vente& d, const QString& primes, const QString& taux) override
    {
        const auto pave = whenOpened<Calclette>([&](Calclette& c) {
            type(c.focusWidget(), primes);
            press(c, Qt::Key_Return);
            type(c.focusWidget(), taux);
            press(c, Qt::Key_Return);
        });
        press(d, Qt::Key_F5);
    }
    void quitter(QWidget& d) override { press(d, Qt::Key_Escape); }
    void choisirRang(QWidget& d, int rang) override
    {
        press(d, Qt::Key_Home);
        for (int i = 0; i < rang; ++i)
            press(d, Qt::Key_Down);
    }
    void reouvrir(F_Bord& d) override { press(d, Qt::Key_F2); }
    void supprimer(F_Bord& d) override { press(d, Qt::Key_Delete); }
    void facturer(Factura& d) override { press(d, Qt::Key_Return, Qt::ControlModifier); }
    void imprimerTout(Fact_Bis& d) override
    {
        press(d, Qt::Key_A, Qt::ControlModifier);
        press(d, Qt::Key_P, Qt::ControlModifier);
        press(d, Qt::Key_Return);
        fermerPanneau(d);
    }
    void imprimerBon(Fact_Bis& d) override
    {
        press(d, Qt::Key_P, Qt::ControlModifier);
        press(d, Qt::Key_A, Qt::AltModifier);
        press(d, Qt::Key_L, Qt::AltModifier);
        press(d, Qt::Key_Return);
        fermerPanneau(d);
    }

private:
    static void fermerPanneau(Fact_Bis& d)
    {
        QCoreApplication::processEvents(); // the keys go to the list again
        press(d, Qt::Key_Escape);
    }
};

class AuDoigt : public Geste
{
public:
    void nouveauBordereau(F_Bord& d, int bateau) override
    {
        if (!control(d, u"SSFrame1"_s)->isVisible())
            click(d, u"Crecettes(3)"_s);
        {
            const auto choix = whenOpened<Q_Bateau>([&](Q_Bateau& q) {
                clickRow(q, u"Grid1"_s, bateau - 1);
                click(q, u"Image1(0)"_s);
            });
            click(d, u"Image2(1)"_s);
        }
        click(d, u"Image1(0)"_s);
    }
    void ligne(j_vente& d, const LigneCriee& l) override
    {
        clickRow(d, u"Grid2(1)"_s, l.client - 1); // clients were named in the order of their numbers
        clickRow(d, u"Grid2(0)"_s, l.poisson - 1);
        click(d, u"Image1(4)"_s);
        const QString chiffres[] = {l.cageots, l.poids, l.pu};
        for (int i = 0; i < 3; ++i) {
            click(d, u"Text22(%1)"_s.arg(i));
            clickPad(d, u"SSCommand11"_s, chiffres[i]);
        }
        click(d, u"Image22(1)"_s);
        click(d, u"Image1(0)"_s);
    }
    void finDeSaisie(j_vente& d) override { click(d, u"Image1(1)"_s); }
    void corriger(j_vente& d) override
    {
        clickRow(d, u"Grid1"_s, 0);
        click(d, u"Crecettes(1)"_s);
    }
    void supprimer(j_vente& d, int rang) override
    {
        clickRow(d, u"Grid1"_s, rang);
        click(d, u"Crecettes(2)"_s);
    }
    void frais(j_vente& d, const QList<QString>& montants) override
    {
        click(d, u"Image1(7)"_s);
        for (int i = 0; i < montants.size(); ++i) {
            click(d, u"Text3(%1)"_s.arg(i + 1));
            clickPad(d, u"SSCommand10"_s, montants[i]);
        }
        click(d, u"Image1(3)"_s);
    }
    void primes(j_vente& d, const QString& primes, const QString& taux) override
    {
        const auto pave = whenOpened<Calclette>([&](Calclette& c) {
            const QString valeurs[] = {primes, taux};
            for (int i = 0; i < 2; ++i) {
                click(c, u"Text1(%1)"_s.arg(i));
                clickPad(c, u"SSCommand1"_s, valeurs[i]);
            }
            click(c, u"Image1(1)"_s);
        });
        click(d, u"Image1(5)"_s);
    }
    void quitter(QWidget& d) override
    {
        click(d, d.objectName() == u"F_Bord"_s     ? u"Crecettes(5)"_s
                 : d.objectName() == u"Fact_Bis"_s ? u"Image1(3)"_s
                                                   : u"Crecettes(3)"_s);
    }
    void choisirRang(QWidget& d, int rang) override { clickRow(d, u"Grid1"_s, rang); }
    void reouvrir(F_Bord& d) override { click(d, u"Crecettes(1)"_s); }
    void supprimer(F_Bord& d) override { click(d, u"Crecettes(2)"_s); }
    void facturer(Factura& d) override { click(d, u"Image1(1)"_s); }
    void imprimerTout(Fact_Bis& d) override
    {
        click(d, u"Image3(3)"_s);
        click(d, u"Image1(1)"_s);
        click(d, u"Image5(0)"_s);
        click(d, u"Image5(1)"_s);
    }
    void imprimerBon(Fact_Bis& d) override
    {
        click(d, u"Image1(1)"_s);
        click(d, u"Option2(1)"_s);
        click(d, u"SSOption5(1)"_s);
        click(d, u"Image5(0)"_s);
        click(d, u"Image5(1)"_s);
    }
};

/// The day, worked by one way or the other, and what it leaves.
class Journee
{
public:
    explicit Journee(Geste& geste)
        : m_geste(geste)
    {
        services::clock::setToday(QDate(2026, 6, 15));
        Exemples exemples(t.exercice);
        for (int i = 1; i <= Criee::nbClients; ++i)
            exemples.client(u"CLIENT %1"_s.arg(i, 2, 10, QChar(u'0')), u"Ali"_s);
        for (int i = 1; i <= Criee::nbPoissons; ++i)
            exemples.poisson(u"POISSON %1"_s.arg(i));
        for (int i = 1; i <= Criee::nbBateaux; ++i)
            exemples.chalutier(u"BATEAU %1"_s.arg(i));
        for (const QString& modele : {u"Facture.RPT"_s, u"BORDERO.RPT"_s})
            QFile::copy(QStringLiteral(TALOR_SOURCE_DIR "/reports/") + modele, t.chemin(modele));
        brancherFonctions(m_form1, t.exercice);
        show(m_form1);
    }
    ~Journee() { services::clock::followSystem(); }

    void vendre()
    {
        const auto registre = whenOpened<F_Bord>([this](F_Bord& d) {
            for (const BordereauCrie& bordereau : Criee::jouer()) {
                {
                    const auto saisie = whenOpened<j_vente>([&](j_vente& j) { remplir(j, bordereau); });
                    m_geste.nouveauBordereau(d, bordereau.bateau);
                }
                QCoreApplication::processEvents(); // the keys go to the register again
            }
            EXPECT_EQ(control<Grid>(d, u"Grid1"_s)->rowCount(), Criee::nbBordereaux);
            m_geste.quitter(d);
        });
        m_form1.executer(u"MBorde"_s);
    }

    void facturer()
    {
        const auto saisie = whenOpened<Factura>([this](Factura& d) {
            const auto reprise = whenOpened<Fact_Bis>([this](Fact_Bis& bis) {
                EXPECT_EQ(control<Grid>(bis, u"Grid1"_s)->rowCount(), Criee::nbClients);
                lot = pagesMontrees([&] { m_geste.imprimerTout(bis); });
                m_geste.choisirRang(bis, 0);
                bon = pagesMontrees([&] { m_geste.imprimerBon(bis); });
                m_geste.quitter(bis);
            });
            ExpectMessages messages{{u"20 Facture(s) calculées"_s, u"TALOR"_s}};
            m_geste.facturer(d);
        });
        m_form1.executer(u"Nouv_Fact"_s);
    }

    /// What is invoiced is neither reopened nor deleted; the rows of the register as they read.
    QStringList relire()
    {
        QStringList lignes;
        const auto registre = whenOpened<F_Bord>([&](F_Bord& d) {
            ExpectMessages messages{{u"Bordereau facturé"_s, u"ATTENTION"_s}, {u"Bordereau facturé"_s, u"ATTENTION"_s}};
            m_geste.choisirRang(d, 2);
            m_geste.reouvrir(d);
            m_geste.supprimer(d);
            const auto* grille = control<Grid>(d, u"Grid1"_s);
            for (int rang = 0; rang < grille->rowCount(); ++rang) {
                QStringList cellules;
                for (int colonne = 0; colonne < grille->columnCount(); ++colonne)
                    cellules << grille->text(rang, colonne);
                lignes << cellules.join(u'|');
            }
            m_geste.quitter(d);
        });
        m_form1.executer(u"MBorde"_s);
        return lignes;
    }

    /// Every row of the tables that a day writes, `num`s included.
    QStringList livres()
    {
        QStringList lignes;
        for (const QString& table : {u"Bordereaux"_s, u"L_Vente"_s, u"Factures"_s, u"Clients"_s}) {
            store::Recordset r = t.exercice.Base().openRecordset(u"select * from "_s + table + u" order by num"_s);
            for (; !r.eof(); r.moveNext()) {
                QStringList valeurs{table};
                for (int i = 0; i < r.fieldCount(); ++i)
                    valeurs << r.value(i).toString();
                lignes << valeurs.join(u'|');
            }
        }
        return lignes;
    }

    ExerciceTemporaire t;
    QStringList lot; ///< pages of the batch
    QStringList bon; ///< pages of the delivery note

private:
    void remplir(j_vente& d, const BordereauCrie& bordereau)
    {
        for (int i = 0; i < bordereau.lignes.size(); ++i) {
            ExpectMessages messages{u"Ligne N°  %1 acquise"_s.arg(i + 1)};
            m_geste.ligne(d, bordereau.lignes[i]);
        }
        m_geste.finDeSaisie(d);
        if (bordereau.correction) {
            ExpectMessages messages{u"Ligne N°  1 acquise"_s};
            m_geste.corriger(d);
            m_geste.ligne(d, *bordereau.correction);
        }
        if (bordereau.aSupprimer > 0) {
            ExpectMessages messages{
                {u"Confirmer supression de ligne N° %1"_s.arg(bordereau.aSupprimer), controls::Answer::Yes}};
            m_geste.supprimer(d, bordereau.aSupprimer - 1);
        }
        if (!bordereau.frais.isEmpty())
            m_geste.frais(d, bordereau.frais);
        if (!bordereau.primes.isEmpty())
            m_geste.primes(d, bordereau.primes, bordereau.taux);
        m_geste.quitter(d);
    }

    Geste& m_geste;
    Form1 m_form1{t.exercice};
};

} // namespace

/// The first place where two lists part.
QString ecart(const QStringList& a, const QStringList& b)
{
    for (qsizetype i = 0; i < qMax(a.size(), b.size()); ++i) {
        if (a.value(i) != b.value(i))
            return u"%1 : « %2 », « %3 »"_s.arg(i).arg(a.value(i), b.value(i));
    }
    return {};
}

TEST(UneJournee, se_travaille_au_clavier_comme_au_doigt_et_laisse_les_memes_lignes)
{
    AuClavier clavier;
    AuDoigt doigt;
    QStringList registres[2], livres[2], lots[2], bons[2];
    int rang = 0;
    for (Geste* geste : std::initializer_list<Geste*>{&clavier, &doigt}) {
        Journee journee(*geste);
        journee.vendre();
        journee.facturer();
        registres[rang] = journee.relire();
        livres[rang] = journee.livres();
        lots[rang] = journee.lot;
        bons[rang] = journee.bon;
        ++rang;
    }
    EXPECT_EQ(ecart(livres[0], livres[1]), QString());
    EXPECT_EQ(ecart(lots[0], lots[1]), QString());
    EXPECT_EQ(ecart(bons[0], bons[1]), QString());
    EXPECT_EQ(ecart(registres[0], registres[1]), QString());

    // As worked out by hand from what is called out.
    EXPECT_EQ(livres[0].filter(u"L_Vente|"_s).size(), 119);
    EXPECT_EQ(livres[0].filter(u"Factures|"_s).size(), Criee::nbClients);
    EXPECT_EQ(lots[0].size(), Criee::nbClients) << "one page an invoice";
    ASSERT_EQ(bons[0].size(), 1);
    EXPECT_TRUE(bons[0][0].contains(u"Bon de Livraison N°"_s));
    EXPECT_FALSE(bons[0][0].contains(u"Arrêtée la présente facture"_s));
    EXPECT_TRUE(lots[0][0].contains(u"Arrêtée la présente facture à la somme de :"_s));
    const QStringList registre{
        u"1|15/06/2026|BATEAU 1 |93|205 525.00 ||30 828.75 ||174 696.25 |OUI|"_s,
        u"2|15/06/2026|BATEAU 2 |96|180 150.00 ||27 022.50 ||153 127.50 |OUI|"_s,
        u"3|15/06/2026|BATEAU 3 |89|185 695.00 ||27 854.25 ||157 840.75 |OUI|"_s,
        u"4|15/06/2026|BATEAU 1 |93|209 620.00 |1 500.00 |24 974.40 ||183 145.60 |OUI|"_s,
        u"5|15/06/2026|BATEAU 2 |93|177 550.00 ||26 632.50 |4 250.50 |146 667.00 |OUI|"_s,
        u"6|15/06/2026|BATEAU 3 |93|197 800.00 ||29 670.00 ||168 130.00 |OUI|"_s,
    };
    EXPECT_EQ(ecart(registres[0], registre), QString());
}
