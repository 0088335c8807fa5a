// The program's own start on the exercise of a folder, up to its main window.

#include "bench/shown.h"
#include "core/report_window.h"
#include "platform/services/single_instance.h"
#include "shell/application.h"
#include "shell/fonctions.h"
#include "shell/form1.h"
#include "shell/startup.h"

using namespace talor;

int main(int argc, char** argv)
{
    Application application(argc, argv);
    const QString folder = application.arguments().value(1);
    const services::SingleInstance instance(folder);
    const EcranDemarrage screen = {[] { TestImprimante(nullptr); }, [](const Refus&) { std::_Exit(EXIT_FAILURE); },
                                   [](const Configuration&) { return std::nullopt; }};
    const Demarrage started = demarrer(Installation(folder), screen);
    if (started.issue != Demarrage::Issue::Ouvert)
        return EXIT_FAILURE;
    application.suivre(started.exercice.get());
    Form1 form1(*started.exercice);
    brancherFonctions(form1, *started.exercice);
    const bench::TellsWhenShown tells(form1);
    form1.showMaximized();
    return QApplication::exec();
}
