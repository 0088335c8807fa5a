#pragma once

#include "invoicing/dialogue_factures.h"

namespace talor {

/// The register of invoices, opened on those of today.
class FACTURES : public DialogueFactures
{
    Q_OBJECT

public:
    explicit FACTURES(Exercice& exercice, QWidget* parent = nullptr);
};

} // namespace talor
