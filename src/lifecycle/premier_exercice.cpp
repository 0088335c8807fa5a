#include "lifecycle/premier_exercice.h"

#include "core/helpers.h"
#include "platform/store/error.h"
#include "platform/store/maintenance.h"

#include <QFileInfo>

namespace talor {

using namespace Qt::StringLiterals;

bool pointeurPlausible(const PointeurAnnee& pointeur)
{
    return pointeur.AnneeInitiale >= anneeExerciceMin && pointeur.NbClotures >= 0 &&
           pointeur.anneeCourante() <= anneeExerciceMax;
}

std::optional<Refus> creerFichierAnnee(const Installation& installation, int annee)
{
    const QString fichier = installation.base(annee);
    if (FichierExiste(fichier))
        return std::nullopt;
    try {
        store::copyFile(installation.baseVide(), fichier);
    } catch (const store::Error& erreur) {
        return Refus{u"Fichier '"_s + QFileInfo(fichier).fileName() + u"' non créé : "_s + erreur.text()};
    }
    return std::nullopt;
}

Resultat<PointeurAnnee> ouvrirPremierExercice(const Installation& installation, const QString& CodeFichier,
                                              const QString& annee)
{
    const qint64 lue = ValeurEntiere(annee);
    if (lue < anneeExerciceMin || lue > anneeExerciceMax)
        return Refus{u"Saisie  incorrecte"_s, u"A T T E N T I O N"_s};
    const PointeurAnnee pointeur{static_cast<qint16>(lue), 0};
    if (const auto refus = creerFichierAnnee(installation, pointeur.AnneeInitiale))
        return *refus;
    if (const auto refus = pointeur.ecrire(installation.pointeurAnnee(CodeFichier)))
        return *refus;
    return pointeur;
}

} // namespace talor
