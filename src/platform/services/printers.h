#pragma once

#include <QStringList>

/// What this machine can print on. The program's own writer of PDF files counts as a printer, so that a document can
/// always be kept.
namespace services::printers {

/// Names of what can print, the machine's default printer first, the PDF writer last.
QStringList names();
/// Name of the printer in use, empty when nothing can print.
QString current();
bool available();

/// For tests: a machine on which nothing can print.
void setNothingPrints(bool nothing);

} // namespace services::printers
