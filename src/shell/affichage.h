#pragma once

#include "platform/controls/dialog.h"
#include "shell/images_laterales.h"

class QCheckBox;
class QLabel;

namespace talor {

class ImageLaterale;

/// The choice of the side pictures of the main window: for each side a picture, and whether it is shown.
class Affichage : public controls::Dialog
{
    Q_OBJECT

public:
    explicit Affichage(const Installation& installation, QWidget* parent = nullptr);

private:
    struct Panneau
    {
        Cote cote;
        ImageLaterale* image;
        QLabel* vide;
        QCheckBox* montrer;
    };

    QWidget* ajouterPanneau(Cote cote);
    void actualiser(const Panneau& panneau);
    void choisir(const Panneau& panneau);

    Installation m_installation;
};

} // namespace talor
