#pragma once

#include "core/refus.h"
#include "core/state.h"

#include <QStringList>

namespace talor {

/// What a selection dialog returns of the row taken.
struct Selection
{
    qint64 num;
    QString ordre; ///< the number that the user knows the row by, as text

    friend bool operator==(const Selection&, const Selection&) = default;
};

/// A column of a selection list.
struct ColonneSelection
{
    const char* champ;
    QString titre;
    int largeur; ///< twips
    bool centree = false;
};

/// That in which the lists of clients, boats and products differ.
struct TableSelection
{
    QString requete;
    QString messageVide; ///< shown in place of an empty list
    QList<ColonneSelection> colonnes;
    int colonnesNom = 1; ///< leading columns that make the name by which a row is looked for
};

const TableSelection& selectionClients();
const TableSelection& selectionBateaux();
const TableSelection& selectionPoissons();

/// The rows of a selection list, in its order.
class ListeSelection
{
public:
    /// "Aucun client enregistré", "Aucun produit enregistré" when the table is empty.
    static Resultat<ListeSelection> lire(Exercice& exercice, const TableSelection& table);

    const TableSelection& table() const { return *m_table; }
    int nombre() const { return static_cast<int>(m_lignes.size()); }
    const Selection& operator[](int rang) const { return m_lignes[rang].selection; }
    QString cellule(int rang, int colonne) const { return m_lignes[rang].cellules[colonne]; }

    /// First row whose name begins so, in any case and accents; failing that, the row with this number where the list
    /// shows numbers. -1 when there is none.
    int rangDuDebut(const QString& debut) const;

private:
    struct Ligne
    {
        Selection selection;
        QStringList cellules;
    };

    explicit ListeSelection(const TableSelection& table)
        : m_table(&table)
    {}
    QString nom(const Ligne& ligne) const;
    bool montreOrdre() const;

    const TableSelection* m_table;
    QList<Ligne> m_lignes;
};

} // namespace talor
