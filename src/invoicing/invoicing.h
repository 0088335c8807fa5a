#pragma once

#include "sales/lookups.h"

#include <functional>

namespace talor {

/// What the invoicing dialog asks for.
struct DemandeFacturation
{
    QString date;                   ///< of the invoices, dd/MM/yyyy
    qint64 client = numEnsemble;    ///< `num` of the only client to invoice
    qint64 chalutier = numEnsemble; ///< `num` of the boat of which the clients bought
};

struct BilanFacturation
{
    int nbFactures = 0;
    bool interrompue = false; ///< stopped between two clients; those done so far are complete
    QList<Refus> refus;       ///< clients who could not be invoiced, and of whom nothing was written
    Refus message;            ///< how many invoices were made, and of an interrupted run that it was
};

/// Told before each client how many of them are done; false stops the run there.
using ProgressionFacturation = std::function<bool(int faits, int total)>;

/// Crates that one invoice can hold.
inline constexpr qint64 cageotsMaxFacture = 32767;

/// Turns the open lines into invoices, one a client, each client's in a commit of its own.
///
/// The boat only chooses the clients: the invoice of each takes all of his open lines, whichever the boat; kept on
/// purpose. Refused, with nothing written: "Date incorrecte", "Aucune vente selon ces critères".
Resultat<BilanFacturation> InvoiceAll(Exercice& exercice, const DemandeFacturation& demande,
                                      const ProgressionFacturation& progression = {});

/// One client's invoice, whole or not at all: the invoice, the marks of the bordereaux, the lines, the balance. The
/// deposit is part of the invoice's total, but not of what the client is debited.
/// Refused, with nothing written, when he took more crates than an invoice can hold.
std::optional<Refus> InvoiceClient(Exercice& exercice, qint64 client, qint64 ordre, const QString& date);

/// The queries of a client's invoice, each with the client as its first value: every one must find its rows by index.
namespace requetesFacturation {
extern const QString sommes;
extern const QString marques;
extern const QString lignes;
} // namespace requetesFacturation

} // namespace talor
