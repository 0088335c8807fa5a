#pragma once

#include "core/refus.h"
#include "core/state.h"

#include <QMap>
#include <QStringList>

#include <functional>
#include <optional>

namespace talor {

/// What a field of a card accepts, and how it is stored.
enum class Saisie
{
    Libre,
    Chiffres,   ///< digits only
    Initiale,   ///< capital first letter
    Majuscules, ///< every letter in capitals
    Numero,     ///< the card's own number: digits only, no two cards share it
    Memo,       ///< several lines; an empty one is stored as " "
    Choix       ///< the `num` of a row of another table, as text; empty when nothing is chosen. Without entries of its
                ///< own the dialog gives the control
};

/// An entry of a field that is chosen from a list.
struct EntreeCombo
{
    qint64 num;
    QString texte;
};

/// A field of a card: a `Text1` of the entry frame, or a chosen row.
struct Champ
{
    const char* colonne;
    int index; ///< of its control in its family
    QString legende;
    Saisie saisie = Saisie::Libre;
    int longueur = 0; ///< characters that can be typed
    bool obligatoire = false;
    bool demi = false;                                       ///< takes half a line of the entry frame
    std::function<QList<EntreeCombo>(Exercice&)> choix = {}; ///< entries of a drop-down list
};

/// A column of the grid. The cell is built from the row of the table and its rank, counted from 1.
struct Colonne
{
    QString titre;
    int largeur; ///< twips, as the grid takes them
    std::function<QString(Exercice&, const store::Recordset&, int rang)> cellule;
    bool centree = false;
    bool etiree = false; ///< takes what width is left
};

/// What stands in the way of a deletion: a row that the query finds for the card's `num` (its one "?").
struct Reference
{
    QString requete;
    Refus refus;
};

/// The texts of a card's fields, by column.
using Fiche = QMap<QString, QString>;

/// A card file as data: everything in which the fish, the shipowners, the boats and the clients differ.
struct DescriptionFiche
{
    QString titre; ///< of the dialog
    QString titreNouveau;
    QString titreModification;
    store::Recordset Exercice::*table;
    QString requete;              ///< the list, as the dialog opens
    QString requeteManuelle = {}; ///< the list on the cards' numbers, where the dialog offers both
    QList<Champ> champs;
    QList<Colonne> colonnes;
    QList<Reference> references = {};
    std::optional<Refus> invitation = {}; ///< shown when the dialog opens on no card at all
    bool enterVaAuMemo = false;           ///< Enter leaves the last field of one line, where elsewhere it does nothing
    bool ordonnee = true;                 ///< the table has `ordre`
    int colonnesEchangees = 0;            ///< leading columns of the grid that `Haut` and `Bas` exchange
    std::function<Fiche(Exercice&)> vierge = {}; ///< presets of a new card
    /// What a new card brings with it, written in the same transaction.
    std::function<void(Exercice&, qint64 num, const Fiche&)> apresCreation = {};

    /// True where the user types the cards' numbers; elsewhere `ordre` is the count of cards at creation.
    bool numerotee() const;
};

/// The cell of a field, with the blank that stands before every text of a grid.
std::function<QString(Exercice&, const store::Recordset&, int)> celluleTexte(const char* colonne);
/// The cell of the running number.
std::function<QString(Exercice&, const store::Recordset&, int)> celluleRang();
/// The cell of a card's number.
std::function<QString(Exercice&, const store::Recordset&, int)> celluleNumero();

} // namespace talor
