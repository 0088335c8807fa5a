#include "shell/shutdown.h"

#include "core/helpers.h"
#include "platform/store/error.h"
#include "platform/store/maintenance.h"

#include <QFile>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr int nbEntrees = 3;
constexpr qint64 tailleMax = 256; // three integers take far less; a foreign file is not read whole

QByteArray texteResolution(Resolution resolution)
{
    QByteArray texte;
    for (int i = 0; i < nbEntrees; ++i)
        texte += i == static_cast<int>(resolution) ? "1\n" : "0\n";
    return texte;
}

} // namespace

Resolution lireResolution(const Installation& installation)
{
    QFile fichier(installation.choixEcran());
    if (!fichier.open(QIODevice::ReadOnly))
        return Resolution::Origine;
    const QList<QByteArray> lignes = fichier.read(tailleMax).split('\n');
    const auto marquee = [&](Resolution resolution) {
        const auto rang = static_cast<qsizetype>(resolution);
        return rang < lignes.size() && lignes[rang].trimmed() == "1";
    };
    // The third is looked at last and wins over the second.
    if (marquee(Resolution::Grande))
        return Resolution::Grande;
    return marquee(Resolution::Petite) ? Resolution::Petite : Resolution::Origine;
}

QList<Refus> arreterExercice(Exercice& exercice, Resolution resolution)
{
    QList<Refus> echecs;
    const Installation& installation = exercice.installation();
    exercice.FermerBase();
    try {
        installation.creerDossiers();
        store::copyFile(exercice.CheminBase, installation.archiveSortie(exercice.Annee));
    } catch (const store::Error& erreur) {
        echecs.append(
            Refus{u"L'exercice est enregistré, mais sa copie dans Archives n'a pas été faite :\n"_s + erreur.text(),
                  u"ATTENTION"_s, Icone::Avertissement});
    }
    try {
        store::writeFileSafely(installation.choixEcran(), texteResolution(resolution));
    } catch (const store::Error& erreur) {
        echecs.append(Refus{u"Le choix de la résolution n'a pas été gardé :\n"_s + erreur.text(), u"ATTENTION"_s,
                            Icone::Avertissement});
    }
    return echecs;
}

} // namespace talor
