#include "shell/panneaux.h"

#include "platform/controls/icons.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "shell/grand_bouton.h"
#include "shell/menu.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGridLayout>
#include <QPushButton>
#include <QShortcut>

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

// The colours of the sub-panel's buttons, which an old hand knows it by.
constexpr QColor fondRepos(0xF0, 0xF0, 0xF0);
constexpr QColor fondAllume(0xFF, 0xFF, 0x00);

constexpr int ecart = 14;
constexpr int colonnesRaccourcis = 3;
constexpr int lignesFacturation = 4;

QKeySequence touche(int rang)
{
    return QKeySequence(Qt::Key_F1 + rang);
}

/// Lets the arrow keys move between the buttons by their places.
void grouper(QWidget* panneau, const QList<GrandBouton*>& boutons)
{
    auto* groupe = new QButtonGroup(panneau);
    groupe->setExclusive(false);
    for (GrandBouton* bouton : boutons)
        groupe->addButton(bouton);
}

void donnerFocus(const QList<GrandBouton*>& boutons)
{
    const auto libre =
        std::ranges::find_if(boutons, [](const GrandBouton* b) { return b->isVisible() && b->isEnabled(); });
    if (libre != boutons.end())
        (*libre)->setFocus();
}

} // namespace

PanneauRaccourcis::PanneauRaccourcis(QWidget* parent)
    : QWidget(parent)
{
    auto* grille = new QGridLayout(this);
    grille->setContentsMargins({});
    grille->setSpacing(ecart);
    for (const Raccourci& raccourci : raccourcis()) {
        const auto rang = static_cast<int>(m_boutons.size());
        auto* bouton = named(
            new GrandBouton(raccourci.icone, raccourci.libelle, touche(rang), GrandBouton::Disposition::SelonLaPlace),
            u"Image5", rang);
        named(bouton->libelle(), u"Label2", rang);
        connect(bouton, &GrandBouton::clicked, this, [this, entree = raccourci.entree] { emit choisi(entree); });
        grille->addWidget(bouton, rang / colonnesRaccourcis, rang % colonnesRaccourcis);
        grille->setColumnStretch(rang % colonnesRaccourcis, 1);
        m_boutons.append(bouton);
    }
    grouper(this, m_boutons);
}

void PanneauRaccourcis::prendreFocus()
{
    donnerFocus(m_boutons);
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
    , m_fermer(named(new QPushButton(controls::icon(u"fermer"), u"Fermer"_s), u"Image27"))
{
    named(this, u"SSPanel1");
    controls::setRole(this, controls::Role::Panel);

    auto* grille = new QGridLayout(this);
    grille->setContentsMargins(20, 12, 20, 16);
    grille->setHorizontalSpacing(ecart);
    grille->setVerticalSpacing(10);
    grille->addWidget(controls::sectionLabel(u"Facturation"_s), 0, 0);
    grille->addWidget(m_fermer, 0, 1, Qt::AlignRight);
    for (int i = 0; i < static_cast<int>(boutonsFacturation().size()); ++i) {
        grille->addWidget(ajouterBouton(i), 1 + i % lignesFacturation, i / lignesFacturation);
        grille->setColumnStretch(i / lignesFacturation, 1);
    }
    grouper(this, m_boutons);
    setTabOrder(m_boutons.last(), m_fermer);
    connect(m_fermer, &QAbstractButton::clicked, this, &PanneauFacturation::ferme);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, m_fermer, &QAbstractButton::click);
}

GrandBouton* PanneauFacturation::ajouterBouton(int rang)
{
    const Raccourci& fonction = boutonsFacturation()[static_cast<size_t>(rang)];
    auto* bouton =
        named(new GrandBouton(fonction.icone, fonction.libelle, touche(rang), GrandBouton::Disposition::EnLigne),
              u"SSPanel2", rang);
    bouton->setFonds(fondRepos, fondAllume);
    connect(bouton, &GrandBouton::survole, this, [this, bouton] { allumerSeul(bouton); });
    connect(bouton, &GrandBouton::clicked, this, [this, entree = fonction.entree] { emit choisi(entree); });
    m_boutons.append(bouton);
    return bouton;
}

void PanneauFacturation::prendreFocus()
{
    donnerFocus(m_boutons);
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
