#include "core/report_window.h"

#include "core/montrer.h"
#include "platform/controls/busy.h"
#include "platform/reports/preview.h"
#include "platform/services/printers.h"

#include <QWidget>

namespace talor {

using namespace Qt::StringLiterals;

int TestImprimante(QWidget* parent)
{
    if (services::printers::available())
        return 0;
    montrer(parent, {u"Aucune imprimante installée"_s});
    return -1;
}

bool ImprimerDocument(QWidget* parent, const reports::Document& document, Destination destination)
{
    reports::Apercu Apercu(document, document.title(), parent);
    if (destination == Destination::Imprimante)
        Apercu.imprimer();
    else
        Apercu.exec();
    // Not every window system gives the caller its turn back by itself.
    if (parent)
        parent->activateWindow();
    return true;
}

bool ImprimerEtat(QWidget* parent, Exercice& exercice, const Etat& etat, Destination destination)
{
    if (TestImprimante(parent) != 0)
        return false;
    const Resultat<reports::Document> document = [&] {
        const controls::Busy sablier;
        return ComposerEtat(exercice, etat);
    }();
    if (!document) {
        montrer(parent, document.refus());
        return false;
    }
    return ImprimerDocument(parent, *document, destination);
}

} // namespace talor
