#pragma once

#include "core/refus.h"

#include <variant>

namespace talor {

/// Which movements of an account are shown: those not archived, the archived, or all.
enum class EtatArchive
{
    Recentes = 1,
    Archivees = 2,
    Ensemble = 3
};

/// From one date to another, both included, dd/MM/yyyy.
struct Periode
{
    QString premiere;
    QString seconde;

    friend bool operator==(const Periode&, const Periode&) = default;
};

/// The operations that a listing is to show.
struct Filtre
{
    using Quand = std::variant<int, Periode>; ///< a month, 1 to 12, or a period

    Quand quand;
    EtatArchive archive = EtatArchive::Recentes;

    bool parMois() const { return std::holds_alternative<int>(quand); }
    int mois() const { return std::get<int>(quand); }
    const Periode& periode() const { return std::get<Periode>(quand); }

    friend bool operator==(const Filtre&, const Filtre&) = default;
};

/// The period as typed: "Saisie incomplète", "Dates inversées". One day is a period.
Resultat<Periode> lirePeriode(const QString& premiere, const QString& seconde);

} // namespace talor
