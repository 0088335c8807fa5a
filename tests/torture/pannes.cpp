#include "pannes.h"

#include "disk.h"
#include "ouvrier.h"

#include "core/schema.h"
#include "lifecycle/premier_exercice.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace torture {

using namespace Qt::StringLiterals;
using talor::Exercice;

namespace {

constexpr int actionsAvant = 40;
constexpr int bordereauxOuverts = 4;
constexpr int appelsMax = 5000; ///< of one kind in one action

/// What a process did, in the words that its user would have read.
struct Issue
{
    QList<Annonce> annonces;
    QString message; ///< of the fault; empty: all went well
    bool frappee = false;
    QString mort; ///< a process that ended otherwise
};

/// The action on an open exercise; announces what it does.
using Travail = std::function<void(Ouvrier&, Exercice&)>;

struct Lieu
{
    FolderContent dossier;
    Temoin temoin;
};

void ecrireTout(int tube, const QByteArray& octets)
{
    if (::write(tube, octets.constData(), size_t(octets.size())) != octets.size())
        _exit(4);
}

/// Runs the work on the folder's exercise in a process of its own. `avant` sets the fault, once the exercise is open.
Issue faireFaire(const QString& dossier, quint32 graine, const std::function<void()>& avant, const Travail& travail,
                 bool ouvertAvant = true)
{
    int tube[2];
    Issue issue;
    if (pipe(tube) != 0)
        return issue;
    const pid_t processus = lancer([&] {
        close(tube[0]);
        QString message;
        const auto exercice = exerciceDe(dossier);
        const auto annoncer = [&](const Annonce& annonce) {
            ecrireTout(tube[1], 'A' + QByteArray(reinterpret_cast<const char*>(&annonce), sizeof annonce));
        };
        try {
            if (!ouvertAvant)
                avant();
            exercice->OuvrirBase();
            exercice->LireParametres();
            if (ouvertAvant)
                avant();
            Ouvrier ouvrier(*exercice, graine, annoncer);
            travail(ouvrier, *exercice);
            exercice->FermerBase();
        } catch (const store::Error& erreur) {
            message = erreur.text();
        } catch (const Inattendu& refus) {
            message = refus.texte;
        }
        ecrireTout(tube[1], (faultStruck() ? 'F' : 'N') + message.toUtf8());
    });
    close(tube[1]);
    QFile recu;
    if (!recu.open(tube[0], QFile::ReadOnly, QFile::AutoCloseHandle))
        return issue;
    QByteArray octets = recu.readAll();
    for (; octets.startsWith('A'); octets.remove(0, 1 + qsizetype(sizeof(Annonce)))) {
        Annonce annonce;
        std::memcpy(&annonce, octets.constData() + 1, sizeof annonce);
        issue.annonces += annonce;
    }
    issue.frappee = octets.startsWith('F');
    issue.message = QString::fromUtf8(octets.mid(1));
    issue.mort = attendreFin(processus);
    return issue;
}

QStringList juger(const Lieu& lieu, const QString& dossier, const Issue& issue)
{
    QStringList fautes;
    if (!issue.mort.isEmpty())
        fautes += issue.mort;
    if (!issue.message.isEmpty() && !issue.message.contains(dossier))
        fautes += u"le message ne nomme pas le fichier : "_s + issue.message;
    Temoin temoin = lieu.temoin;
    for (const Annonce& annonce : issue.annonces)
        temoin.entendre(annonce);
    return fautes + examiner(dossier, temoin);
}

// --- Every call of every action --------------------------------------------------------------------------------------

struct Acte
{
    QString nom;
    Travail travail;
    bool panneAvantOuverture = false;
};

const Acte actes[] = {
    {u"ouvrir l'exercice"_s, [](Ouvrier&, Exercice&) {}, true},
    {u"saisir un bordereau"_s, [](Ouvrier& o, Exercice&) { o.nouveauBordereau(); }},
    {u"corriger un bordereau"_s, [](Ouvrier& o, Exercice&) { o.rouvrirBordereau(); }},
    {u"supprimer un bordereau"_s, [](Ouvrier& o, Exercice&) { o.supprimerBordereau(); }},
    {u"facturer"_s, [](Ouvrier& o, Exercice&) { o.facturer(); }},
    {u"quitter le programme"_s, [](Ouvrier& o, Exercice&) { o.sortir(); }},
    {u"compacter"_s, [](Ouvrier& o, Exercice&) { o.compacter(); }},
    {u"créer l'exercice suivant"_s,
     [](Ouvrier&, Exercice& e) {
         if (const auto refus = talor::creerFichierAnnee(e.installation(), e.Annee + 1))
             throw Inattendu{refus->texte + e.installation().base(e.Annee + 1)};
     }},
};

struct Panne
{
    QString nom;
    Call appel;
    int erreur;
    bool dure;
};

const Panne pannes[] = {
    {u"disque plein"_s, Call::Write, ENOSPC, true},
    {u"écriture impossible"_s, Call::Write, EIO, false},
    {u"disque passé en lecture seule"_s, Call::Write, EROFS, true},
    {u"écriture non confirmée par le disque"_s, Call::Sync, EIO, false},
    {u"fichier non raccourci"_s, Call::Truncate, EIO, false},
    {u"fichier non renommé"_s, Call::Rename, EACCES, false},
    {u"fichier non effacé"_s, Call::Unlink, EACCES, true},
    {u"fichier non nommé"_s, Call::Link, ENOSPC, false},
    {u"trop de fichiers ouverts"_s, Call::Open, EMFILE, false},
    {u"dossier en lecture seule"_s, Call::Open, EROFS, true},
};

struct Compte
{
    int essais = 0;
    int dites = 0;
};

/// Makes the n-th call fail; false when the action makes fewer.
bool frapper(Banc& banc, const Lieu& lieu, const Acte& acte, const Panne& panne, int rang, quint32 graine,
             Compte& compte)
{
    const QTemporaryDir ici;
    const QString dossier = ici.filePath(u"exercice"_s);
    writeFolder(dossier, lieu.dossier);
    const Issue issue = faireFaire(
        dossier, graine,
        [&] {
            failCalls(dossier, {panne.appel, rang, panne.erreur, panne.dure});
        },
        acte.travail, !acte.panneAvantOuverture);
    compte.essais += issue.frappee;
    compte.dites += !issue.message.isEmpty();
    QStringList fautes = juger(lieu, dossier, issue);
    if (!issue.frappee && !issue.message.isEmpty())
        fautes += u"un message sans panne : "_s + issue.message;
    banc.accuser(u"%1, %2 à l'appel n° %3 (graine %4) : « %5 »"_s.arg(acte.nom, panne.nom)
                     .arg(rang)
                     .arg(graine)
                     .arg(issue.message),
                 fautes);
    return issue.frappee;
}

void balayer(Banc& banc, const Lieu& lieu, const Acte& acte, bool toutes, Compte& compte)
{
    for (const Panne& panne : pannes) {
        const quint32 graine = banc.hasard();
        if (!toutes) {
            frapper(banc, lieu, acte, panne, static_cast<int>(banc.logarithmique(1, 30)), graine, compte);
            continue;
        }
        for (int rang = 1; rang < appelsMax && frapper(banc, lieu, acte, panne, rang, graine, compte);)
            rang += 1 + rang / 40; // the many writes of a copy are much alike
    }
}

Lieu preparer(Banc& banc)
{
    const QTemporaryDir dossier;
    Lieu lieu;
    preparerExercice(dossier.path());
    talor::creerExerciceVide(dossier.filePath(u"TAL00.mdb"_s));
    {
        const auto exercice = exerciceDe(dossier.path());
        exercice->OuvrirBase();
        exercice->LireParametres();
        Ouvrier ouvrier(*exercice, banc.hasard(), [&](const Annonce& annonce) { lieu.temoin.entendre(annonce); });
        ouvrier.travailler(actionsAvant);
        for (int i = 0; i < bordereauxOuverts; ++i)
            ouvrier.nouveauBordereau();
    }
    lieu.dossier = readFolder(dossier.path());
    return lieu;
}

/// The same folder with the file half written and its journal beside it, by a process that could neither go on nor
/// undo.
Lieu avecJournal(Banc& banc, const Lieu& lieu)
{
    for (int rang = 1; rang < appelsMax; ++rang) {
        const QTemporaryDir ici;
        const QString dossier = ici.filePath(u"exercice"_s);
        writeFolder(dossier, lieu.dossier);
        const Issue issue = faireFaire(
            dossier, 1,
            [&] {
                failCalls(dossier, {Call::Write, rang, EIO, true});
            },
            [](Ouvrier& ouvrier, Exercice&) { ouvrier.facturer(); });
        Lieu laisse{readFolder(dossier), lieu.temoin};
        const bool enPlace = laisse.dossier[u"TAL2026.mdb-journal"_s].startsWith(journalStart);
        const bool entame = laisse.dossier[u"TAL2026.mdb"_s] != lieu.dossier.at(u"TAL2026.mdb"_s);
        for (const Annonce& annonce : issue.annonces)
            laisse.temoin.entendre(annonce);
        if (enPlace && entame)
            return laisse;
    }
    banc.accuser(u"journal laissé"_s, {u"aucune panne n'en a laissé"_s});
    return lieu;
}

// --- Faults by name --------------------------------------------------------------------------------------------------

/// From here on the rights of an ordinary user, which the harness may have too many of.
void perdreLesDroits()
{
    if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
        _exit(5);
}

void donnerLesDroits(const QString& dossier, mode_t pourDossier, mode_t pourFichier)
{
    const QByteArray fichier = QFile::encodeName(dossier + u"/TAL2026.mdb"_s);
    chmod(QFile::encodeName(dossier).constData(), pourDossier);
    chmod(fichier.constData(), pourFichier);
    chmod(QFile::encodeName(QFileInfo(dossier).path()).constData(), 0755);
}

const Travail saisirUneLigne = [](Ouvrier& ouvrier, Exercice&) {
    for (int i = 0; i < bordereauxOuverts; ++i)
        ouvrier.nouveauBordereau();
};

/// Something that bears the name of the exercise's journal, left there by whomever.
std::function<void(const QString&)> laisserUnJournal(const QByteArray& contenu)
{
    return [contenu](const QString& dossier) { writeFolder(dossier, {{u"TAL2026.mdb-journal"_s, contenu}}); };
}

struct PanneNommee
{
    QString nom;
    std::function<void(const QString& dossier)> avant; ///< in the process, before it opens the exercise
    Travail travail;
    const char16_t* dit; ///< part of the message; empty: the work goes on without one
};

const PanneNommee pannesNommees[] = {
    {u"journal vide à côté du fichier"_s, laisserUnJournal({}), saisirUneLigne, u""},
    {u"journal coupé à son début"_s, laisserUnJournal(journalStart.toByteArray()), saisirUneLigne, u""},
    {u"journal qui n'en est pas un"_s, laisserUnJournal(QByteArray("Cher client, ").repeated(500)), saisirUneLigne,
     u""},
    {u"fichier en lecture seule"_s,
     [](const QString& dossier) {
         donnerLesDroits(dossier, 0777, 0444);
         perdreLesDroits();
     },
     saisirUneLigne, u"est en lecture seule"},
    {u"dossier en lecture seule"_s,
     [](const QString& dossier) {
         donnerLesDroits(dossier, 0555, 0666);
         perdreLesDroits();
     },
     saisirUneLigne, u"est en lecture seule"},
    {u"fichier qu'on n'a pas le droit de lire"_s,
     [](const QString& dossier) {
         donnerLesDroits(dossier, 0777, 0000);
         perdreLesDroits();
     },
     saisirUneLigne, u"ne peut pas être ouvert"},
    {u"fichier déplacé pendant le travail"_s, [](const QString&) {},
     [](Ouvrier& ouvrier, Exercice& exercice) {
         ouvrier.nouveauBordereau();
         const QString chemin = exercice.CheminBase;
         QFile::rename(chemin, chemin + u".ailleurs"_s);
         saisirUneLigne(ouvrier, exercice);
     },
     u"a été déplacé ou effacé"},
    {u"fichier remplacé pendant le travail"_s, [](const QString&) {},
     [](Ouvrier& ouvrier, Exercice& exercice) {
         ouvrier.nouveauBordereau();
         const QString chemin = exercice.CheminBase;
         QFile::rename(chemin, chemin + u".ailleurs"_s);
         QFile::copy(chemin + u".ailleurs"_s, chemin);
         saisirUneLigne(ouvrier, exercice);
     },
     u"a été déplacé ou effacé"},
};

void provoquerNommees(Banc& banc, const Lieu& lieu)
{
    for (const PanneNommee& panne : pannesNommees) {
        const QTemporaryDir ici;
        const QString dossier = ici.filePath(u"exercice"_s);
        writeFolder(dossier, lieu.dossier);
        const Issue issue = faireFaire(
            dossier, banc.hasard(), [&] { panne.avant(dossier); }, panne.travail, false);
        donnerLesDroits(dossier, 0755, 0644);
        const QString fichier = dossier + u"/TAL2026.mdb"_s;
        if (QFile::exists(fichier + u".ailleurs"_s)) { // what was moved is moved back
            QFile::remove(fichier);
            QFile::rename(fichier + u".ailleurs"_s, fichier);
        }
        QStringList fautes = juger(lieu, dossier, issue);
        const QStringView dit(panne.dit);
        if (dit.isEmpty() ? !issue.message.isEmpty() : !issue.message.contains(dit))
            fautes += u"devait dire « %1 »"_s.arg(dit);
        banc.accuser(u"%1 : « %2 »"_s.arg(panne.nom, issue.message), fautes);
    }
    std::printf("%d pannes par leur nom\n", static_cast<int>(std::size(pannesNommees)));
}

} // namespace

void provoquerPannes(Banc& banc, bool toutes)
{
    const Lieu lieu = preparer(banc);
    Compte compte;
    for (const Acte& acte : actes)
        balayer(banc, lieu, acte, toutes, compte);
    balayer(banc, avecJournal(banc, lieu), actes[0], toutes, compte);
    std::printf("%d appels mis en panne, %d dits à l'utilisateur\n", compte.essais, compte.dites);
    provoquerNommees(banc, lieu);
}

} // namespace torture
