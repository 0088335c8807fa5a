#include "sales/listes_choix.h"

#include "platform/controls/grid.h"
#include "platform/controls/named.h"

#include <QEvent>
#include <QTabBar>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

/// Columns of `Grid2`.
enum Colonne
{
    Compte,
    Nom,
    Num
};

/// The pick grids are numbered the other way round from the fields.
int indexGrille(ChoixLigne choix)
{
    return choix == ChoixClient ? 1 : 0;
}

} // namespace

ListesChoix::ListesChoix(const SaisieBordereau& saisie, QWidget* parent)
    : QTabWidget(parent)
{
    named(this, u"SSTab1");
    tabBar()->setFocusPolicy(Qt::TabFocus);
    ajouter(ChoixClient, u"Clients"_s, u"Client"_s, saisie.clients());
    ajouter(ChoixPoisson, u"Poissons"_s, u"Poisson"_s, saisie.poissons());
}

void ListesChoix::ajouter(ChoixLigne choix, const QString& onglet, const QString& legende, const ListeChoix& liste)
{
    auto* grille = named(new controls::Grid, u"Grid2", indexGrille(choix));
    grille->setAccessibleName(onglet);
    grille->setColumns(
        {{u"Rang"_s, 800, Qt::AlignHCenter}, {legende, 3200, Qt::AlignLeft, true}, {u"Fiche"_s, 950, Qt::AlignRight}});
    grille->setRows(liste.nombre(), [&liste](int rang, int colonne) {
        switch (colonne) {
        case Compte:
            return QString::number(rang + 1);
        case Nom:
            return liste.nom(rang);
        case Num:
            return QString::number(liste[rang].num) + u' ';
        }
        return QString();
    });
    // A touch does not leave the field that has the focus, which would look its number up.
    grille->setFocusPolicy(Qt::TabFocus);
    connect(grille, &controls::Grid::rowClicked, this, [this, choix](int rang) { emit touche(choix, rang); });
    connect(grille, &controls::Grid::rowActivated, this, [this, choix](int rang) { emit touche(choix, rang); });
    grille->viewport()->installEventFilter(this);
    m_grilles[choix] = grille;
    addTab(grille, onglet);
}

/// A touch on a client turns to the fish: the second half of a double click falls on them and is no choice.
bool ListesChoix::eventFilter(QObject* objet, QEvent* evenement)
{
    switch (evenement->type()) {
    case QEvent::MouseButtonPress:
        m_premierAppui = objet;
        m_appuiIgnore = false;
        return false;
    case QEvent::MouseButtonDblClick:
        m_appuiIgnore = m_premierAppui != objet;
        return m_appuiIgnore;
    case QEvent::MouseButtonRelease:
        return m_appuiIgnore;
    default:
        return false;
    }
}

void ListesChoix::montrer(ChoixLigne choix)
{
    setCurrentWidget(m_grilles[choix]);
}

void ListesChoix::marquer(ChoixLigne choix, int rang)
{
    m_grilles[choix]->selectRow(rang);
}

} // namespace talor
