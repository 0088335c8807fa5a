#pragma once

#include "temoin.h"

#include <QTemporaryDir>

#include <functional>
#include <random>

namespace torture {

/// A run of the harness: its seed, from which every choice follows, and what it has counted.
class Banc
{
public:
    explicit Banc(quint32 graine)
        : hasard(graine)
    {}

    std::mt19937 hasard;
    int fautes = 0;

    int entre(int premier, int dernier) { return std::uniform_int_distribution<int>(premier, dernier)(hasard); }
    /// As many of each order of magnitude.
    double logarithmique(double premier, double dernier);
    /// A fault found: told on standard error with the round in which it was.
    void accuser(const QString& ronde, const QStringList& trouvees);
};

/// Opens the exercise of a folder as the program does, holds it against the witness, closes it, and controls it.
QStringList examiner(const QString& dossier, Temoin& temoin);

/// Runs the work in a process of its own. A `store::Error` or `Inattendu` that leaves it is told, and ends it with 3.
pid_t lancer(const std::function<void()>& travail);
/// Waits for its end: empty when it ended by itself with 0 or was killed by this signal, else how it ended.
QString attendreFin(pid_t processus, int signalAttendu = 0);

} // namespace torture
