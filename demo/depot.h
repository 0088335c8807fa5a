#pragma once

#include "core/refus.h"
#include "core/state.h"

#include <QDir>

#include <memory>

namespace talor::demo {

/// Where the files that the demonstration lays out come from.
struct Origine
{
    QDir livres;       ///< the empty exercise
    QDir installation; ///< system.mdw
    QDir modeles;      ///< the report templates
    QString identite;  ///< the text file of the trader's identity
};

/// Lays a folder out as an installation does, under the name of the demonstration's own trader. A folder in which an
/// exercise of that year stands already is refused, whatever made it.
std::optional<Refus> deposer(const Origine& origine, const QDir& dossier, int annee);

/// Starts the program's work in the folder, as at the very first start, with `annee` as its first exercise.
Resultat<std::shared_ptr<Exercice>> ouvrirExercice(const QDir& dossier, int annee);

} // namespace talor::demo
