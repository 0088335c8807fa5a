#include "banc.h"

#include "controle.h"
#include "ouvrier.h"

#include <cmath>
#include <csignal>
#include <cstdio>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace torture {

using namespace Qt::StringLiterals;

double Banc::logarithmique(double premier, double dernier)
{
    return std::exp(std::uniform_real_distribution<double>(std::log(premier), std::log(dernier))(hasard));
}

void Banc::accuser(const QString& ronde, const QStringList& trouvees)
{
    if (trouvees.isEmpty())
        return;
    ++fautes;
    std::fprintf(stderr, "FAUTE, %s\n", qUtf8Printable(ronde));
    for (const QString& faute : trouvees)
        std::fprintf(stderr, "    %s\n", qUtf8Printable(faute));
}

QStringList examiner(const QString& dossier, Temoin& temoin)
{
    const auto exercice = exerciceDe(dossier);
    QStringList fautes;
    try {
        exercice->OuvrirBase();
        exercice->LireParametres();
        fautes = temoin.confronter(*exercice);
        exercice->FermerBase();
        fautes += controler(exercice->CheminBase);
    } catch (const store::Error& erreur) {
        fautes += u"le fichier ne s'ouvre plus : "_s + erreur.text();
    }
    return fautes;
}

pid_t lancer(const std::function<void()>& travail)
{
    std::fflush(nullptr);
    const pid_t processus = fork();
    if (processus != 0)
        return processus;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    try {
        travail();
        _exit(0);
    } catch (const store::Error& erreur) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(erreur.text()));
    } catch (const Inattendu& inattendu) {
        std::fprintf(stderr, "refus inattendu : %s\n", qUtf8Printable(inattendu.texte));
    }
    _exit(3);
}

QString attendreFin(pid_t processus, int signalAttendu)
{
    int etat = 0;
    if (waitpid(processus, &etat, 0) != processus)
        return u"le processus est introuvable"_s;
    if (WIFSIGNALED(etat))
        return WTERMSIG(etat) == signalAttendu ? QString()
                                               : u"le processus est mort du signal %1"_s.arg(WTERMSIG(etat));
    return WEXITSTATUS(etat) == 0 ? QString() : u"le processus a fini par le code %1"_s.arg(WEXITSTATUS(etat));
}

} // namespace torture
