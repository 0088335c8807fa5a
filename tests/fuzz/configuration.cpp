// TAL2_CFG.CFG: any bytes in its place.

#include "tests/fuzz/fuzz.h"

using namespace fuzz;
using talor::Configuration;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const talor::DossierProgramme dossier;
    const QString chemin = dossier.installation().configuration();
    dossier.ecrire(u"TAL2_CFG.CFG"_s, octets(data, size));

    const auto lue = Configuration::lire(chemin);
    if (!lue) {
        exiger(lue.refus().texte.contains(u"TAL2_CFG.CFG"), u"le refus nomme le fichier"_s);
        exiger(Configuration::ecrireMot(chemin, 0, u"mot"_s).has_value() || size >= 84 * 52,
               u"un mot ne s'écrit pas dans un fichier incomplet"_s);
        return 0;
    }
    exiger(!lue->CodeFichier.isEmpty() && !lue->CodeFichier.contains(u'/'), u"le code fait un nom de fichier"_s);
    exiger(!lue->ecrire(chemin), u"ce qui a été lu s'écrit"_s);
    const auto relue = Configuration::lire(chemin);
    exiger(relue && relue->textes == lue->textes && relue->mots == lue->mots && relue->CodeFichier == lue->CodeFichier,
           u"ce qui a été lu s'écrit et se relit"_s);
    return 0;
}
