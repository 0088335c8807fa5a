#include "coupures.h"

#include "ouvrier.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace torture {

using namespace Qt::StringLiterals;

namespace {

constexpr int coupuresParSerie = 20;
constexpr int actionsMax = 60;     ///< of a recorded work
constexpr size_t lignesMax = 3000; ///< of a file; then the next one begins

/// A folder at a moment, and who knows what was announced in it.
struct Depart
{
    FolderContent dossier;
    Temoin temoin;
};

struct Serie
{
    QString echec; ///< the work itself went wrong
    int coupures = 0;
    int fautives = 0;
    int enJournal = 0;
    qint64 annonces = 0;
    Depart suite;
};

Annonce annonceDe(const QByteArray& note)
{
    Annonce annonce;
    Q_ASSERT(note.size() == sizeof annonce);
    std::memcpy(&annonce, note.constData(), sizeof annonce);
    return annonce;
}

/// The calls of a process that works on the folder and then dies.
QString enregistrer(Banc& banc, const QString& dossier, const QString& journal)
{
    const quint32 graine = banc.hasard();
    const int actions = static_cast<int>(banc.logarithmique(1, actionsMax));
    return attendreFin(lancer([&] {
        recordCalls(dossier, journal);
        const auto exercice = exerciceDe(dossier);
        exercice->OuvrirBase();
        exercice->LireParametres();
        const auto annoncer = [](const Annonce& annonce) {
            recordNote(QByteArray(reinterpret_cast<const char*>(&annonce), sizeof annonce));
        };
        Ouvrier(*exercice, graine, annoncer).travailler(actions);
        _exit(0); // without a close, as the cut would have it
    }));
}

/// Moments of the cuts, as numbers of calls done: half of them anywhere, half right behind an announcement.
QList<qsizetype> moments(Banc& banc, const QList<CallRecord>& appels, int nombre)
{
    QList<qsizetype> annonces;
    for (qsizetype i = 0; i < appels.size(); ++i)
        if (appels[i].call == Call::Note && annonceDe(appels[i].bytes).faite)
            annonces += i + 1;
    QList<qsizetype> choisis;
    for (int i = 0; i < nombre; ++i) {
        const bool apresAnnonce = i % 2 == 1 && !annonces.isEmpty();
        choisis += apresAnnonce ? annonces[banc.entre(0, static_cast<int>(annonces.size()) - 1)]
                                : banc.entre(0, static_cast<int>(appels.size()));
    }
    std::sort(choisis.begin(), choisis.end());
    return choisis;
}

Serie couperUneSerie(Banc& banc, const Depart& depart, int nombre, Disk::Obeys obeys)
{
    Serie serie;
    const QTemporaryDir lieu;
    const QString dossier = lieu.filePath(u"exercice"_s);
    writeFolder(dossier, depart.dossier);
    serie.echec = enregistrer(banc, dossier, lieu.filePath(u"appels"_s));
    const QList<CallRecord> appels = readCalls(lieu.filePath(u"appels"_s));
    const QList<qsizetype> coupures = moments(banc, appels, nombre);
    const int suite = banc.entre(0, nombre - 1);

    Disk disque(depart.dossier, obeys);
    Temoin temoin = depart.temoin;
    for (qsizetype fait = 0, coupure = 0; fait <= appels.size(); ++fait) {
        for (; coupure < coupures.size() && coupures[coupure] == fait; ++coupure) {
            const QTemporaryDir trouve;
            Depart ici{disque.afterPowerCut(banc.hasard), temoin};
            writeFolder(trouve.path(), ici.dossier);
            const auto journal = ici.dossier.find(u"TAL2026.mdb-journal"_s);
            serie.enJournal += journal != ici.dossier.end() && journal->second.startsWith(journalStart);
            const QStringList fautes = examiner(trouve.path(), ici.temoin);
            ++serie.coupures;
            serie.fautives += !fautes.isEmpty();
            if (obeys == Disk::Obeys::Everything)
                banc.accuser(u"coupure après %1 appels sur %2"_s.arg(fait).arg(appels.size()), fautes);
            if (coupure == suite)
                serie.suite = ici;
        }
        if (fait == appels.size())
            break;
        disque.replay(appels[fait]);
        if (appels[fait].call == Call::Note)
            temoin.entendre(annonceDe(appels[fait].bytes));
    }
    serie.annonces = temoin.nbAnnonces() - depart.temoin.nbAnnonces();
    if (disque.asItStands() != readFolder(dossier))
        serie.echec += u"les appels enregistrés ne rendent pas le dossier"_s;
    return serie;
}

Depart neuf()
{
    const QTemporaryDir dossier;
    preparerExercice(dossier.path());
    return {readFolder(dossier.path()), Temoin()};
}

struct Bilan
{
    int fautives = 0;
    qint64 annonces = 0;
    int enJournal = 0; ///< cuts that left a journal to be rolled back
};

Bilan couper(Banc& banc, int coupures, Disk::Obeys obeys)
{
    Bilan bilan;
    std::optional<Depart> depart;
    int faites = 0;
    while (faites < coupures) {
        if (!depart || depart->temoin.livre().lignes.size() > lignesMax)
            depart = neuf();
        Serie serie = couperUneSerie(banc, *depart, qMin(coupuresParSerie, coupures - faites), obeys);
        faites += serie.coupures;
        bilan.fautives += serie.fautives;
        bilan.annonces += serie.annonces;
        bilan.enJournal += serie.enJournal;
        if (!serie.echec.isEmpty())
            banc.accuser(u"série de coupures"_s, {serie.echec});
        if (serie.fautives > 0 || !serie.echec.isEmpty())
            depart.reset();
        else
            depart = serie.suite;
    }
    return bilan;
}

} // namespace

void couperLeCourant(Banc& banc, int coupures)
{
    const Bilan bilan = couper(banc, coupures, Disk::Obeys::Everything);
    std::printf("%d coupures de courant sur %lld actes annoncés, %d fichiers trouvés avec leur journal : %d faute(s)\n",
                coupures, static_cast<long long>(bilan.annonces), bilan.enJournal, bilan.fautives);
}

int pertesDunDisque(Banc& banc, int coupures, Disk::Obeys obeys)
{
    return couper(banc, coupures, obeys).fautives;
}

} // namespace torture
