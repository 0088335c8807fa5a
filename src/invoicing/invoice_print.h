#pragma once

#include "core/report.h"
#include "invoicing/invoice_register.h"

namespace talor {

/// Invoices laid out one behind the other, each with page numbers of its own.
struct LotFactures
{
    reports::Document document;
    bool abandonne = false; ///< given up between two invoices: the document holds nothing
    QList<Refus> refus;     ///< why some are not in it, each reason once
};

/// Told before each invoice how many are laid out; false gives the whole up.
using ProgressionLot = std::function<bool(int faits, int total)>;

/// Lays out the invoices of these rows, or their delivery notes: one, the marked ones, a whole season. What can't be
/// printed (its template is absent) is left out and told; the others go on.
LotFactures ComposerFactures(Exercice& exercice, RegistreFactures& registre, const QList<int>& rangs,
                             GenreImpression genre, const ProgressionLot& progression = {});

/// The print of the list as it stands.
Etat etatListing(RegistreFactures& registre);

} // namespace talor
