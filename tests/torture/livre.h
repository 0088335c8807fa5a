#pragma once

#include "action.h"

#include "platform/store/database.h"

#include <QStringList>

#include <map>
#include <optional>

namespace torture {

/// The postings of an exercise, row by row: as they stand in a file, or as they must stand after what was announced.
struct Livre
{
    struct Ligne
    {
        qint64 bordereau, client, poisson, cageots;
        double poids, pu, total;
        qint64 facture;
        bool operator==(const Ligne&) const = default;
    };
    struct Montants
    {
        qint64 cageots;
        double brut, frais, primes, taux;
        bool operator==(const Montants&) const = default;
    };
    struct Facture
    {
        qint64 client, ordre;
        bool operator==(const Facture&) const = default;
    };

    std::map<qint64, Ligne> lignes;                       ///< by `num`, like the others
    std::map<qint64, std::optional<Montants>> bordereaux; ///< amounts: none before it was left once
    std::map<qint64, Facture> factures;

    static Livre lire(store::Database& base);

    void appliquer(const Action& action);
};

/// What the second has otherwise than the first, a line each; a long list is cut.
QStringList ecarts(const Livre& attendu, const Livre& lu);

} // namespace torture
