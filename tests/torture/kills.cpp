#include "kills.h"

#include "ouvrier.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <poll.h>
#include <unistd.h>

namespace torture {

using namespace Qt::StringLiterals;

namespace {

using Horloge = std::chrono::steady_clock;

constexpr int sansFin = 1'000'000;
constexpr double attenteMax = 0.8;   ///< seconds that a process works at most
constexpr qint64 lignesMax = 60'000; ///< of a file; then the next one begins

/// When the process is killed: so long after its start, or after so many announcements and a while.
struct Moment
{
    int annonces = 0;
    double secondes = 0;
};

Moment choisir(Banc& banc)
{
    switch (banc.entre(0, 9)) {
    case 0:
    case 1:
    case 2:
    case 3:
        return {0, banc.logarithmique(1e-6, attenteMax)};
    case 4:
    case 5:
    case 6:
        return {static_cast<int>(banc.logarithmique(1, 300)), 0};
    default:
        return {static_cast<int>(banc.logarithmique(1, 300)), banc.logarithmique(1e-6, 5e-3)};
    }
}

/// Hands the announcements in a pipe over, until there are so many that were done, the time has come, or its end.
/// Returns how many of them were done.
int ecouter(int tube, Temoin& temoin, int annonces, Horloge::time_point fin)
{
    int faites = 0;
    while (annonces == 0 || faites < annonces) {
        const auto reste = fin - Horloge::now();
        if (reste <= Horloge::duration::zero())
            break;
        const timespec attente{0, std::chrono::duration_cast<std::chrono::nanoseconds>(reste).count()};
        pollfd pret{tube, POLLIN, 0};
        if (ppoll(&pret, 1, &attente, nullptr) <= 0)
            continue;
        Annonce annonce;
        if (read(tube, &annonce, sizeof annonce) != sizeof annonce)
            break;
        temoin.entendre(annonce);
        faites += annonce.faite;
    }
    return faites;
}

/// One process, killed at its moment. Returns what went wrong, whatever the file may hold.
QString tuerUnOuvrier(Banc& banc, const QString& dossier, Temoin& temoin)
{
    int tube[2];
    if (pipe(tube) != 0)
        return u"pas de tube"_s;
    const quint32 graine = banc.hasard();
    const Moment moment = choisir(banc);
    const auto debut = Horloge::now();
    const pid_t ouvrier = lancer([&] {
        close(tube[0]);
        const auto exercice = exerciceDe(dossier);
        exercice->OuvrirBase();
        exercice->LireParametres();
        const auto annoncer = [&](const Annonce& annonce) {
            if (write(tube[1], &annonce, sizeof annonce) != sizeof annonce)
                _exit(4);
        };
        Ouvrier(*exercice, graine, annoncer).travailler(sansFin);
    });
    close(tube[1]);
    const auto duree = [](double secondes) {
        return std::chrono::duration_cast<Horloge::duration>(std::chrono::duration<double>(secondes));
    };
    if (moment.annonces > 0)
        ecouter(tube[0], temoin, moment.annonces, debut + duree(attenteMax));
    const auto depuis = moment.annonces > 0 ? Horloge::now() : debut;
    ecouter(tube[0], temoin, 0, depuis + duree(moment.secondes));
    kill(ouvrier, SIGKILL);
    const QString fin = attendreFin(ouvrier, SIGKILL);
    ecouter(tube[0], temoin, 0, Horloge::now() + duree(attenteMax)); // what was said before death and not yet heard
    close(tube[0]);
    return fin;
}

} // namespace

void tuer(Banc& banc, int rondes)
{
    const int fautesAvant = banc.fautes;
    std::optional<QTemporaryDir> dossier;
    Temoin temoin;
    qint64 annonces = 0;
    int fichiers = 0;
    for (int ronde = 0; ronde < rondes; ++ronde) {
        if (!dossier || static_cast<qint64>(temoin.livre().lignes.size()) > lignesMax) {
            dossier.emplace();
            preparerExercice(dossier->path());
            annonces += temoin.nbAnnonces();
            temoin = {};
            ++fichiers;
        }
        QStringList fautes;
        if (const QString fin = tuerUnOuvrier(banc, dossier->path(), temoin); !fin.isEmpty())
            fautes += fin;
        fautes += examiner(dossier->path(), temoin);
        banc.accuser(u"mort n° %1"_s.arg(ronde + 1), fautes);
        if (!fautes.isEmpty())
            dossier.reset(); // what follows would only repeat it
    }
    annonces += temoin.nbAnnonces();
    std::printf(
        "%d morts, %lld actes annoncés, %d fichier(s), %d lignes et %d factures dans le dernier : %d faute(s)\n",
        rondes, static_cast<long long>(annonces), fichiers, static_cast<int>(temoin.livre().lignes.size()),
        static_cast<int>(temoin.livre().factures.size()), banc.fautes - fautesAvant);
}

} // namespace torture
