#pragma once

#include "core/state.h"

#include <array>

namespace talor {

/// The trader's fiscal data and the rates of the trade, as the boxes of the dialog show them.
struct Identification
{
    enum Case
    {
        Telephone,
        Fax,
        RC,
        IdFiscale,
        Article,
        CompteBancaire,
        Commission, ///< percent
        Consigne,   ///< dinars a crate
        TVA,        ///< percent, shown whole
        nbCases
    };

    std::array<QString, nbCases> cases;
    bool EffetSonore = false;

    friend bool operator==(const Identification&, const Identification&) = default;

    /// Reads the one row of `Permn`, made with the dialog's own defaults (commission 13) where there is none, and takes
    /// its rates into force.
    static Identification lire(Exercice& exercice);
    /// Writes what the boxes hold, where they differ from `lue`, and takes the rates into force at once. A rate is
    /// stored as it is shown: any change rounds one that had more decimals.
    void enregistrer(Exercice& exercice, const Identification& lue) const;
};

} // namespace talor
