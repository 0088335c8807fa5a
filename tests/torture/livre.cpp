#include "livre.h"

#include "core/schema.h"
#include "platform/store/recordset.h"

namespace torture {

using namespace Qt::StringLiterals;

namespace {

constexpr int ecartsMax = 8;

template<class Lignes> void comparer(const QString& table, const Lignes& attendues, const Lignes& lues, QStringList& e)
{
    const auto dire = [&](qint64 num, const QString& quoi) { e += u"%1 n° %2 %3"_s.arg(table).arg(num).arg(quoi); };
    for (const auto& [num, attendue] : attendues) {
        const auto lue = lues.find(num);
        if (lue == lues.end())
            dire(num, u"perdu"_s);
        else if (lue->second != attendue)
            dire(num, u"autre qu'annoncé"_s);
    }
    for (const auto& [num, lue] : lues)
        if (!attendues.contains(num))
            dire(num, u"jamais annoncé"_s);
}

} // namespace

Livre Livre::lire(store::Database& base)
{
    Livre livre;
    for (auto t = base.openTable(u"L_Vente"_s); !t.eof(); t.moveNext())
        livre.lignes[t.num()] = {t.integer("num_bordereau"),
                                 t.integer("num_client"),
                                 t.integer("Num_Poisson"),
                                 t.integer("Casiers"),
                                 t.real("poids"),
                                 t.real("PU"),
                                 t.real("Total"),
                                 t.integer("Num_Facture")};
    for (auto t = base.openTable(u"Bordereaux"_s); !t.eof(); t.moveNext()) {
        auto& montants = livre.bordereaux[t.num()];
        if (!t.isNull("brut"))
            montants = {t.integer("Casiers"), t.real("brut"), t.real("frais"), t.real("primes"), t.real("Commission")};
    }
    for (auto t = base.openTable(u"Factures"_s); !t.eof(); t.moveNext())
        livre.factures[t.num()] = {t.integer("num_client"), t.integer("ordre")};
    return livre;
}

void Livre::appliquer(const Action& a)
{
    const auto duBordereau = [&](const auto& ligne) { return ligne.second.bordereau == a.bordereau; };
    switch (a.genre) {
    case Action::Creation:
        bordereaux[a.bordereau] = {};
        break;
    case Action::Ligne:
    case Action::Correction:
        lignes[a.ligne] = {a.bordereau, a.client, a.poisson, a.cageots, a.poids, a.pu, a.total, talor::nonFacture};
        break;
    case Action::SuppressionLigne:
        lignes.erase(a.ligne);
        break;
    case Action::Depart:
        if (a.nouveau && std::none_of(lignes.begin(), lignes.end(), duBordereau))
            bordereaux.erase(a.bordereau);
        else
            bordereaux[a.bordereau] = {a.cageots, a.brut, a.frais, a.primes, a.taux};
        break;
    case Action::SuppressionBordereau:
        std::erase_if(lignes, duBordereau);
        bordereaux.erase(a.bordereau);
        break;
    case Action::Facture:
        factures[a.facture] = {a.client, a.ordre};
        for (auto& [num, ligne] : lignes)
            if (ligne.client == a.client && ligne.facture == talor::nonFacture)
                ligne.facture = a.facture;
        break;
    case Action::Sortie:
    case Action::Compactage:
        break;
    }
}

QStringList ecarts(const Livre& attendu, const Livre& lu)
{
    QStringList trouves;
    comparer(u"Ligne"_s, attendu.lignes, lu.lignes, trouves);
    comparer(u"Bordereau"_s, attendu.bordereaux, lu.bordereaux, trouves);
    comparer(u"Facture"_s, attendu.factures, lu.factures, trouves);
    const qsizetype nombre = trouves.size();
    if (nombre > ecartsMax)
        trouves = trouves.first(ecartsMax) << u"... %1 en tout"_s.arg(nombre);
    return trouves;
}

} // namespace torture
