#include "sales/dialogue_bordereaux.h"

#include "core/jouer.h"
#include "core/montrer.h"
#include "core/report_window.h"
#include "platform/controls/busy.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/grid.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "sales/cadre_filtre_bordereaux.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

constexpr int lignesVisibles = 22;

/// Meaning of the indexes of `Image2` beside the list.
enum Fleche
{
    Haut = 3,
    Bas = 4
};

QList<controls::Column> colonnes()
{
    return {{u"N°"_s, 940, Qt::AlignHCenter},
            {u"Date"_s, 1280, Qt::AlignHCenter},
            {u"Embarcation"_s, 2320, Qt::AlignLeft, true},
            {u"Cas."_s, 580, Qt::AlignHCenter},
            {u"Brut"_s, 1420, Qt::AlignRight},
            {u"Primes"_s, 1060, Qt::AlignRight},
            {u"Comm."_s, 1200, Qt::AlignRight}, // a commission of a million is not cut
            {u"Frais"_s, 1080, Qt::AlignRight},
            {u"Net"_s, 1440, Qt::AlignRight},
            {u"Fact"_s, 630, Qt::AlignHCenter},
            {u"Déc."_s, 630, Qt::AlignHCenter}};
}

controls::Ink encre(int colonne)
{
    switch (colonne) {
    case ColBordNet:
        return controls::Ink::Strong;
    case ColBordNumero:
    case ColBordFacture:
    case ColBordDecompte:
        return controls::Ink::Muted;
    default:
        return controls::Ink::Normal;
    }
}

} // namespace

DialogueBordereaux::DialogueBordereaux(QStringView nom, Exercice& exercice, RegistreBordereaux::Porte porte,
                                       const QList<Commande>& commandes, QWidget* parent)
    : Dialog(nom, u"Bordereaux"_s, parent)
    , m_exercice(exercice)
    , m_registre(exercice, porte)
    , m_titres{named(new QLabel, u"Label4", 0), named(new QLabel, u"Label4", 1)}
    , m_grille(named(new controls::Grid, u"Grid1"))
    , m_haut(named(controls::iconButton(u"monter", u"Ligne précédente"_s), u"Image2", Haut))
    , m_bas(named(controls::iconButton(u"descendre", u"Ligne suivante"_s), u"Image2", Bas))
    , m_commandes(new controls::CommandBar)
    , m_filtre(new CadreFiltreBordereaux(exercice, m_registre, this))
{
    for (QLabel* titre : m_titres) {
        controls::setRole(titre, controls::Role::Subtitle);
        band()->addWidget(titre);
    }
    m_grille->setAccessibleName(u"Bordereaux"_s);
    m_grille->setColumns(colonnes());
    m_grille->setInk([](int, int colonne) { return encre(colonne); });
    m_grille->setEmptyText(u"Aucun bordereau enregistré"_s);
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(8);
    rangee->addWidget(m_grille, 1);
    rangee->addWidget(creerFleches());
    body()->addLayout(rangee, 1);

    for (const Commande& commande : commandes) {
        if (&commande == &commandes.last())
            m_commandes->addStretch();
        else
            m_indexCommandes.append(commande.index);
        m_quitter = m_commandes->add(commande.index, commande.icone, commande.legende, commande.raccourci);
    }
    this->commands()->addWidget(m_commandes, 0, Qt::AlignBottom);
    ajouterCadre(m_filtre, m_filtre->annuler());

    connect(m_commandes, &controls::CommandBar::triggered, this, &DialogueBordereaux::executer);
    connect(m_grille, &controls::Grid::rowSelected, this, &DialogueBordereaux::montrerFleches);
    connect(m_filtre, &CadreFiltreBordereaux::accepte, this, &DialogueBordereaux::filtrer);
    connect(m_filtre, &CadreFiltreBordereaux::abandonne, this, [this] { montrerCadre(nullptr); });
}

/// Room for twenty-two rows, where the screen has it.
QSize DialogueBordereaux::sizeHint() const
{
    const int liste = m_grille->horizontalHeader()->sizeHint().height() + 2 * m_grille->frameWidth() +
                      lignesVisibles * m_grille->verticalHeader()->defaultSectionSize();
    return Dialog::sizeHint() + QSize(0, qMax(0, liste - m_grille->sizeHint().height()));
}

QWidget* DialogueBordereaux::creerFleches()
{
    auto* fleches = new QWidget;
    auto* colonne = new QVBoxLayout(fleches);
    colonne->setContentsMargins({});
    for (QToolButton* fleche : {m_haut, m_bas}) {
        QSizePolicy place = fleche->sizePolicy();
        place.setRetainSizeWhenHidden(true);
        fleche->setSizePolicy(place);
        fleche->setAutoRepeat(true);
        colonne->addWidget(fleche);
    }
    colonne->addStretch();
    connect(m_haut, &QToolButton::clicked, this, [this] { deplacer(-1); });
    connect(m_bas, &QToolButton::clicked, this, [this] { deplacer(1); });
    return fleches;
}

void DialogueBordereaux::montrerFleches()
{
    const int rang = m_grille->currentRow();
    m_haut->setVisible(m_grille->isEnabled() && rang > 0);
    m_bas->setVisible(m_grille->isEnabled() && rang >= 0 && rang < m_registre.nbLignes() - 1);
}

void DialogueBordereaux::deplacer(int pas)
{
    m_grille->selectRow(std::clamp(m_grille->currentRow() + pas, 0, m_registre.nbLignes() - 1));
    JouerTouche(m_exercice);
}

void DialogueBordereaux::ajouterCadre(QWidget* cadre, const QList<QAbstractButton*>& annuler)
{
    cadre->hide();
    commands()->insertWidget(static_cast<int>(m_cadres.size()), cadre, 1);
    m_cadres.append(cadre);
    m_annuler.append(annuler);
    setCancel(m_annuler + QList<QAbstractButton*>{m_quitter});
}

void DialogueBordereaux::montrerCadre(QWidget* cadre)
{
    const bool liste = !cadre && m_registre.nbLignes() > 0;
    // What makes room goes before what takes it, or the window would grow to hold both.
    for (QWidget* autre : std::as_const(m_cadres))
        autre->setVisible(false);
    for (const int index : std::as_const(m_indexCommandes))
        m_commandes->button(index)->setVisible(liste);
    m_commandes->updateGeometry();
    m_grille->setEnabled(liste);
    montrerFleches();
    if (cadre) {
        cadre->show();
        garderEnVue();
    } else if (liste)
        m_grille->setFocus();
    else
        m_quitter->setFocus();
}

/// The frame is taller than the commands that it replaces, and must not cover the row that it is about.
void DialogueBordereaux::garderEnVue()
{
    layout()->activate();
    m_grille->scrollTo(m_grille->currentIndex());
}

void DialogueBordereaux::charger()
{
    {
        const controls::Busy sablier;
        m_registre.LoadRegister();
    }
    remplir();
}

void DialogueBordereaux::remplir()
{
    m_titres[0]->setText(m_registre.titre1());
    m_titres[1]->setText(m_registre.titre2());
    m_grille->setRows(m_registre.nbLignes(),
                      [this](int rang, int colonne) { return m_registre.cellule(rang, colonne); });
    montrerCadre(nullptr);
    m_grille->selectRow(m_registre.nbLignes() - 1);
    if (m_registre.nbLignes() == 0)
        surListeVide();
}

void DialogueBordereaux::ouvrirFiltre()
{
    montrerCadre(m_filtre);
    m_filtre->ouvrir();
}

void DialogueBordereaux::filtrer(const FiltreBordereaux& filtre)
{
    const auto refus = [&] {
        const controls::Busy sablier;
        return m_registre.filtrer(filtre);
    }();
    if (montrerSi(this, refus))
        return m_filtre->viser(filtre);
    remplir();
}

void DialogueBordereaux::imprimer()
{
    const int rang = m_grille->currentRow();
    if (rang < 0)
        return;
    ImprimerEtat(this, m_exercice,
                 {.modele = RegistreBordereaux::modele,
                  .formule = m_registre.formule(rang),
                  .tri = {},
                  .remplir = [&](Exercice&) { m_registre.ecrireTextes(rang); },
                  .titre = u"Bordereau"_s});
}

} // namespace talor
