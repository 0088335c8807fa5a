#include "shell/panneaux.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "shell/grand_bouton.h"
#include "shell/menu.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGridLayout>
#include <QShortcut>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

// The colours of the sub-panel's buttons, which an old hand knows it by.
constexpr QColor fondRepos(0xF0, 0xF0, 0xF0);
constexpr QColor fondAllume(0xFF, 0xFF, 0x00);

/// Lays the buttons out in a grid of so many columns, with the arrow keys between them and F1, F2... on them.
template<class Panneau, size_t n>
QList<GrandBouton*> poserBoutons(Panneau* panneau, QGridLayout* grille, const std::array<Raccourci, n>& raccourcis,
                                 int colonnes)
{
    auto* groupe = new QButtonGroup(panneau); // the arrows move within a group
    groupe->setExclusive(false);
    QList<GrandBouton*> boutons;
    for (const Raccourci& raccourci : raccourcis) {
        const auto rang = static_cast<int>(boutons.size());
        auto* bouton = new GrandBouton(raccourci.icone, raccourci.libelle, QKeySequence(Qt::Key_F1 + rang), panneau);
        QObject::connect(bouton, &GrandBouton::clicked, panneau,
                         [panneau, entree = raccourci.entree] { emit panneau->choisi(entree); });
        groupe->addButton(bouton, rang);
        grille->addWidget(bouton, rang / colonnes, rang % colonnes);
        boutons.append(bouton);
    }
    return boutons;
}

} // namespace

PanneauRaccourcis::PanneauRaccourcis(QWidget* parent)
    : QWidget(parent)
{
    auto* grille = new QGridLayout(this);
    grille->setContentsMargins({});
    grille->setSpacing(14);
    m_boutons = poserBoutons(this, grille, raccourcis(), 3);
    for (int i = 0; i < m_boutons.size(); ++i) {
        named(m_boutons[i], u"Image5", i);
        named(m_boutons[i]->libelle(), u"Label2", i);
    }
}

void PanneauRaccourcis::actualiser(const Disponible& disponible, bool exerciceCourant)
{
    for (int i = 0; i < m_boutons.size(); ++i) {
        const Raccourci& raccourci = raccourcis()[static_cast<size_t>(i)];
        m_boutons[i]->setVisible(exerciceCourant || !raccourci.exerciceCourantSeul);
        m_boutons[i]->setEnabled(disponible(raccourci.entree));
    }
}

PanneauFacturation::PanneauFacturation(QWidget* parent)
    : QFrame(parent)
    , m_fermer(named(new controls::CommandButton(u"fermer", u"Fermer"_s), u"Image27"))
{
    named(this, u"SSPanel1");
    controls::setRole(this, controls::Role::Panel);

    auto* titre = new QHBoxLayout;
    titre->addWidget(controls::sectionLabel(u"Facturation"_s));
    titre->addStretch();
    titre->addWidget(m_fermer);
    auto* grille = new QGridLayout;
    grille->setSpacing(14);
    m_boutons = poserBoutons(this, grille, boutonsFacturation(), 4);
    auto* colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(20, 14, 20, 20);
    colonne->setSpacing(12);
    colonne->addLayout(titre);
    colonne->addLayout(grille, 1);

    for (int i = 0; i < m_boutons.size(); ++i) {
        GrandBouton* bouton = named(m_boutons[i], u"SSPanel2", i);
        bouton->setFonds(fondRepos, fondAllume);
        connect(bouton, &GrandBouton::designe, this, [this, bouton] { allumerSeul(bouton); });
    }
    setTabOrder(m_boutons.last(), m_fermer);
    connect(m_fermer, &QAbstractButton::clicked, this, &PanneauFacturation::ferme);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, m_fermer, &QAbstractButton::click);
}

void PanneauFacturation::actualiser(const Disponible& disponible)
{
    for (int i = 0; i < m_boutons.size(); ++i)
        m_boutons[i]->setEnabled(disponible(boutonsFacturation()[static_cast<size_t>(i)].entree));
}

void PanneauFacturation::allumerSeul(const GrandBouton* designe)
{
    for (GrandBouton* bouton : std::as_const(m_boutons))
        if (bouton != designe)
            bouton->allumer(false);
}

} // namespace talor
