#pragma once

#include "reference/dialogue_fiches.h"

namespace talor {

/// The card file of shipowners.
class J_Armateurs : public DialogueFiches
{
    Q_OBJECT

public:
    explicit J_Armateurs(Exercice& exercice, QWidget* parent = nullptr);

protected:
    void executer(int index) override;

private:
    enum
    {
        Appeler = 4
    };
};

} // namespace talor
