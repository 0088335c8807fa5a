#pragma once

#include "core/state.h"
#include "demo/saison.h"

namespace talor::demo {

/// What a season should leave in the books, reckoned from its text in whole centimes and without the program's help.
struct Attendu
{
    qint64 lignes = 0;
    qint64 bordereaux = 0;
    qint64 factures = 0; ///< one a buyer and a day
    qint64 cageots = 0;
    qint64 centimes = 0;
    QHash<int, qint64> centimesParClient; ///< by the buyer's number
    QHash<int, qint64> cageotsParClient;
};

Attendu calculer(const Saison& saison);

/// Holds the books of a season that was played and invoiced against the season, and their totals against their parts.
/// A sentence for each difference; none when all agrees.
QStringList verifierLivres(Exercice& exercice, const Saison& saison);

/// The number of dinars that an amount in words, framed or not, says; nothing when a word of it is unknown.
std::optional<qint64> lireLettres(const QStringList& lignes);

} // namespace talor::demo
