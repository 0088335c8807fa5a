#pragma once

#include "invoicing/dialogue_factures.h"

namespace talor {

/// The second door to the invoices: opened on the day of an invoicing run, to print what it made.
class Fact_Bis : public DialogueFactures
{
    Q_OBJECT

public:
    /// `jour` as dd/MM/yyyy.
    Fact_Bis(Exercice& exercice, const QString& jour, QWidget* parent = nullptr);
};

} // namespace talor
