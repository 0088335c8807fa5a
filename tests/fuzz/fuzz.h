#pragma once

#include "core/state.h"

#include "tests/support/dossier_programme.h"

#include <cstdio>
#include <cstdlib>

/// What the fuzz targets share: each hands any bytes to one of the program's readers and holds it to its word. Whatever
/// the bytes, a reader ends with a value or with a message that names the file.
namespace fuzz {

using namespace Qt::StringLiterals;

/// Ends the run, with the input kept, when a reader does not hold what it promises.
inline void exiger(bool tenu, const QString& promesse)
{
    if (tenu)
        return;
    std::fprintf(stderr, "promesse rompue : %s\n", qUtf8Printable(promesse));
    std::abort();
}

inline QByteArray octets(const uint8_t* data, size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

/// An exercise with a row or two in each table that a query would look at, open.
inline talor::Exercice& exerciceOuvert()
{
    static const talor::DossierProgramme dossier;
    static talor::Exercice exercice(dossier.installation(), talor::Configuration(), talor::PointeurAnnee{2026, 0});
    if (!exercice.estOuvert()) {
        talor::creerExerciceVide(exercice.CheminBase);
        exercice.OuvrirBase();
        store::Database& base = exercice.Base();
        for (int i = 1; i <= 3; ++i) {
            base.execute(u"insert into Clients (ordre, nom, Debit) values (?, ?, ?)"_s,
                         {i, u"O'Brien É%1"_s.arg(i), i});
            base.execute(u"insert into Factures (ordre, [Date], num_client, Total) values (?, ?, ?, ?)"_s,
                         {i, u"15/06/2026"_s, i, 100.5 * i});
            base.execute(u"insert into L_Vente (num_client, Num_Facture, Total) values (?, ?, ?)"_s, {i, -1, 12.5});
        }
    }
    return exercice;
}

} // namespace fuzz
