#pragma once

#include "sales/dialogue_bordereaux.h"

namespace talor {

/// The bordereaux to consult and to print, with no way to change one: the read-only twin of the register.
class Edit_Bor2 : public DialogueBordereaux
{
    Q_OBJECT

public:
    explicit Edit_Bor2(Exercice& exercice, QWidget* parent = nullptr);

private:
    void executer(int index) override;
};

} // namespace talor
