// The year pointer: any bytes in its place, and the start of the program on them.

#include "tests/fuzz/fuzz.h"

#include "shell/startup.h"

using namespace fuzz;
using talor::Demarrage;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const talor::DossierProgramme dossier;
    dossier.ecrire(u"TLR.INI"_s, octets(data, size));
    bool demande = false;
    const talor::EcranDemarrage ecran{[] {},
                                      [](const talor::Refus& message) {
                                          exiger(message.texte.contains(u"TLR.INI"), u"le message nomme le fichier"_s);
                                      },
                                      [&](const talor::Configuration&) -> std::optional<talor::PointeurAnnee> {
                                          demande = true;
                                          return std::nullopt;
                                      }};
    const Demarrage demarrage = talor::demarrer(dossier.installation(), ecran);
    const bool ouvert = demarrage.issue == Demarrage::Issue::Ouvert;
    exiger(ouvert != demande, u"un exercice s'ouvre, ou le premier est demandé"_s);
    if (ouvert)
        dossier.supprimer(QFileInfo(demarrage.exercice->CheminBase).fileName());
    return 0;
}
