#pragma once

#include "reference/dialogue_fiches.h"

namespace talor {

/// The card file of buyers, by name or by number.
class j_Client : public DialogueFiches
{
    Q_OBJECT

public:
    explicit j_Client(Exercice& exercice, QWidget* parent = nullptr);

protected:
    void executer(int index) override;

private:
    enum
    {
        SurNumero = 4,
        OrdreAlphabetique,
        Appeler
    };
};

} // namespace talor
