#include "shell/affichage.h"

#include "core/helpers.h"
#include "core/montrer.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/labels.h"
#include "platform/controls/named.h"
#include "reference/fp_imge.h"
#include "shell/image_laterale.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
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

QGroupBox* Affichage::ajouterPanneau(Cote cote)
{
    const int rang = static_cast<int>(cote);
    auto* cadre = new QGroupBox(cote == Cote::Gauche ? u"A gauche"_s : u"A droite"_s);
    const Panneau panneau{cote, named(new ImageLaterale, u"Image2", rang),
                          named(new QCheckBox(u"Montrer cette image"_s), u"Check1", rang)};
    panneau.image->setMinimumSize(tailleApercu);
    QSizePolicy place = panneau.image->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    panneau.image->setSizePolicy(place);
    auto* choix = named(new QPushButton(u"Choisir..."_s), u"SSCommand2", rang);

    auto* colonne = new QVBoxLayout(cadre);
    colonne->addWidget(panneau.image, 1, Qt::AlignHCenter);
    colonne->addWidget(panneau.montrer);
    colonne->addWidget(choix);
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
