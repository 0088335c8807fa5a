#include "reference/j_prod.h"

#include "core/helpers.h"
#include "core/montrer.h"
#include "platform/controls/grid.h"
#include "platform/controls/message.h"
#include "reference/cadre_image.h"
#include "reference/fichiers.h"
#include "reference/fp_imge.h"
#include "reference/images.h"

#include <QBoxLayout>

namespace talor {

using namespace Qt::StringLiterals;

J_PROD::J_PROD(Exercice& exercice, QWidget* parent)
    : DialogueFiches(u"J_PROD", exercice, fichierProduits(), {}, {}, parent)
    , m_image(new CadreImage)
{
    rangee()->addWidget(m_image, 0, Qt::AlignTop);
    connect(grille(), &controls::Grid::rowSelected, this, &J_PROD::montrerImage);
    connect(grille(), &controls::Grid::rowClicked, this, &J_PROD::montrerImage);
    connect(m_image, &CadreImage::choisir, this, &J_PROD::choisirImage);
    connect(m_image, &CadreImage::supprimer, this, &J_PROD::supprimerPhoto);
    connect(m_image, &CadreImage::fermer, m_image, &QWidget::hide);
    montrerImage();
}

QString J_PROD::photo()
{
    const int ligne = grille()->currentRow();
    return ligne < 0 ? QString() : photoProduit(fiches().exercice(), fiches().num(ligne));
}

void J_PROD::montrerImage()
{
    m_image->charger(photo());
    m_image->show();
}

void J_PROD::surSaisie(bool enCours)
{
    m_image->setVisible(!enCours);
}

void J_PROD::choisirImage()
{
    const QString cible = photo();
    if (cible.isEmpty())
        return;
    FP_imge::choisir(this, cible);
    montrerImage();
}

void J_PROD::supprimerPhoto()
{
    const QString cible = photo();
    if (cible.isEmpty() || !controls::Message::confirm(this, u"Confirmer la suppression de l'image"_s))
        return;
    montrerSi(this, supprimerImage(cible));
    montrerImage();
}

} // namespace talor
