#pragma once

#include "core/state.h"

namespace talor {

/// Names of the yearly files that the repair dialog lists, in order: TAL2*.MDB, in any case. The empty exercise and
/// the archives are not among them.
QStringList basesReparables(const Installation& installation);

/// Repairs and compacts one yearly file of the folder. The open exercise is closed before and reopened after,
/// whichever file it is; one that was not open stays closed.
/// Returns what could not be saved, a line a table (empty when all was), or the error's number and text: the file in
/// place is then the old one, whole or damaged as it was, and the exercise is closed.
Resultat<QStringList> reparerBase(Exercice& exercice, const QString& nom);

/// The same on the exercise in view, which must be open.
Resultat<QStringList> CompacterBase(Exercice& exercice);

} // namespace talor
