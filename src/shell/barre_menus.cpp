#include "shell/barre_menus.h"

#include "shell/menu.h"

#include <QActionGroup>

namespace talor {

BarreMenus::BarreMenus(QWidget* parent)
    : QMenuBar(parent)
{
    for (const Entree& entree : entrees())
        if (entree.parent != horsMenu)
            ajouter(entree);
}

void BarreMenus::ajouter(const Entree& entree)
{
    QMenu* parent = m_menus.value(entree.parent); // null: the bar itself
    if (parent && entree.separateurAvant)
        parent->addSeparator();

    QAction* action = nullptr;
    if (entree.genre == Entree::Genre::SousMenu) {
        QMenu* menu = parent ? parent->addMenu(entree.libelle) : addMenu(entree.libelle);
        menu->setObjectName(entree.nom);
        m_menus.insert(entree.nom, menu);
        action = menu->menuAction();
    } else {
        action = parent->addAction(entree.libelle);
        connect(action, &QAction::triggered, this, [this, nom = entree.nom] { emit choisie(nom); });
    }
    if (entree.genre == Entree::Genre::Choix) {
        QActionGroup*& groupe = m_groupes[entree.parent];
        if (!groupe)
            groupe = new QActionGroup(this);
        action->setCheckable(true);
        groupe->addAction(action);
    }
    action->setObjectName(entree.nom);
    m_actions.insert(entree.nom, action);
}

void BarreMenus::cocher(const QString& nom)
{
    m_actions.value(nom)->setChecked(true);
}

} // namespace talor
