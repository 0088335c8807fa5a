#pragma once

#include "platform/controls/dialog.h"
#include "shell/verrou.h"

#include <QList>

namespace controls {
class TextField;
}

namespace talor {

/// Changes the user's word, that of record 1: the word in place, the new one, the new one again.
class New_MPS : public controls::Dialog
{
    Q_OBJECT

public:
    explicit New_MPS(Exercice& exercice, QWidget* parent = nullptr);

private:
    void valider();
    controls::TextField* champ(ChangementMot::Case rang) const;

    ChangementMot m_changement;
    QList<controls::TextField*> m_champs;
};

} // namespace talor
