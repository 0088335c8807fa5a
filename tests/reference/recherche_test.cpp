#include "reference/recherche.h"

#include "reference/categories.h"
#include "reference/filtre.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

class RechercheTest : public testing::Test
{
protected:
    /// The names found, "nom prenom"; the text of the refusal when none is.
    QStringList trouves(const QString& nom, const QString& prenom = {})
    {
        const auto clients = chercherParNom(t.exercice, nom, prenom);
        if (!clients)
            return {clients.refus().texte};
        QStringList noms;
        for (const ClientTrouve& client : *clients)
            noms.append((client.nom + u' ' + client.prenom).trimmed());
        return noms;
    }

    ExerciceTemporaire t;
    Exemples exemples{t.exercice};
};

const QString aucun = u"Aucun client ne répond à ces critères"_s;

} // namespace

TEST_F(RechercheTest, par_debut_du_nom_et_du_prenom)
{
    exemples.client(u"BENALI"_s, u"Omar"_s);
    exemples.client(u"BENALI"_s, u"Élias"_s);
    exemples.client(u"BEN*ALI"_s, u"Étoilé"_s);
    exemples.client(u"O'Brien"_s, u"Pat"_s);
    exemples.client(u"l'Étoile"_s);
    exemples.client(u"[Sud] Marée"_s);
    exemples.client(u"AMRANI"_s, u"Omar"_s);

    struct Cas
    {
        QString nom;
        QString prenom;
        QStringList trouves;
    };
    const Cas cas[] = {
        {u"benali"_s, {}, {u"BENALI Élias"_s, u"BENALI Omar"_s}},
        {u" Bénali "_s, u"el"_s, {u"BENALI Élias"_s}},
        {{}, u"omar"_s, {u"AMRANI Omar"_s, u"BENALI Omar"_s}},
        {u"O'Brien"_s, {}, {u"O'Brien Pat"_s}},
        {u"o'"_s, u"p"_s, {u"O'Brien Pat"_s}},
        {u"l'Étoile"_s, {}, {u"l'Étoile"_s}},
        {u"L'ET"_s, {}, {u"l'Étoile"_s}},
        // What the store takes for a pattern stands for itself when a person types it.
        {u"*"_s, {}, {aucun}},
        {u"BEN*"_s, {}, {u"BEN*ALI Étoilé"_s}},
        {u"?mrani"_s, {}, {aucun}},
        {u"#"_s, {}, {aucun}},
        {u"[Sud]"_s, {}, {u"[Sud] Marée"_s}},
        {u"[a-c]"_s, {}, {aucun}},
        {u"' or 1 = 1 --"_s, {}, {aucun}},
        // A beginning, never the middle.
        {u"mrani"_s, {}, {aucun}},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(trouves(c.nom, c.prenom), c.trouves) << c.nom.toStdString() << '/' << c.prenom.toStdString();
    EXPECT_EQ(trouves({}, u"  "_s).size(), 7) << "nothing asked, all shown";
}

TEST_F(RechercheTest, rien_ne_repond)
{
    EXPECT_EQ(chercherParNom(t.exercice, u"X"_s, {}).refus(), (Refus{aucun, u"ATTENTION"_s, Icone::Information}));
}

TEST_F(RechercheTest, par_numero_parmi_ceux_de_la_liste)
{
    exemples.client(u"SLIMANI"_s);
    exemples.client(u"AMRANI"_s);
    const QList<ClientTrouve> clients = listerClients(t.exercice);
    EXPECT_EQ(*chercherParNumero(clients, u" 1 "_s), 1);
    EXPECT_EQ(*chercherParNumero(clients, u"2"_s), 0);
    EXPECT_EQ(chercherParNumero(clients, u"  "_s).refus(), Refus{u"Numéro omis"_s});
    EXPECT_EQ(chercherParNumero(clients, u"3"_s).refus(), Refus{u"Numéro d'ordre introuvable"_s});
    EXPECT_EQ(chercherParNumero(*chercherParNom(t.exercice, u"AM"_s, {}), u"1"_s).refus(),
              Refus{u"Numéro d'ordre introuvable"_s});
}

TEST_F(RechercheTest, un_client_se_montre_avec_sa_famille_et_son_solde)
{
    const qint64 famille = *ajouterCategorie(t.exercice, u"Mareyeurs"_s);
    const qint64 num = exemples.client(u"AMRANI"_s, u"Ali"_s);
    exemples.client(u"SLIMANI"_s);
    Exemples::changer(t.exercice.Clients, num, {{"ville", u"Ténès"_s}, {"famille", famille}, {"Solde", -1250.5}});

    const QList<ClientTrouve> clients = listerClients(t.exercice);
    EXPECT_EQ(clients[0].num, num);
    EXPECT_EQ(clients[0].ville, u"Ténès"_s);
    EXPECT_EQ(clients[0].famille, u"Mareyeurs"_s);
    EXPECT_EQ(clients[0].Solde, -1250.5);
    EXPECT_EQ(clients[1].famille, QString()) << "no category";
    EXPECT_EQ(clients[1].Solde, 0);
}

TEST(Filtre, une_periode_veut_deux_dates_dans_leur_ordre)
{
    struct Cas
    {
        QString premiere;
        QString seconde;
        QString refus; ///< empty: taken
    };
    const Cas cas[] = {
        {u"15/06/2026"_s, u"15/06/2026"_s, {}},
        {u" 31/12/2025"_s, u"01/01/2026"_s, {}},
        {u"29/02/2024"_s, u"01/03/2024"_s, {}},
        {u"16/06/2026"_s, u"15/06/2026"_s, u"Dates inversées"_s},
        {u"01/01/2026"_s, u"31/12/2025"_s, u"Dates inversées"_s},
        {{}, u"15/06/2026"_s, u"Saisie incomplète"_s},
        {u"15/06/2026"_s, u"15/06/202"_s, u"Saisie incomplète"_s},
        {u"31/04/2026"_s, u"15/06/2026"_s, u"Saisie incomplète"_s},
    };
    for (const Cas& c : cas) {
        const Resultat<Periode> periode = lirePeriode(c.premiere, c.seconde);
        ASSERT_EQ(static_cast<bool>(periode), c.refus.isEmpty()) << c.premiere.toStdString();
        if (periode)
            EXPECT_EQ(*periode, (Periode{c.premiere.trimmed(), c.seconde}));
        else
            EXPECT_EQ(periode.refus(), Refus{c.refus});
    }
}
