#include "demo/jeu.h"

#include "core/words.h"
#include "demo/verification.h"
#include "platform/services/clock.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace talor;
using namespace talor::demo;

namespace {

/// Two days, two buyers, a line by weight and a line by crate on each.
Saison petiteSaison()
{
    Saison s;
    s.mandataire.tel = u"0550 000 100"_s;
    s.categories = {u"Mandataires"_s, u"Restaurateurs"_s};
    s.poissons = {{1, u"Sardine"_s}, {7, u"Rouget de roche"_s}};
    s.armateurs = {{u"OUKACI"_s, u"Rabah"_s, {}, {}, {}, {}, {}, {}, {}},
                   {u"BENSALEM"_s, u"Mourad"_s, {}, {}, {}, {}, {}, {}, {}}};
    s.embarcations = {{u"L'Espérance"_s, 1, u"Ténès"_s, u"TN 1147"_s, {}}};
    s.clients = {{12, u"LECŒUR"_s, u"Mathilde"_s, u"Restaurateurs"_s, {}, {}, {}, {}, {}, {}},
                 {3, u"D'ALMEIDA"_s, u"Paul"_s, u"Mandataires"_s, {}, {}, {}, {}, {}, {}}};
    const QList<Ligne> lignes = {{1, 0, u"180"_s, {}, u"2250"_s}, {0, 1, u"2"_s, u"18.35"_s, u"2200.5"_s}};
    const QList<Frais> frais = {{u"Glace"_s, u"9600"_s}, {u"Gasoil"_s, u"12000.5"_s}, {u"Divers"_s, u"100"_s}};
    s.journees = {{QDate(2026, 11, 2), {{0, frais, u"1000"_s, u"12.5"_s, lignes, 1}}},
                  {QDate(2026, 11, 3), {{0, {}, {}, {}, lignes, 9}, {0, {}, {}, {}, lignes, 12}}}};
    return s;
}

class JeuTest : public testing::Test
{
protected:
    ~JeuTest() override { services::clock::followSystem(); }

    std::optional<Refus> jouer()
    {
        return Jeu(e, saison, [this](const QString& a) { annonces << a; }).jouer();
    }

    ExerciceTemporaire temporaire;
    Exercice& e = temporaire.exercice;
    Saison saison = petiteSaison();
    QStringList annonces;
};

} // namespace

TEST_F(JeuTest, une_saison_jouee_tient_dans_les_livres)
{
    const std::optional<Refus> refus = jouer();
    ASSERT_FALSE(refus) << refus->texte.toStdString();
    EXPECT_EQ(verifierLivres(e, saison), QStringList());

    // 180 x 2250 and 18.35 x 2200.5, by hand: the second reads 40 379.18 (40 379.175 rounded).
    EXPECT_DOUBLE_EQ(e.Base().scalar(u"select Total_HT from Factures where ordre = 1"_s).toDouble() +
                         e.Base().scalar(u"select Total_HT from Factures where ordre = 2"_s).toDouble(),
                     445379.18);
    EXPECT_EQ(e.Base().scalar(u"select nom from Armateurs, Chalutiers where armateur = Armateurs!num"_s).toString(),
              u"BENSALEM"_s);
    EXPECT_EQ(e.Base()
                  .scalar(u"select Familles_C!denom from Familles_C, Clients where famille = Familles_C!num "
                          "and Clients!ordre = 12"_s)
                  .toString(),
              u"Restaurateurs"_s);
    EXPECT_EQ(services::clock::todayText(), u"03/11/2026"_s);
}

TEST_F(JeuTest, un_libelle_de_frais_prend_sa_ligne_ou_le_premier_divers)
{
    ASSERT_FALSE(jouer());
    store::Recordset b = e.Base().openRecordset(u"select * from Bordereaux order by num"_s);
    EXPECT_EQ(b.text("Libelle6"), u"Glace"_s);
    EXPECT_EQ(b.real("Frais6"), 9600);
    EXPECT_EQ(b.text("Libelle8"), u"Gasoil"_s);
    EXPECT_EQ(b.real("Frais8"), 12000.5);
    EXPECT_EQ(b.text("Libelle9"), u"Divers"_s);
    EXPECT_EQ(b.real("Frais9"), 100);
}

TEST_F(JeuTest, s_arrete_a_ce_que_le_programme_refuse)
{
    saison.journees[0].bordereaux[0].frais = {
        {u"Gasoil"_s, u"1"_s}, {u"Appâts"_s, u"1"_s}, {u"Péage"_s, u"1"_s}, {u"Huile"_s, u"1"_s}};
    std::optional<Refus> refus = jouer();
    ASSERT_TRUE(refus);
    EXPECT_EQ(refus->texte, u"Bordereau N° 1, L'Espérance : plus de place pour les frais « Huile »"_s);
}

TEST_F(JeuTest, deux_fiches_de_meme_numero_sont_refusees)
{
    saison.clients[1].ordre = 12;
    const std::optional<Refus> refus = jouer();
    ASSERT_TRUE(refus);
    EXPECT_EQ(refus->texte, u"Client D'ALMEIDA : Numéro répété"_s);
}

TEST_F(JeuTest, un_livre_altere_se_voit)
{
    ASSERT_FALSE(jouer());
    struct Cas
    {
        QString alteration, dit;
    };
    const Cas cas[] = {
        {u"update L_Vente set Num_Facture = -1 where num = 1"_s, u"Lignes restées sans facture : 1 au lieu de 0"_s},
        {u"update L_Vente set Total = Total + 0.01 where num = 1"_s, u"Somme des lignes"_s},
        {u"update L_Vente set Casiers = Casiers + 1 where num = 1"_s, u"Cageots des lignes"_s},
        {u"update Factures set Total = Total + 1 where ordre = 2"_s, u"Facture N° 2, total"_s},
        {u"update Factures set Nb_lignes = 7 where ordre = 2"_s, u"Facture N° 2, lignes : 7 au lieu de 1"_s},
        {u"update Factures set Consigne = 0, Total = Total_HT where ordre = 1"_s, u"Facture N° 1, consigne"_s},
        {u"update Clients set Debit = Debit - 0.01 where ordre = 3"_s, u"Client N° 3, débit"_s},
        {u"update Clients set Solde = 0 where ordre = 3"_s, u"Client N° 3, solde"_s},
        {u"update Clients set Diff = 0 where ordre = 12"_s, u"Client N° 12, cageots à rendre"_s},
        {u"update Bordereaux set flag_f = False where ordre = 3"_s, u"Bordereau N° 3 : non facturé"_s},
        {u"update Bordereaux set MT_Armateur = 0 where ordre = 1"_s, u"Bordereau N° 1, part de l'armateur"_s},
        {u"update Bordereaux set net = net + 0.01 where ordre = 1"_s, u"Bordereau N° 1, net"_s},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.alteration.toStdString());
        store::Transaction annulee(e.Base());
        e.Base().execute(c.alteration);
        const QStringList ecarts = verifierLivres(e, saison);
        EXPECT_EQ(ecarts.filter(c.dit).size(), 1) << ecarts.join(u'\n').toStdString();
    }
    EXPECT_EQ(verifierLivres(e, saison), QStringList());
}

TEST(LectureLettres, relit_ce_que_le_programme_ecrit)
{
    for (const qint64 nombre : {0,       1,       21,      71,        80,        81,        91,          100,
                                101,     200,     999,     1000,      1001,      1080,      2100,        80'000,
                                100'000, 181'081, 999'999, 1'000'000, 1'000'200, 3'873'920, 101'000'000, 2'147'000'001})
        EXPECT_EQ(lireLettres(MontantEnLettres(static_cast<double>(nombre) + 0.5)), nombre);
    EXPECT_EQ(lireLettres({u"*** DOUZE EUROS ***"_s}), std::nullopt);
}
