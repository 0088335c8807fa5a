// Writes TAL2_CFG.CFG from Identite.txt: how a new business puts its name on its documents.

#include "core/identity_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace talor;

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QDir dossier(application.applicationDirPath());
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
