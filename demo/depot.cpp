#include "demo/depot.h"

#include "core/identity_file.h"
#include "lifecycle/premier_exercice.h"
#include "shell/startup.h"

namespace talor::demo {

using namespace Qt::StringLiterals;

namespace {

std::optional<Refus> copier(const QString& source, const QDir& dossier)
{
    QFile fichier(source);
    const QString cible = dossier.filePath(QFileInfo(source).fileName());
    QFile::remove(cible);
    if (!fichier.copy(cible))
        return Refus{u"'"_s + source + u"' n'a pu être copié : "_s + fichier.errorString()};
    return std::nullopt;
}

} // namespace

std::optional<Refus> deposer(const Origine& origine, const QDir& dossier, int annee)
{
    const Installation installation(dossier.path());
    if (QFileInfo::exists(installation.base(annee)))
        return Refus{u"Un exercice est déjà là : '"_s + installation.base(annee) +
                     u"'. Effacez-le ou choisissez un autre dossier."_s};
    if (!dossier.mkpath(u"."_s))
        return Refus{u"Le dossier '"_s + dossier.path() + u"' ne peut être créé"_s};

    QStringList fichiers = {origine.livres.filePath(u"TAL00.mdb"_s), origine.livres.filePath(u"Guide_TALOR.pdf"_s),
                            origine.installation.filePath(u"system.mdw"_s)};
    for (const QString& modele : origine.modeles.entryList({u"*.rpt"_s}, QDir::Files))
        fichiers << origine.modeles.filePath(modele);
    for (const QString& fichier : fichiers)
        if (const std::optional<Refus> refus = copier(fichier, dossier))
            return refus;

    const Resultat<Configuration> identite = lireFichierIdentite(origine.identite);
    return identite ? identite->ecrire(installation.configuration()) : identite.refus();
}

Resultat<std::shared_ptr<Exercice>> ouvrirExercice(const QDir& dossier, int annee)
{
    const Installation installation(dossier.path());
    std::optional<Refus> message;
    const EcranDemarrage ecran = {
        .TestImprimante = [] {},
        .montrer = [&](const Refus& refus) { message = refus; },
        .demanderPremierExercice = [&](const Configuration& configuration) -> std::optional<PointeurAnnee> {
            const auto pointeur =
                ouvrirPremierExercice(installation, configuration.CodeFichier, QString::number(annee));
            if (pointeur)
                return *pointeur;
            message = pointeur.refus();
            return std::nullopt;
        },
    };
    Demarrage demarrage = demarrer(installation, ecran);
    if (demarrage.issue != Demarrage::Issue::Ouvert)
        return demarrage.message.value_or(message.value_or(Refus{u"L'exercice n'a pu être ouvert"_s}));
    return std::shared_ptr<Exercice>(std::move(demarrage.exercice));
}

} // namespace talor::demo
