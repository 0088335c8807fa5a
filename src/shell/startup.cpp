#include "shell/startup.h"

#include "core/helpers.h"
#include "lifecycle/premier_exercice.h"

#include <QFileInfo>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

Demarrage arreter(std::optional<Refus> message, bool bip = false)
{
    return {Demarrage::Issue::Arrete, std::move(message), bip, nullptr};
}

Refus notification(const QString& texte)
{
    return {texte, u"TALOR"_s};
}

std::optional<Demarrage> verifierFichiers(const Installation& installation)
{
    if (!FichierExiste(installation.groupeDeTravail()))
        return arreter(notification(u"Un fichier system est absent"_s));
    if (!FichierExiste(installation.baseVide()) || !FichierExiste(installation.configuration()))
        return arreter(notification(u"Fichier système absent"_s), true);
    return std::nullopt;
}

/// The year pointer, or the first exercise when there is none yet; nothing when it was declined.
std::optional<PointeurAnnee> lirePointeur(const Installation& installation, const Configuration& configuration,
                                          const EcranDemarrage& ecran)
{
    const QString fichier = installation.pointeurAnnee(configuration.CodeFichier);
    const PointeurAnnee pointeur = PointeurAnnee::lire(fichier);
    if (pointeurPlausible(pointeur))
        return pointeur;
    if (pointeur.AnneeInitiale != 0)
        ecran.montrer(notification(u"Fichier '"_s + QFileInfo(fichier).fileName() +
                                   u"' altéré : l'exercice initial est à indiquer de nouveau"_s));
    return ecran.demanderPremierExercice(configuration);
}

/// Where nothing can be recorded, that is told at the door and not at the first sale.
std::optional<Refus> verifierEcriture(const QString& base)
{
    const QFileInfo fichier(base);
    const QFileInfo dossier(fichier.path());
    for (const auto& [lieu, nom] : {std::pair{fichier, u"Le fichier « %1 »"_s.arg(base)},
                                    std::pair{dossier, u"Le dossier « %1 »"_s.arg(fichier.path())}})
        if (!lieu.isWritable())
            return notification(nom + u" est protégé contre l'écriture : rien ne pourrait y être enregistré\n"
                                      "Ôtez cette protection, puis relancez TALOR"_s);
    return std::nullopt;
}

Demarrage ouvrir(std::unique_ptr<Exercice> exercice)
{
    try {
        exercice->OuvrirBase();
    } catch (const store::Error&) {
        return {Demarrage::Issue::Endommage,
                Refus{u"La base de données semble endommagée\nChargement du module de réparation"_s, u"TALOR"_s,
                      Icone::Avertissement},
                false, std::move(exercice)};
    }
    exercice->LireParametres();
    return {Demarrage::Issue::Ouvert, std::nullopt, false, std::move(exercice)};
}

} // namespace

Demarrage demarrer(const Installation& installation, const EcranDemarrage& ecran)
{
    if (auto arret = verifierFichiers(installation))
        return std::move(*arret);
    ecran.TestImprimante();

    const Resultat<Configuration> configuration = Configuration::lire(installation.configuration());
    if (!configuration)
        return arreter(configuration.refus());
    installation.creerDossiers();

    const std::optional<PointeurAnnee> pointeur = lirePointeur(installation, *configuration, ecran);
    if (!pointeur)
        return arreter(std::nullopt);
    if (auto refus = creerFichierAnnee(installation, pointeur->anneeCourante()))
        return arreter(std::move(refus));
    if (auto refus = verifierEcriture(installation.base(pointeur->anneeCourante())))
        return arreter(std::move(refus));
    return ouvrir(std::make_unique<Exercice>(installation, *configuration, *pointeur));
}

} // namespace talor
