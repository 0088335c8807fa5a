#pragma once

#include <QtGlobal>

#include <functional>
#include <type_traits>

namespace torture {

/// A posting, as its author tells it. Zero: of no account to it, or given by the file and not known beforehand.
struct Action
{
    enum Genre : qint32
    {
        Creation,             ///< a new bordereau: its row stands before any line
        Ligne,                ///< a line recorded
        Correction,           ///< `ligne` rewritten
        SuppressionLigne,     ///< `ligne` deleted
        Depart,               ///< the bordereau left: its amounts are written
        SuppressionBordereau, ///< with its lines
        Facture,              ///< one client's open lines invoiced; beforehand the client may be unknown
        Sortie,               ///< the program left: the copy in Archives
        Compactage            ///< the file replaced by a compacted one
    } genre;
    qint64 bordereau = 0;
    qint64 ligne = 0;
    qint64 client = 0;
    qint64 poisson = 0;
    qint64 cageots = 0;
    qint64 facture = 0;
    qint64 ordre = 0;
    double poids = 0;
    double pu = 0;
    double total = 0;
    double brut = 0;
    double frais = 0;
    double primes = 0;
    double taux = 0;
    bool nouveau = false; ///< Depart: of a new bordereau, whose row goes if it has no line
};

/// What the author of the postings says on its way: that it begins an action, or, when the program would show its
/// message, that it is done. Small enough for a pipe to take it whole or not at all.
struct Annonce
{
    bool faite;
    Action action;
};
static_assert(std::is_trivially_copyable_v<Annonce> && sizeof(Annonce) <= 512);

using Annoncer = std::function<void(const Annonce&)>;

} // namespace torture
