#include "shell/affichage.h"

#include "core/helpers.h"
#include "core/montrer.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/icons.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "reference/fp_imge.h"
#include "shell/image_laterale.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

constexpr QSize tailleApercu(240, 260);

}

Affichage::Affichage(const Installation& installation, QWidget* parent)
    : Dialog(u"Affichage", u"Affichage"_s, parent)
    , m_installation(installation)
{
    body()->addWidget(
        controls::hintLabel(u"Les images choisies ici paraissent de part et d'autre de la fenêtre principale, "
                            "à la place du port dessiné."_s));
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(16);
    for (const Cote cote : {Cote::Gauche, Cote::Droite})
        rangee->addWidget(ajouterPanneau(cote));
    body()->addLayout(rangee, 1);

    auto* quitter = named(new controls::CommandButton(u"quitter", u"Quitter"_s), u"SSCommand1");
    connect(quitter, &QAbstractButton::clicked, this, [this] { leave(); });
    commands()->addStretch();
    commands()->addWidget(quitter);
    setCancel({quitter});
}

QWidget* Affichage::ajouterPanneau(Cote cote)
{
    const int rang = static_cast<int>(cote);
    const Panneau panneau{cote, named(new ImageLaterale, u"Image2", rang),
                          named(controls::hintLabel(u"Aucune image"_s), u"Label1", rang),
                          named(new QCheckBox(u"Montrer cette image"_s), u"Check1", rang)};
    auto* choix = named(new QPushButton(controls::icon(u"image"), u"Choisir..."_s), u"SSCommand2", rang);
    panneau.vide->setAlignment(Qt::AlignCenter);

    auto* cadre = new QFrame;
    controls::setRole(cadre, controls::Role::Panel);
    auto* grille = new QGridLayout(cadre);
    grille->setContentsMargins(16, 12, 16, 16);
    grille->setVerticalSpacing(10);
    grille->setRowMinimumHeight(1, tailleApercu.height());
    grille->setColumnMinimumWidth(0, tailleApercu.width());
    grille->addWidget(controls::sectionLabel(cote == Cote::Gauche ? u"À gauche"_s : u"À droite"_s), 0, 0);
    // Both in one place: the one shows where the other does not.
    grille->addWidget(panneau.image, 1, 0, Qt::AlignHCenter);
    grille->addWidget(panneau.vide, 1, 0);
    grille->addWidget(panneau.montrer, 2, 0);
    grille->addWidget(choix, 3, 0);
    connect(choix, &QPushButton::clicked, this, [this, panneau] { choisir(panneau); });
    connect(panneau.montrer, &QCheckBox::clicked, this, [this, panneau](bool montree) {
        montrerSi(this, ecarterImage(m_installation, panneau.cote, !montree));
        actualiser(panneau);
    });
    actualiser(panneau);
    return cadre;
}

void Affichage::actualiser(const Panneau& panneau)
{
    panneau.image->charger(imageLaterale(m_installation, panneau.cote));
    panneau.vide->setVisible(panneau.image->estVide());
    panneau.montrer->setEnabled(FichierExiste(cheminImage(m_installation, panneau.cote)));
    panneau.montrer->setChecked(panneau.montrer->isEnabled() && !estEcartee(m_installation, panneau.cote));
}

void Affichage::choisir(const Panneau& panneau)
{
    if (FP_imge::choisir(this, cheminImage(m_installation, panneau.cote)))
        montrerSi(this, ecarterImage(m_installation, panneau.cote, false));
    actualiser(panneau);
}

} // namespace talor
