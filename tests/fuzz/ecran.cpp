// R_Ecran.TXT: any bytes in its place.

#include "tests/fuzz/fuzz.h"

#include "shell/shutdown.h"

using namespace fuzz;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const talor::DossierProgramme dossier;
    dossier.ecrire(u"R_Ecran.TXT"_s, octets(data, size));
    const talor::Resolution lue = talor::lireResolution(dossier.installation());
    exiger(lue >= talor::Resolution::Origine && lue <= talor::Resolution::Grande, u"une des trois"_s);
    return 0;
}
