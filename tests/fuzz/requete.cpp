// The query dialect: any text, run as a select and as an action that is undone.

#include "tests/fuzz/fuzz.h"

#include <sqlite3.h>

using namespace fuzz;

namespace {

constexpr int lignesMax = 100;

void faire(const std::function<void()>& travail)
{
    try {
        travail();
    } catch (const store::Error& erreur) {
        exiger(!erreur.text().isEmpty(), u"l'erreur est dite"_s);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    sqlite3_hard_heap_limit64(200 << 20); // a query may ask for a text of any length
    const QString requete = QString::fromUtf8(octets(data, size));
    store::Database& base = exerciceOuvert().Base();
    faire([&] {
        auto lignes = base.openRecordset(requete);
        for (int i = 0; i < lignesMax && !lignes.eof(); ++i, lignes.moveNext())
            for (int champ = 0; champ < lignes.fieldCount(); ++champ)
                lignes.value(champ);
    });
    faire([&] {
        store::Transaction annulee(base);
        base.execute(requete);
    });
    faire([&] {
        auto clients = base.openTable(u"Clients"_s);
        clients.findFirst(requete);
    });
    exiger(base.scalar(u"select count(*) from Clients"_s).toInt() == 3, u"rien n'est resté d'une action annulée"_s);
    return 0;
}
