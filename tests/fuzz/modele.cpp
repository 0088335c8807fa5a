// A report template: any bytes, read and laid out on an exercise.

#include "tests/fuzz/fuzz.h"

#include "platform/reports/error.h"
#include "platform/reports/layout.h"

#include <QGuiApplication>

using namespace fuzz;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    store::Database& base = exerciceOuvert().Base();
    try {
        const auto modele = reports::Template::read(octets(data, size), u"ESSAI.RPT"_s);
        reports::layOut(modele, base, {});
    } catch (const reports::Error& erreur) {
        exiger(erreur.text().contains(u"ESSAI.RPT"), u"le message nomme le modèle : "_s + erreur.text());
    }
    return 0;
}
