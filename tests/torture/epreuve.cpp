#include "epreuve.h"

#include "controle.h"
#include "coupures.h"
#include "ouvrier.h"

#include <QFile>

#include <sqlite3.h>

#include <cstdio>

namespace torture {

using namespace Qt::StringLiterals;

namespace {

constexpr int nbActions = 60;
constexpr int nbOuverts = 5;
constexpr int nbCoupures = 40;
constexpr int nbCoupuresMax = 1000;

/// What only the witness can see: the file is sound, but not what was announced.
const Falsification contraAnnonces[] = {
    {u"perdu"_s, "delete from L_Vente where num = (select max(num) from L_Vente where Num_Facture = -1)"},
    {u"perdu"_s, "delete from Bordereaux where num = (select max(num) from Bordereaux where flag_f = 0)"},
    {u"autre qu'annoncé"_s, "update L_Vente set PU = PU + 1 where num = (select max(num) from L_Vente)"},
    {u"autre qu'annoncé"_s, "update Bordereaux set frais = frais + 1 where num = (select max(num) from Bordereaux)"},
    {u"jamais annoncé"_s, "insert into L_Vente (num_bordereau, Total) select max(num), 1 from Bordereaux"},
    {u"Facture"_s, "insert into Factures (num_client, ordre) select 1, max(ordre) + 1 from Factures"},
};

/// Changes the file; false when the change touched nothing.
bool falsifier(const QString& chemin, const QByteArray& sql)
{
    sqlite3* base = nullptr;
    sqlite3_open(chemin.toUtf8().constData(), &base);
    const bool faite =
        sqlite3_exec(base, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK && sqlite3_changes(base) > 0;
    sqlite3_close(base);
    return faite;
}

void eprouverDisques(Banc& banc)
{
    const std::pair<QString, Disk::Obeys> disques[] = {
        {u"un disque qui n'écrit pas quand on le lui demande"_s, Disk::Obeys::Nothing},
        {u"un disque qui ne garde pas les noms quand on le lui demande"_s, Disk::Obeys::FileSyncs},
    };
    for (const auto& [nom, obeys] : disques) {
        int vues = 0;
        int coupures = 0;
        for (; vues == 0 && coupures < nbCoupuresMax; coupures += nbCoupures)
            vues = pertesDunDisque(banc, nbCoupures, obeys);
        std::printf("%s : %d coupures sur %d perdent des actes\n", qUtf8Printable(nom), vues, coupures);
        if (vues == 0)
            banc.accuser(u"épreuve"_s, {nom + u" devait perdre des actes"_s});
    }
}

void eprouverFichiers(Banc& banc)
{
    const QTemporaryDir dossier;
    preparerExercice(dossier.path());
    Temoin temoin;
    const auto exercice = exerciceDe(dossier.path());
    exercice->OuvrirBase();
    exercice->LireParametres();
    Ouvrier ouvrier(*exercice, banc.hasard(), [&](const Annonce& annonce) { temoin.entendre(annonce); });
    ouvrier.travailler(nbActions);
    for (int i = 0; i < nbOuverts; ++i)
        ouvrier.nouveauBordereau(); // so that there are open lines
    exercice->FermerBase();

    banc.accuser(u"épreuve, fichier sain"_s, examiner(dossier.path(), temoin));
    const QString sain = dossier.filePath(u"sain"_s);
    QFile::copy(exercice->CheminBase, sain);
    QList<Falsification> toutes = falsifications();
    toutes.append({std::begin(contraAnnonces), std::end(contraAnnonces)});
    for (const Falsification& f : toutes) {
        Temoin celuiCi = temoin;
        const bool faite = falsifier(exercice->CheminBase, f.sql);
        const QString vu = examiner(dossier.path(), celuiCi).join(u'\n');
        if (!faite || !vu.contains(f.regle))
            banc.accuser(u"épreuve"_s, {QString::fromUtf8(f.sql), u"devait faire dire « %1 », a fait dire « %2 »"_s.arg(
                                                                      f.regle, faite ? vu : u"rien à changer"_s)});
        QFile::remove(exercice->CheminBase);
        QFile::copy(sain, exercice->CheminBase);
    }
    std::printf("%d falsifications à voir\n", static_cast<int>(toutes.size()));
}

} // namespace

void eprouver(Banc& banc)
{
    eprouverFichiers(banc);
    eprouverDisques(banc);
}

} // namespace torture
