#pragma once

#include "core/state.h"

#include <array>

namespace talor {

/// What must hold before a function opens: at least one of the queries yields a row.
struct Condition
{
    QStringList requetes;
    QString message;
};

/// One entry of the menu bar. What an entry does is not said here: `Form1::brancher` gives it its action, and an entry
/// without one stands disabled.
struct Entree
{
    enum class Genre
    {
        Commande,
        SousMenu,
        Choix ///< one of an exclusive, checked group: the entries of its sub-menu
    };

    QString nom;     ///< object name of the action
    QString libelle; ///< with "&" before its access key
    QString parent;  ///< name of the sub-menu that holds it; empty in the bar itself
    Genre genre = Genre::Commande;
    QList<Condition> conditions; ///< looked at in this order
    bool exerciceCourantSeul = false;
    bool separateurAvant = false;
};

/// The whole tree in the order of display, each sub-menu before its entries. An entry that no menu shows (the quick
/// search, reached by its shortcut alone) has the parent `horsMenu`.
const QList<Entree>& entrees();
extern const QString horsMenu;

/// Null when there is no such entry.
const Entree* entree(const QString& nom);

/// A large button: one of the nine shortcuts of the main window or one of the eight of the sub-panel.
struct Raccourci
{
    QString libelle;
    QString entree; ///< acts as this entry of the menu
    QString icone;
    bool exerciceCourantSeul = false; ///< hidden while an old exercise is in view
};

const std::array<Raccourci, 9>& raccourcis();
const std::array<Raccourci, 8>& boutonsFacturation();

/// The message of the first condition that does not hold, or nothing.
std::optional<Refus> verifier(Exercice& exercice, const QString& nom);

} // namespace talor
