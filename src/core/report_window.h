#pragma once

#include "core/report.h"

class QWidget;

namespace talor {

enum class Destination
{
    Fenetre,
    Imprimante
};

/// The printer check that every print runs first: 0 when something can print, else -1 after "Aucune imprimante
/// installée". The program's own PDF counts as a printer.
int TestImprimante(QWidget* parent);

/// Prints: the printer check, then the print sequence, then the preview window (or the printer's own dialog). What is
/// wrong is told. Returns whether the document was shown or printed.
bool ImprimerEtat(QWidget* parent, Exercice& exercice, const Etat& etat,
                  Destination destination = Destination::Fenetre);

/// The same for a document that is already laid out: a batch of invoices.
bool ImprimerDocument(QWidget* parent, const reports::Document& document, Destination destination);

} // namespace talor
