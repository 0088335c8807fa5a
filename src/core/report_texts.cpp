#include "core/report_texts.h"

namespace talor {

void ecrireTextes(Exercice& exercice, const TextesEtat& champs)
{
    store::Recordset& textes = exercice.textes;
    if (textes.moveFirst())
        textes.edit();
    else
        textes.addNew();
    for (const auto& [champ, texte] : champs)
        textes.set(champ, texte);
    textes.update();
}

} // namespace talor
