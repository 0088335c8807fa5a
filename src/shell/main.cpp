#include "core/montrer.h"
#include "core/report_window.h"
#include "lifecycle/form12.h"
#include "lifecycle/mecano.h"
#include "platform/controls/file_dialog.h"
#include "platform/services/single_instance.h"
#include "shell/application.h"
#include "shell/dossier_donnees.h"
#include "shell/fonctions.h"
#include "shell/form1.h"
#include "shell/startup.h"

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

EcranDemarrage ecran(const Installation& installation)
{
    return {[] { TestImprimante(nullptr); }, [](const Refus& message) { montrer(nullptr, message); },
            [installation](const Configuration& configuration) {
                return Form12::demander(installation, configuration.CodeFichier);
            }};
}

/// Where the program works: in its own folder, or in the user's when it is packaged; empty when he has not chosen one.
QString dossierDeTravail()
{
    const QString programme = QCoreApplication::applicationDirPath();
    const std::optional<Paquet> paquet = Paquet::de(programme);
    if (!paquet)
        return programme;
    return choisirDossier(*paquet, {[](const Refus& question) { return confirmer(nullptr, question); },
                                    [](const Refus& message) { montrer(nullptr, message); },
                                    [](const QString& depart) {
                                        return controls::FileDialog::folder(nullptr, u"Dossier de vos données"_s,
                                                                            depart);
                                    }});
}

int executer(Application& application)
{
    const QString dossier = dossierDeTravail();
    if (dossier.isEmpty())
        return EXIT_SUCCESS;
    const services::SingleInstance instance(dossier);
    if (!instance.isAlone()) {
        montrer(nullptr, {u"Application déjà en cours d'éxécution ! ! !"_s});
        return EXIT_FAILURE;
    }

    const Installation installation(dossier);
    const Demarrage demarrage = demarrer(installation, ecran(installation));
    montrerSi(nullptr, demarrage.message);
    if (demarrage.bip)
        QApplication::beep();
    if (demarrage.issue == Demarrage::Issue::Endommage)
        Mecano::ouvrir(*demarrage.exercice);
    if (demarrage.issue != Demarrage::Issue::Ouvert)
        return demarrage.message ? EXIT_FAILURE : EXIT_SUCCESS;

    application.suivre(demarrage.exercice.get());
    Form1 form1(*demarrage.exercice);
    brancherFonctions(form1, *demarrage.exercice);
    form1.showMaximized();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    Application application(argc, argv);
    try {
        return executer(application);
    } catch (const store::Error& erreur) {
        application.echouer(erreur);
    }
}
