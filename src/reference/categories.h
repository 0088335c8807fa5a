#pragma once

#include "core/refus.h"
#include "core/state.h"
#include "reference/fiche.h"

#include <optional>

/// The categories of clients. Actions throw `store::Error`, with nothing written.
namespace talor {

struct Categorie
{
    qint64 num;
    QString denom;

    friend bool operator==(const Categorie&, const Categorie&) = default;
};

/// All categories by name.
QList<Categorie> listerCategories(Exercice& exercice);
/// Empty when there is no such category.
QString nomCategorie(Exercice& exercice, qint64 num);

/// Adds a category and returns its `num`; "Saisie omise" when the name is blank.
Resultat<qint64> ajouterCategorie(Exercice& exercice, const QString& denom);
/// Renames a category and returns its `num`; "Mouvement altéré" when it has vanished.
Resultat<qint64> renommerCategorie(Exercice& exercice, qint64 num, const QString& denom);

/// What forbids the deletion, before the user is asked to confirm it: no category at all, or a client who has it.
std::optional<Refus> empechementCategorie(Exercice& exercice, std::optional<qint64> num);
std::optional<Refus> supprimerCategorie(Exercice& exercice, qint64 num);

} // namespace talor
