#pragma once

#include "reference/dialogue_fiches.h"

namespace talor {

class CadreImage;

/// The card file of fish, each with a sale order and a picture.
class J_PROD : public DialogueFiches
{
    Q_OBJECT

public:
    explicit J_PROD(Exercice& exercice, QWidget* parent = nullptr);

protected:
    void surSaisie(bool enCours) override;

private:
    /// Path of the selected product's picture, empty when no product is selected.
    QString photo();
    void montrerImage();
    void choisirImage();
    void supprimerPhoto();

    CadreImage* m_image;
};

} // namespace talor
