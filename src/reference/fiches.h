#pragma once

#include "reference/classement.h"
#include "reference/fiche.h"

#include <optional>

namespace talor {

/// A card file in hand: the rows as the grid lists them, with the `num` and the number of each, and the actions on
/// the cards. Rows are counted from 0. Actions throw `store::Error`, with nothing written.
class Fiches
{
public:
    /// A refused entry, and the column of the field at fault.
    struct Faute
    {
        Refus refus;
        QString colonne;
    };

    /// The description must outlive it. The list is empty until `remplir`.
    Fiches(Exercice& exercice, const DescriptionFiche& description);

    const DescriptionFiche& description() const { return m_description; }
    Exercice& exercice() const { return m_exercice; }

    /// Lists the cards afresh: in the order of the dialog's opening, or on their numbers.
    void remplir(Classement classement = Classement::OrdreAlphabetique);

    int nombre() const { return static_cast<int>(m_lignes.size()); }
    const QString& cellule(int ligne, int colonne) const { return m_lignes[ligne].cellules[colonne]; }
    qint64 num(int ligne) const { return m_lignes[ligne].num; }
    double ordre(int ligne) const { return m_lignes[ligne].ordre; }

    /// A new card with its presets.
    Fiche vierge() const;
    /// "Mouvement altéré" when the card of a row has vanished from the table.
    Resultat<Fiche> lire(int ligne) const;
    /// First fault of an entry, for a new card (no row) or the card of a row.
    std::optional<Faute> verifier(const Fiche& fiche, std::optional<int> ligne) const;
    /// Writes a new card (no row) or changes the card of a row, and returns its row: a new card takes the last.
    Resultat<int> enregistrer(const Fiche& fiche, std::optional<int> ligne);

    /// What forbids the deletion of a card, before the user is asked to confirm it.
    std::optional<Refus> empechement(int ligne) const;
    /// Deletes the card and its row; the rows that stay are numbered from 1 in the first column.
    std::optional<Refus> supprimer(int ligne);

    /// Exchange a row with the one above or below it on the screen; the table keeps its order. Only `monter` takes the
    /// number along: after `descendre` the two numbers stay with the places, not with the cards. Kept on purpose.
    void monter(int ligne);
    void descendre(int ligne);

    /// The numbers that stand twice, as they are reported on leaving: their last four digits, one text for each
    /// neighbour that repeats.
    QStringList numerosRepetes() const;

private:
    struct Ligne
    {
        QStringList cellules;
        qint64 num;
        double ordre;
    };

    Ligne lireLigne(const store::Recordset& table, int rang) const;
    void echanger(int ligne, int voisine);
    bool numeroPris(const QString& numero, std::optional<int> ligne) const;
    void ecrireChamps(store::Recordset& table, const Fiche& fiche) const;
    qint64 creer(const Fiche& fiche);
    void modifier(const Fiche& fiche);

    Exercice& m_exercice;
    const DescriptionFiche& m_description;
    QList<Ligne> m_lignes;
};

} // namespace talor
