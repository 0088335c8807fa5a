#pragma once

#include "core/helpers.h"
#include "core/state.h"

namespace talor {

/// A sale line as an example tells it; what an example leaves out is of no account to it.
struct Vente
{
    qint64 bordereau = 0;
    qint64 chalutier = 0;
    qint64 client = 0;
    qint64 poisson = 0;
    qint64 casiers = 0;
    double poids = 0;
    double pu = 0;
    QString date = QStringLiteral("15/06/2026");
};

struct FactureExemple
{
    qint64 client = 0;
    qint64 ordre = 1;
    QString date = QStringLiteral("15/06/2026");
    qint64 casiers = 0;
    double Total_HT = 0;
    double Consigne = 0;
    bool reglee = false;
};

/// Fills an exercise by hand: every routine adds one row, numbered in its turn, and returns its `num`.
class Exemples
{
public:
    explicit Exemples(Exercice& exercice)
        : m_exercice(exercice)
    {}

    qint64 client(const QString& nom, const QString& prenom = {}, const QString& tel = {})
    {
        store::Recordset& t = m_exercice.Clients;
        t.addNew();
        t.set("ordre", ++m_clients);
        t.set("nom", nom);
        t.set("prenom", prenom);
        t.set("tel", tel);
        return t.update();
    }

    qint64 armateur(const QString& nom, const QString& prenom = {})
    {
        store::Recordset& t = m_exercice.Armateurs;
        t.addNew();
        t.set("ordre", ++m_armateurs);
        t.set("nom", nom);
        t.set("prenom", prenom);
        return t.update();
    }

    qint64 chalutier(const QString& denom, qint64 armateur = 0)
    {
        store::Recordset& t = m_exercice.Chalutiers;
        t.addNew();
        t.set("ordre", ++m_chalutiers);
        t.set("denom", denom);
        t.set("armateur", armateur);
        return t.update();
    }

    qint64 poisson(const QString& denom)
    {
        store::Recordset& t = m_exercice.Poissons;
        t.addNew();
        t.set("ordre", ++m_poissons);
        t.set("denom", denom);
        return t.update();
    }

    qint64 bordereau(const QString& date, qint64 chalutier)
    {
        store::Recordset& t = m_exercice.Bordereaux;
        t.addNew();
        t.set("ordre", ++m_bordereaux);
        t.set("Date", date);
        t.set("MM", MoisDe(date));
        t.set("Num_Chalutier", chalutier);
        return t.update();
    }

    qint64 ligne(const Vente& vente)
    {
        store::Recordset& t = m_exercice.L_Vente;
        t.addNew();
        t.set("Date", vente.date);
        t.set("MM", MoisDe(vente.date));
        t.set("num_bordereau", vente.bordereau);
        t.set("Num_Chalutier", vente.chalutier);
        t.set("num_client", vente.client);
        t.set("Num_Poisson", vente.poisson);
        t.set("Casiers", vente.casiers);
        t.set("poids", vente.poids);
        t.set("PU", vente.pu);
        t.set("Total", (vente.poids > 0 ? vente.poids : static_cast<double>(vente.casiers)) * vente.pu);
        return t.update();
    }

    qint64 facture(const FactureExemple& facture)
    {
        store::Recordset& t = m_exercice.Factures;
        t.addNew();
        t.set("ordre", facture.ordre);
        t.set("Date", facture.date);
        t.set("MM", MoisDe(facture.date));
        t.set("num_client", facture.client);
        t.set("Casiers", facture.casiers);
        t.set("Total_HT", facture.Total_HT);
        t.set("Consigne", facture.Consigne);
        t.set("Total", facture.Total_HT + facture.Consigne);
        t.set("Flag_R", facture.reglee);
        return t.update();
    }

    /// A regularisation: number -1, no crates, no deposit.
    qint64 regularisation(qint64 client, const QString& date, double somme)
    {
        store::Recordset& t = m_exercice.Factures;
        t.addNew();
        t.set("Ref", QStringLiteral("Regul"));
        t.set("ordre", -1);
        t.set("Date", date);
        t.set("MM", MoisDe(date));
        t.set("num_client", client);
        t.set("Total_HT", somme);
        t.set("Total", somme);
        return t.update();
    }

    /// Sets fields of a row, as other functions of the program would have left them.
    static void changer(store::Recordset& table, qint64 num, const QList<std::pair<const char*, QVariant>>& champs)
    {
        table.seek(num);
        table.edit();
        for (const auto& [champ, valeur] : champs)
            table.set(champ, valeur);
        table.update();
    }

private:
    Exercice& m_exercice;
    int m_clients = 0;
    int m_armateurs = 0;
    int m_chalutiers = 0;
    int m_poissons = 0;
    int m_bordereaux = 0;
};

} // namespace talor
