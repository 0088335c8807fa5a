#pragma once

#include "core/refus.h"
#include "core/state.h"

#include <QHash>

namespace talor {

/// `num` of the entry " Ensemble", which stands for all clients or all boats.
inline constexpr qint64 numEnsemble = -1;

/// An entry of a list of clients, boats or fish.
struct EntreeListe
{
    qint64 num;
    QString ordre; ///< the number that the user knows it by, as text
    QString texte; ///< `nom` and `prenom` two blanks apart, or `denom`
};

/// Clients, boats or fish as combos and pick grids offer them: read once, found again by number without a query.
class ListeChoix
{
public:
    ListeChoix() = default;
    explicit ListeChoix(const QList<EntreeListe>& entrees);
    static ListeChoix clientsParNom(Exercice& exercice);
    static ListeChoix clientsParOrdre(Exercice& exercice);
    static ListeChoix chalutiers(Exercice& exercice);
    static ListeChoix poissons(Exercice& exercice);

    /// The same list with " Ensemble" behind its last entry.
    ListeChoix avecEnsemble() const;

    int nombre() const { return static_cast<int>(m_entrees.size()); }
    const EntreeListe& operator[](int rang) const { return m_entrees[rang]; }
    auto begin() const { return m_entrees.cbegin(); }
    auto end() const { return m_entrees.cend(); }

    /// What labels show of an entry: its first fifty characters, without blanks around.
    QString nom(int rang) const;
    int rangDuNum(qint64 num) const; ///< -1 when it is not in the list
    /// Text of an entry and what follows it; empty when it is not in the list.
    QString texteDuNum(qint64 num, const QString& suffixe = {}) const;

    /// What typing into a list leads to: the entry known by this number, else the first whose text begins so, in any
    /// case and accents; -1 when there is none.
    int rangDuDebut(const QString& debut) const;
    /// Rank of the entry whose number was typed: "Numéro omis", "Numéro d'ordre introuvable".
    Resultat<int> choisirParOrdre(const QString& texte) const;
    /// Rank of the entry whose `num` was typed: "Numéro d'ordre introuvable".
    Resultat<int> choisirParNum(const QString& texte) const;
    /// Rank of an entry that a selection dialog returned; `absent` is the text of the refusal.
    Resultat<int> retrouver(qint64 num, const QString& absent) const;

private:
    void ajouter(const EntreeListe& entree);

    QList<EntreeListe> m_entrees;
    QHash<qint64, int> m_rangs;
    QHash<QString, int> m_rangsOrdre;
};

} // namespace talor
