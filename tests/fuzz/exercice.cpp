// The exercise file. The input is a list of changes to a sound one (bytes overwritten, the file cut short), or, behind
// a first byte of 255, the file itself. The program opens it, or tells it by name and repairs it or refuses to.

#include "tests/fuzz/fuzz.h"

#include "lifecycle/reparation.h"
#include "platform/store/maintenance.h"

using namespace fuzz;

namespace {

constexpr int tailleChangement = 6; ///< four bytes of place, one of kind, one of value
constexpr qsizetype pageOctets = 4096;

QByteArray sain()
{
    const talor::DossierProgramme dossier;
    const QString chemin = dossier.chemin(u"TAL2026.mdb"_s);
    talor::creerExerciceVide(chemin);
    {
        store::Database base(chemin, talor::schema());
        store::Transaction tout(base);
        for (int i = 1; i <= 300; ++i) {
            base.execute(u"insert into L_Vente (num_client, Num_Facture, Total) values (?, ?, ?)"_s,
                         {i % 7, i % 5 - 1, 12.5 * i});
            base.execute(u"insert into Clients (ordre, nom) values (?, ?)"_s, {i, u"Client "_s.repeated(i % 40)});
        }
        tout.commit();
    }
    return dossier.lire(u"TAL2026.mdb"_s);
}

QByteArray fichier(const QByteArray& entree)
{
    static const QByteArray original = sain();
    if (entree.startsWith('\xff'))
        return entree.mid(1);
    QByteArray change = original;
    for (qsizetype at = 0; at + tailleChangement <= entree.size() && !change.isEmpty(); at += tailleChangement) {
        const auto octet = [&](int i) { return quint8(entree[at + i]); };
        const qsizetype page = (octet(0) << 8 | octet(1)) % (change.size() / pageOctets + 1);
        const qsizetype place = (page * pageOctets + (octet(2) << 8 | octet(3)) % pageOctets) % change.size();
        switch (octet(4) % 8) {
        case 0:
            change.truncate(place);
            break;
        case 1: // a page of nothing
            change.replace(page * pageOctets, pageOctets, QByteArray(pageOctets, char(octet(5))));
            break;
        case 2: // the head of a page, where its kind and its counts stand
            change[qMin(change.size() - 1, page * pageOctets + octet(3) % 12)] = char(octet(5));
            break;
        default:
            change[place] = char(octet(5));
        }
    }
    return change;
}

/// Everything that the tables hold, as far as it can be read.
void lireTout(talor::Exercice& exercice)
{
    for (const store::Table& table : talor::schema().tables()) {
        auto lignes = exercice.Base().openTable(table.name);
        for (; !lignes.eof(); lignes.moveNext())
            for (int champ = 0; champ < lignes.fieldCount(); ++champ)
                lignes.value(champ);
    }
}

bool lisible(talor::Exercice& exercice)
{
    try {
        exercice.OuvrirBase();
        exercice.LireParametres();
        lireTout(exercice);
        exercice.FermerBase();
        return true;
    } catch (const store::Error& erreur) {
        exercice.FermerBase();
        exiger(erreur.text().contains(exercice.CheminBase), u"l'erreur nomme le fichier : "_s + erreur.text());
        return false;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const talor::DossierProgramme dossier;
    talor::Exercice exercice(dossier.installation(), talor::Configuration(), talor::PointeurAnnee{2026, 0});
    const QByteArray trouve = fichier(octets(data, size));
    dossier.ecrire(u"TAL2026.mdb"_s, trouve);
    if (lisible(exercice))
        return 0;
    const auto pertes = talor::reparerBase(exercice, u"TAL2026.mdb"_s);
    if (pertes) {
        exiger(store::checkFile(exercice.CheminBase).isEmpty(), u"un fichier réparé est entier"_s);
        exiger(lisible(exercice), u"un fichier réparé s'ouvre"_s);
    } else {
        exiger(pertes.refus().texte.contains(u"TAL2026.mdb"), u"le refus nomme le fichier"_s);
        exiger(dossier.lire(u"TAL2026.mdb"_s) == trouve, u"un fichier refusé reste tel qu'il est"_s);
    }
    dossier.supprimer(u"TAL2026.mdb.endommage"_s);
    return 0;
}
