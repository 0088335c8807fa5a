// Writes TAL2_CFG.CFG from Identite.txt, in the folder in which the program works: how a new business puts its name on
// its documents.

#include "core/identity_file.h"
#include "core/paquet.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

/// Empty when the user of a packaged program has not chosen his folder yet.
QString dossierDeTravail()
{
    const QString programme = QCoreApplication::applicationDirPath();
    const std::optional<Paquet> paquet = Paquet::de(programme);
    return paquet ? paquet->dossierRetenu() : programme;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QString travail = dossierDeTravail();
    if (arguments.size() == 1 && travail.isEmpty()) {
        QTextStream(stderr) << u"Démarrez d'abord TALOR : il demandera le dossier de vos données."_s << Qt::endl;
        return 1;
    }
    const QDir dossier(travail);
    const QString identite = arguments.size() > 1 ? arguments[1] : dossier.filePath(u"Identite.txt"_s);
    const QString configuration = arguments.size() > 2 ? arguments[2] : dossier.filePath(u"TAL2_CFG.CFG"_s);

    const Resultat<Configuration> lue = lireFichierIdentite(identite);
    const std::optional<Refus> refus = lue ? lue->ecrire(configuration) : lue.refus();
    if (refus) {
        QTextStream(stderr) << refus->texte << Qt::endl;
        return 1;
    }
    QTextStream(stdout) << u"Configuration écrite pour « "_s << lue->textes[0] << u" » : "_s << configuration
                        << Qt::endl;
    return 0;
}
