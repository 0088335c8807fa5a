#include "reference/selection.h"

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;

const TableSelection& selectionClients()
{
    static const TableSelection table = {
        .requete = u"select * from Clients order by nom,prenom"_s,
        .messageVide = u"Aucun client enregistré"_s,
        .colonnes = {{"nom", u"Nom"_s, 2400},
                     {"prenom", u"Prénom"_s, 2200},
                     {"ville", u"Ville"_s, 1800},
                     {"ordre", u"N°"_s, 800, true}},
        .colonnesNom = 2,
    };
    return table;
}

const TableSelection& selectionBateaux()
{
    static const TableSelection table = {
        .requete = u"select * from Chalutiers order by ordre"_s,
        // The text of the products, kept on purpose.
        .messageVide = u"Aucun produit enregistré"_s,
        .colonnes = {{"denom", u"Embarcation"_s, 4200}},
    };
    return table;
}

const TableSelection& selectionPoissons()
{
    static const TableSelection table = {
        .requete = u"select * from Poissons order by ordre"_s,
        .messageVide = u"Aucun produit enregistré"_s,
        .colonnes = {{"denom", u"Désignation"_s, 3600}, {"ordre", u"N°"_s, 800, true}},
    };
    return table;
}

Resultat<ListeSelection> ListeSelection::lire(Exercice& exercice, const TableSelection& table)
{
    ListeSelection liste(table);
    for (store::Recordset lignes = exercice.Base().openRecordset(table.requete); !lignes.eof(); lignes.moveNext()) {
        Ligne ligne{{lignes.num(), lignes.text("ordre")}, {}};
        for (const ColonneSelection& colonne : table.colonnes)
            ligne.cellules.append(lignes.text(colonne.champ));
        liste.m_lignes.append(ligne);
    }
    if (liste.m_lignes.isEmpty())
        return Refus{table.messageVide};
    return liste;
}

int ListeSelection::rangDuDebut(const QString& debut) const
{
    const QString cherche = store::fold(debut);
    const auto parNom =
        std::ranges::find_if(m_lignes, [&](const Ligne& ligne) { return store::fold(nom(ligne)).startsWith(cherche); });
    if (parNom != m_lignes.cend())
        return static_cast<int>(parNom - m_lignes.cbegin());
    if (!montreOrdre())
        return -1;
    const auto parOrdre = std::ranges::find(m_lignes, debut, [](const Ligne& ligne) { return ligne.selection.ordre; });
    return parOrdre == m_lignes.cend() ? -1 : static_cast<int>(parOrdre - m_lignes.cbegin());
}

QString ListeSelection::nom(const Ligne& ligne) const
{
    return ligne.cellules.first(m_table->colonnesNom).join(u' ');
}

bool ListeSelection::montreOrdre() const
{
    return qstrcmp(m_table->colonnes.last().champ, "ordre") == 0;
}

} // namespace talor
