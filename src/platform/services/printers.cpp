#include "platform/services/printers.h"

#include <QPrinterInfo>

namespace services::printers {

namespace {
bool nothingPrints = false;
}

QStringList names()
{
    if (nothingPrints)
        return {};
    QStringList found = QPrinterInfo::availablePrinterNames();
    const QString preferred = QPrinterInfo::defaultPrinterName();
    if (found.removeOne(preferred))
        found.prepend(preferred);
    found.append(QStringLiteral("Fichier PDF"));
    return found;
}

QString current()
{
    return names().value(0);
}

bool available()
{
    return !nothingPrints; // the PDF is always there: no need to ask the machine for its printers
}

void setNothingPrints(bool nothing)
{
    nothingPrints = nothing;
}

} // namespace services::printers
