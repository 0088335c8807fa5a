#pragma once

#include "reference/dialogue_fiches.h"

namespace talor {

/// The card file of boats, each with its shipowner.
class j_Chalutiers : public DialogueFiches
{
    Q_OBJECT

public:
    explicit j_Chalutiers(Exercice& exercice, QWidget* parent = nullptr);
};

} // namespace talor
