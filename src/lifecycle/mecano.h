#pragma once

#include "platform/controls/dialog.h"

namespace controls {
class Grid;
}

namespace talor {

class Exercice;

/// "Module de réparation": repairs and compacts one of the yearly files.
class Mecano : public controls::Dialog
{
    Q_OBJECT

public:
    enum class Fin
    {
        Ferme,  ///< the exercise is open again if it was
        Echoue, ///< a repair failed and was told; the exercise is closed and the process must end
    };

    static Fin ouvrir(Exercice& exercice, QWidget* parent = nullptr);

private:
    Mecano(Exercice& exercice, QWidget* parent);
    void lister();
    void reparer();

    Exercice& m_exercice;
    controls::Grid* m_fichiers;
    Fin m_fin = Fin::Ferme;
};

} // namespace talor
