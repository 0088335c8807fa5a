#include "shell/application.h"

#include "core/montrer.h"
#include "core/state.h"
#include "platform/controls/look.h"
#include "platform/store/error.h"

#include <cstdlib>

namespace talor {

using namespace Qt::StringLiterals;

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv)
{
    setApplicationName(u"TALOR"_s);
    setDesktopFileName(u"talor"_s); // under which the desktop knows its icon
    controls::applyLook(*this);
}

void Application::echouer(const store::Error& erreur)
{
    m_echoue = true;
    montrer(activeWindow(), {erreur.text(), u"TALOR"_s});
    if (m_exercice)
        m_exercice->FermerBase();
    // The dialogs that stand open would go on working on a closed exercise: none of their code may run any more.
    std::quick_exit(EXIT_FAILURE);
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const store::Error& erreur) {
        if (m_echoue) // another one, while the first is being shown
            return false;
        echouer(erreur);
    }
}

} // namespace talor
