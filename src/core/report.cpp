#include "core/report.h"

#include "core/helpers.h"
#include "core/state.h"
#include "platform/reports/error.h"
#include "platform/reports/layout.h"

namespace talor {

using namespace Qt::StringLiterals;

Resultat<reports::Document> ComposerEtat(Exercice& exercice, const Etat& etat)
{
    const QString modele = exercice.installation().chemin(etat.modele);
    if (!FichierExiste(modele))
        return Refus{u"Fichier '"_s + etat.modele + u"' absent"_s};
    try {
        store::Transaction transaction(exercice.Base());
        exercice.EcrireEntete();
        if (etat.remplir)
            etat.remplir(exercice);
        transaction.commit();
        reports::Document document = reports::layOut(exercice.Base(), {modele, etat.formule, etat.tri});
        if (!etat.titre.isEmpty())
            document.setTitle(etat.titre);
        return document;
    } catch (const reports::Error& erreur) {
        return Refus{erreur.text()};
    }
}

} // namespace talor
