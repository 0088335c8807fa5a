#include "sales/j_vente.h"

#include "core/jouer.h"
#include "core/montrer.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/grid.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "reference/q_selection.h"
#include "sales/cadre_frais.h"
#include "sales/cadre_ligne.h"
#include "sales/listes_choix.h"
#include "sales/pave_chiffres.h"
#include "sales/vue_totaux.h"
#include "tools/calclette.h"

#include <QBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

/// Meaning of the indexes of `Crecettes`.
enum Action
{
    Nouveau,
    Corriger,
    Supprimer,
    Quitter
};

constexpr QSize tailleVoulue(1350, 725);

} // namespace

void j_vente::saisir(QWidget* parent, Exercice& exercice, const DemandeSaisie& demande)
{
    SaisieBordereau saisie(exercice, demande);
    if (!montrerSi(parent, saisie.ouvrir()))
        j_vente(exercice, std::move(saisie), parent).exec();
}

j_vente::j_vente(Exercice& exercice, SaisieBordereau saisie, QWidget* parent)
    : Dialog(u"j_vente", u"Journal des ventes"_s, parent)
    , m_exercice(exercice)
    , m_saisie(std::move(saisie))
    , m_grille(named(new controls::Grid, u"Grid1"))
    , m_totaux(new VueTotaux)
    , m_volets(new QStackedWidget)
    , m_dessous(new QStackedWidget)
    , m_cadre(new CadreLigne(m_saisie))
    , m_listes(new ListesChoix(m_saisie))
    , m_pave(new PaveChiffres)
    , m_frais(new CadreFrais(m_saisie))
    , m_commandes(new controls::CommandBar)
{
    auto* legende = named(new QLabel(m_saisie.legende()), u"Label1", 8);
    auto* entete = named(new QLabel(m_saisie.entete()), u"Label1", 10);
    for (QLabel* label : {legende, entete}) {
        controls::setRole(label, controls::Role::Subtitle);
        band()->addWidget(label);
    }
    legende->setContentsMargins(0, 0, 24, 0);

    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(12);
    rangee->addWidget(creerLignes(), 3);
    rangee->addWidget(creerSaisie(), 2);
    body()->addLayout(rangee, 1);
    creerCommandes();
    brancherCadres();
    m_cadre->hide();
    ShowCommands();
    afficherTotaux();
    resize(tailleVoulue);
    if (m_saisie.nbLignes() == 0)
        nouvelle();
    else
        m_grille->setFocus();
}

QWidget* j_vente::creerLignes()
{
    m_grille->setAccessibleName(u"Lignes du bordereau"_s);
    m_grille->setColumns({{u"N°"_s, 730, Qt::AlignHCenter},
                          {u"Client"_s, 2000, Qt::AlignLeft, true},
                          {u"Poisson"_s, 1670},
                          {u"Cas."_s, 700, Qt::AlignHCenter},
                          {u"Poids"_s, 950, Qt::AlignRight},
                          {u"P.U."_s, 1070, Qt::AlignRight},
                          {u"Montant"_s, 1400, Qt::AlignRight}});
    m_grille->setRows(m_saisie.nbLignes(), [this](int rang, int colonne) { return m_saisie.cellule(rang, colonne); });
    connect(m_grille, &controls::Grid::rowSelected, this, [this](int rang) {
        if (rang >= 0)
            m_saisie.selectionner(rang);
    });
    connect(m_grille, &controls::Grid::rowActivated, this, &j_vente::corriger);
    m_grille->selectRow(0);

    auto* panneau = new QWidget;
    auto* colonne = new QVBoxLayout(panneau);
    colonne->setContentsMargins({});
    colonne->setSpacing(8);
    colonne->addWidget(m_grille, 1);
    colonne->addWidget(m_totaux);
    return panneau;
}

QWidget* j_vente::creerSaisie()
{
    m_dessous->addWidget(m_listes);
    m_dessous->addWidget(m_pave);
    auto* ligne = new QWidget;
    auto* colonne = new QVBoxLayout(ligne);
    colonne->setContentsMargins({});
    colonne->setSpacing(8);
    colonne->addWidget(m_cadre);
    colonne->addWidget(m_dessous, 1);
    m_volets->addWidget(ligne);
    m_volets->addWidget(m_frais);
    return m_volets;
}

void j_vente::creerCommandes()
{
    m_commandes->add(Nouveau, u"nouveau", u"Nouveau"_s, Qt::Key_Insert);
    m_commandes->add(Corriger, u"modifier", u"Corriger"_s, Qt::Key_F2);
    m_commandes->add(Supprimer, u"supprimer", u"Supprimer"_s, Qt::Key_Delete);
    m_commandes->addStretch();
    auto* quitter = m_commandes->add(Quitter, u"quitter", u"Quitter"_s);
    commands()->addWidget(m_commandes);
    connect(m_commandes, &controls::CommandBar::triggered, this, &j_vente::executer);
    setCancel({m_frais->abandonner(), m_pave->abandonner(), m_cadre->abandonner(), quitter});
}

void j_vente::brancherCadres()
{
    connect(m_cadre, &CadreLigne::acceptee, this, &j_vente::enregistrer);
    connect(m_cadre, &CadreLigne::abandonnee, this, &j_vente::abandonner);
    connect(m_cadre, &CadreLigne::paveDemande, this, &j_vente::ouvrirPave);
    connect(m_cadre, &CadreLigne::choixEnMain, m_listes, &ListesChoix::montrer);
    connect(m_cadre, &CadreLigne::choisi, this, [this](ChoixLigne choix, int rang) {
        m_listes->marquer(choix, rang);
        m_pave->montrerNom(choix, m_cadre->nom(choix));
    });
    connect(m_listes, &ListesChoix::touche, this, [this](ChoixLigne choix, int rang) {
        m_cadre->prendre(choix, rang);
        m_cadre->viser(choix == ChoixClient ? ChampPoisson : ChampCageots);
    });
    for (const ChoixLigne choix : {ChoixClient, ChoixPoisson}) {
        m_listes->marquer(choix, 0);
        m_pave->montrerNom(choix, m_cadre->nom(choix));
    }

    connect(m_pave, &PaveChiffres::choixDemande, this, &j_vente::demanderChoix);
    connect(m_pave, &PaveChiffres::abandonne, this, &j_vente::fermerPave);
    connect(m_pave, &PaveChiffres::accepte, this,
            [this](const QString& cageots, const QString& poids, const QString& pu) {
                m_cadre->poserQuantites(cageots, poids, pu);
                fermerPave();
            });

    connect(m_totaux, &VueTotaux::primesSaisies, this, [this](const QString& texte) { m_saisie.saisirPrimes(texte); });
    connect(m_totaux, &VueTotaux::tauxSaisi, this, [this](const QString& texte) { m_saisie.saisirTaux(texte); });
    connect(m_totaux, &VueTotaux::padDemande, this, &j_vente::demanderPrimes);
    connect(m_totaux, &VueTotaux::fraisDemandes, this, &j_vente::ouvrirFrais);

    connect(m_frais, &CadreFrais::abandonne, this, &j_vente::fermerFrais);
    connect(m_frais, &CadreFrais::accepte, this, [this] {
        m_saisie.accepterFrais();
        fermerFrais();
        JouerTouche(m_exercice);
    });
    connect(m_frais, &CadreFrais::effacementDemande, this, [this] {
        m_saisie.effacerFrais();
        fermerFrais();
        JouerTouche(m_exercice);
    });
}

/// The first line is selected, and the last ones are in view.
void j_vente::showEvent(QShowEvent* event)
{
    Dialog::showEvent(event);
    m_grille->scrollToEnd();
}

// --- Lines -----------------------------------------------------------------------------------------------------------

void j_vente::executer(int index)
{
    switch (index) {
    case Nouveau:
        return nouvelle();
    case Corriger:
        return corriger();
    case Supprimer:
        return supprimer();
    case Quitter:
        return quitter();
    }
}

void j_vente::nouvelle()
{
    m_saisie.nouvelleLigne();
    m_cadre->viderQuantites();
    ouvrirSaisie(u"NOUVEL ACHAT"_s);
}

void j_vente::corriger()
{
    if (m_saisie.nbLignes() == 0)
        return;
    if (const auto ligne = m_saisie.LoadLineForCorrection())
        m_cadre->remplir(*ligne);
    ouvrirSaisie(u"MODIFICATION"_s);
}

void j_vente::supprimer()
{
    if (m_saisie.nbLignes() == 0 || !confirmer(this, m_saisie.confirmationSuppression()))
        return;
    const int rang = m_saisie.selection();
    m_saisie.DeleteLine();
    m_grille->removeRow(rang);
    m_grille->refresh();
    m_grille->setEnabled(m_saisie.nbLignes() > 0);
    m_grille->selectRow(m_saisie.nbLignes() > 0 ? 0 : -1);
    afficherTotaux();
}

void j_vente::quitter()
{
    m_saisie.SaveBordereau();
    leave();
}

void j_vente::enregistrer()
{
    if (!m_cadre->prendreFrappe())
        return;
    const SaisieLigne ligne = m_cadre->ligne();
    const bool nouvelle = m_saisie.modeLigne() == ModeLigne::Nouvelle;
    const Resultat<LigneAcquise> acquise = m_saisie.SaveLine(ligne);
    if (!acquise)
        return montrer(this, acquise.refus());
    m_cadre->montrerMontant(ligne.texteMontant());
    if (nouvelle)
        m_grille->appendRow();
    else
        m_grille->refreshRow(acquise->rang);
    m_grille->scrollToEnd();
    m_grille->selectRow(acquise->rang);
    afficherTotaux();
    if (nouvelle)
        Jouer(m_exercice, m_exercice.installation().chemin(u"caisse.wav"_s));
    montrer(this, acquise->message);
    m_cadre->montrerMontant({});
    if (!nouvelle)
        return abandonner();
    m_cadre->viderQuantites();
    m_cadre->viser(ChampClient);
}

void j_vente::abandonner()
{
    m_saisie.abandonnerLigne();
    m_cadre->hide();
    ShowCommands();
    if (m_grille->isEnabled())
        m_grille->setFocus();
    else
        m_commandes->button(Nouveau)->setFocus();
}

// --- States ----------------------------------------------------------------------------------------------------------

bool j_vente::enSaisie() const
{
    return !m_cadre->isHidden();
}

void j_vente::ShowCommands()
{
    montrerCommandes(true);
}

void j_vente::HideCommands()
{
    montrerCommandes(false);
}

void j_vente::montrerCommandes(bool montrees)
{
    m_commandes->setVisible(montrees);
    m_totaux->boutonFrais()->setVisible(montrees);
    m_listes->setEnabled(!montrees);
    m_grille->setEnabled(montrees && m_saisie.nbLignes() > 0);
}

void j_vente::ouvrirSaisie(const QString& titre)
{
    m_cadre->setTitre(titre);
    HideCommands();
    m_cadre->show();
    m_cadre->viser(ChampClient);
}

void j_vente::ouvrirPave()
{
    m_listes->setEnabled(false);
    m_cadre->setEnabled(false);
    m_dessous->setCurrentWidget(m_pave);
    m_pave->ouvrir();
}

void j_vente::fermerPave()
{
    m_dessous->setCurrentWidget(m_listes);
    m_listes->setEnabled(true);
    m_cadre->setEnabled(true);
    m_cadre->viser(ChampPU);
    JouerTouche(m_exercice);
}

void j_vente::demanderChoix(int choix)
{
    const auto pris =
        choix == ChoixClient ? Q_Client::demander(this, m_exercice) : Q_Poisson::demander(this, m_exercice);
    if (pris)
        m_cadre->prendreOrdre(static_cast<ChoixLigne>(choix), pris->ordre);
}

void j_vente::ouvrirFrais()
{
    if (m_volets->currentWidget() == m_frais || !m_cadre->isEnabled())
        return;
    HideCommands();
    m_listes->setEnabled(false);
    m_volets->setCurrentWidget(m_frais);
    m_frais->ouvrir();
}

/// Back to the lines, or to the line that was being entered.
void j_vente::fermerFrais()
{
    m_volets->setCurrentIndex(0);
    afficherTotaux();
    if (enSaisie()) {
        HideCommands();
        m_cadre->viser(ChampClient);
    } else {
        abandonner();
    }
}

void j_vente::demanderPrimes()
{
    const PanneauTotaux& totaux = m_saisie.totaux();
    if (const auto valeurs = Calclette::demanderPrimes(this, m_exercice, {totaux.primes, totaux.taux})) {
        m_saisie.prendrePrimesEtTaux(valeurs->primes, valeurs->taux);
        afficherTotaux();
    }
}

void j_vente::afficherTotaux()
{
    m_totaux->afficher(m_saisie.totaux());
}

} // namespace talor
