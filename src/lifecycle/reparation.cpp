#include "lifecycle/reparation.h"

#include "core/helpers.h"
#include "core/schema.h"
#include "platform/store/maintenance.h"

#include <QFile>
#include <QFileInfo>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

/// A copy takes the file's place in one step: at no moment is there neither the old file nor the new.
QStringList reparerEtCompacter(const QString& fichier, const QString& provisoire)
{
    QFile::remove(provisoire);
    const QStringList pertes = store::repairFile(fichier, schema());
    store::compactFile(fichier, provisoire);
    store::copyFile(provisoire, fichier);
    QFile::remove(provisoire);
    return pertes;
}

Resultat<QStringList> reparerChemin(Exercice& exercice, const QString& fichier)
{
    const bool etaitOuvert = exercice.estOuvert();
    try {
        exercice.FermerBase();
        const QStringList pertes = reparerEtCompacter(fichier, exercice.installation().baseProvisoire());
        if (etaitOuvert)
            exercice.OuvrirBase();
        return pertes;
    } catch (const store::Error& erreur) {
        return Refus{u"Erreur N° "_s + QString::number(erreur.number()) + u'\n' + erreur.text(), u"TALOR"_s};
    }
}

} // namespace

QStringList basesReparables(const Installation& installation)
{
    const QDir dossier = QFileInfo(installation.baseVide()).dir();
    return dossier.entryList({u"TAL2*.MDB"_s}, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

Resultat<QStringList> reparerBase(Exercice& exercice, const QString& nom)
{
    return reparerChemin(exercice, exercice.installation().chemin(nom));
}

Resultat<QStringList> CompacterBase(Exercice& exercice)
{
    return reparerChemin(exercice, exercice.CheminBase);
}

} // namespace talor
