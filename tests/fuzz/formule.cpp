// A selection formula: any text, turned into a query and run.

#include "tests/fuzz/fuzz.h"

#include "platform/reports/condition.h"
#include "platform/reports/error.h"

using namespace fuzz;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString formule = QString::fromUtf8(octets(data, size));
    try {
        QVariantList valeurs;
        const auto condition = reports::Condition::parse(formule);
        const QString ou = condition.toQuery(&valeurs);
        auto lignes = exerciceOuvert().Base().openRecordset(
            u"select * from Factures"_s + (ou.isEmpty() ? QString() : u" where "_s + ou), valeurs);
        while (lignes.moveNext()) {
        }
    } catch (const reports::Error& erreur) {
        exiger(erreur.text().contains(formule), u"le message nomme la formule : "_s + erreur.text());
    } catch (const store::Error& erreur) {
        exiger(!erreur.text().isEmpty(), u"l'erreur est dite"_s);
    }
    return 0;
}
