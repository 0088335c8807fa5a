#pragma once

#include <QHash>
#include <QMenuBar>

class QActionGroup;

namespace talor {

struct Entree;

/// The menu bar, built from the tree of entries. Each action bears the name of its entry.
class BarreMenus : public QMenuBar
{
    Q_OBJECT

public:
    explicit BarreMenus(QWidget* parent = nullptr);

    /// The action of an entry, a sub-menu's too; null for an entry that no menu shows.
    QAction* action(const QString& nom) const { return m_actions.value(nom); }
    /// Checks one entry of its exclusive group.
    void cocher(const QString& nom);

signals:
    /// An entry was chosen.
    void choisie(const QString& nom);

private:
    void ajouter(const Entree& entree);

    QHash<QString, QAction*> m_actions;
    QHash<QString, QMenu*> m_menus;
    QHash<QString, QActionGroup*> m_groupes;
};

} // namespace talor
