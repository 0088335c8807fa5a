#include "reference/dialogue_fiches.h"

#include "core/composer.h"
#include "core/montrer.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/grid.h"
#include "platform/controls/message.h"
#include "platform/controls/named.h"

#include <QBoxLayout>

namespace talor {

using namespace Qt::StringLiterals;
using controls::Message;
using controls::named;

namespace {

QList<controls::Column> colonnesGrille(const DescriptionFiche& description)
{
    QList<controls::Column> colonnes;
    for (const Colonne& colonne : description.colonnes)
        colonnes.append(
            {colonne.titre, colonne.largeur, colonne.centree ? Qt::AlignHCenter : Qt::AlignLeft, colonne.etiree});
    return colonnes;
}

void garderLaPlace(QWidget* bouton)
{
    QSizePolicy place = bouton->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    bouton->setSizePolicy(place);
}

} // namespace

DialogueFiches::DialogueFiches(QStringView nom, Exercice& exercice, const DescriptionFiche& description,
                               const QList<Commande>& commandes, const CadreFiche::Options& cadre, QWidget* parent)
    : Dialog(nom, description.titre, parent)
    , m_fiches(exercice, description)
    , m_grille(named(new controls::Grid, u"Grid1"))
    , m_commandes(new controls::CommandBar)
    , m_cadre(new CadreFiche(exercice, description, cadre))
    , m_rangee(new QHBoxLayout)
    , m_fleches(new QWidget)
{
    m_grille->setColumns(colonnesGrille(description));
    m_cadre->hide();
    m_rangee->setSpacing(12);
    m_rangee->addWidget(m_grille, 2);
    m_rangee->addWidget(m_fleches);
    const bool avecMemo = description.champs.last().saisie == Saisie::Memo;
    m_rangee->addWidget(m_cadre, 3, avecMemo ? Qt::Alignment() : Qt::AlignTop);
    creerFleches();
    body()->addLayout(m_rangee, 1);

    m_commandes->add(Nouveau, u"nouveau", u"Nouveau"_s, Qt::Key_Insert);
    m_commandes->add(Modifier, u"modifier", u"Modifier"_s, Qt::Key_F2);
    m_commandes->add(Supprimer, u"supprimer", u"Supprimer"_s, Qt::Key_Delete);
    for (const Commande& commande : commandes)
        m_commandes->add(commande.index, commande.icone, commande.legende, commande.raccourci);
    m_commandes->addStretch();
    auto* quitter = m_commandes->add(Quitter, u"quitter", u"Quitter"_s);
    this->commands()->addWidget(m_commandes);
    setCancel({m_cadre->annuler(), quitter});

    connect(m_commandes, &controls::CommandBar::triggered, this, &DialogueFiches::executer);
    connect(m_grille, &controls::Grid::rowActivated, this, &DialogueFiches::modifier);
    connect(m_cadre, &CadreFiche::accepte, this, &DialogueFiches::enregistrer);
    connect(m_cadre, &CadreFiche::abandonne, this, &DialogueFiches::fermerSaisie);
    remplir(Classement::OrdreAlphabetique);
}

/// Room for the list whole, and for the entry frame beside a good part of it.
QSize DialogueFiches::tailleVoulue() const
{
    constexpr int hauteur = 600;
    constexpr int listePendantSaisie = 360;
    const QSize liste = sizeHint();
    return {qMax(liste.width(), m_cadre->sizeHint().width() + listePendantSaisie), qMax(liste.height(), hauteur)};
}

void DialogueFiches::creerFleches()
{
    m_haut = named(controls::iconButton(u"monter", u"Haut"_s, Qt::ALT | Qt::Key_Up), u"Haut");
    m_bas = named(controls::iconButton(u"descendre", u"Bas"_s, Qt::ALT | Qt::Key_Down), u"Bas");
    auto* colonne = new QVBoxLayout(m_fleches);
    colonne->setContentsMargins({});
    for (QToolButton* fleche : {m_haut, m_bas}) {
        garderLaPlace(fleche);
        colonne->addWidget(fleche);
    }
    colonne->addStretch();
    m_fleches->setVisible(m_fiches.description().colonnesEchangees > 0);
    connect(m_haut, &QToolButton::clicked, this, [this] { echanger(true); });
    connect(m_bas, &QToolButton::clicked, this, [this] { echanger(false); });
    connect(m_grille, &controls::Grid::rowSelected, this, &DialogueFiches::montrerFleches);
}

void DialogueFiches::montrerFleches()
{
    const int ligne = m_grille->currentRow();
    m_haut->setVisible(ligne > 0);
    m_bas->setVisible(ligne >= 0 && ligne < m_fiches.nombre() - 1);
}

void DialogueFiches::echanger(bool versLeHaut)
{
    const int ligne = m_grille->currentRow();
    const int voisine = versLeHaut ? ligne - 1 : ligne + 1;
    if (versLeHaut)
        m_fiches.monter(ligne);
    else
        m_fiches.descendre(ligne);
    m_grille->refreshRow(ligne);
    m_grille->refreshRow(voisine);
    m_grille->selectRow(voisine);
}

void DialogueFiches::remplir(Classement classement)
{
    m_fiches.remplir(classement);
    m_grille->setRows(m_fiches.nombre(), [this](int ligne, int colonne) { return m_fiches.cellule(ligne, colonne); });
    m_grille->setEnabled(m_fiches.nombre() > 0);
    m_grille->selectRow(0);
    montrerFleches();
}

void DialogueFiches::showEvent(QShowEvent* event)
{
    const bool premiere = !std::exchange(m_ouvert, true);
    if (premiere)
        resize(tailleVoulue());
    Dialog::showEvent(event);
    if (!premiere)
        return;
    m_grille->setFocus();
    if (m_fiches.nombre() == 0)
        QMetaObject::invokeMethod(this, &DialogueFiches::ouvrirPremiereFiche, Qt::QueuedConnection);
}

void DialogueFiches::ouvrirPremiereFiche()
{
    montrerSi(this, m_fiches.description().invitation);
    nouvelle();
}

void DialogueFiches::executer(int index)
{
    switch (index) {
    case Nouveau:
        return nouvelle();
    case Modifier:
        return modifier();
    case Supprimer:
        return supprimer();
    case Quitter:
        return quitter();
    }
}

void DialogueFiches::surSaisie(bool) {}

/// The list with its commands, or the entry frame beside a list at rest.
void DialogueFiches::montrerSaisie(bool enCours)
{
    // What makes room goes before what takes it, or the window would grow to hold both.
    if (!enCours)
        m_cadre->hide();
    m_grille->setEnabled(!enCours && m_fiches.nombre() > 0);
    m_commandes->setVisible(!enCours);
    m_fleches->setVisible(!enCours && m_fiches.description().colonnesEchangees > 0);
    surSaisie(enCours);
    if (enCours)
        m_cadre->show();
    montrerFleches();
}

void DialogueFiches::ouvrirSaisie(const QString& titre, const Fiche& fiche)
{
    montrerSaisie(true);
    m_cadre->ouvrir(titre, fiche);
}

void DialogueFiches::fermerSaisie()
{
    m_ligneEnSaisie.reset();
    m_cadre->vider();
    montrerSaisie(false);
    if (m_grille->isEnabled())
        m_grille->setFocus();
    else
        m_commandes->button(Nouveau)->setFocus();
}

void DialogueFiches::nouvelle()
{
    m_ligneEnSaisie.reset();
    ouvrirSaisie(m_fiches.description().titreNouveau, m_fiches.vierge());
}

void DialogueFiches::modifier()
{
    const int ligne = m_grille->currentRow();
    if (ligne < 0)
        return;
    const Resultat<Fiche> fiche = m_fiches.lire(ligne);
    if (!fiche)
        return montrer(this, fiche.refus());
    m_ligneEnSaisie = ligne;
    ouvrirSaisie(m_fiches.description().titreModification, *fiche);
}

void DialogueFiches::enregistrer()
{
    const Fiche fiche = m_cadre->fiche();
    if (const auto faute = m_fiches.verifier(fiche, m_ligneEnSaisie)) {
        montrer(this, faute->refus);
        return m_cadre->viser(faute->colonne);
    }
    const Resultat<int> place = m_fiches.enregistrer(fiche, m_ligneEnSaisie);
    if (!place)
        return montrer(this, place.refus());
    if (m_ligneEnSaisie)
        m_grille->refreshRow(*place);
    else
        m_grille->appendRow();
    fermerSaisie();
    m_grille->selectRow(*place);
}

void DialogueFiches::supprimer()
{
    const int ligne = m_grille->currentRow();
    if (ligne < 0 || montrerSi(this, m_fiches.empechement(ligne)))
        return;
    if (!Message::confirm(this, u"Confirmer supression de ligne N° "_s + QString::number(ligne + 1)))
        return;
    if (montrerSi(this, m_fiches.supprimer(ligne)))
        return;
    m_grille->removeRow(ligne);
    m_grille->setEnabled(m_fiches.nombre() > 0);
    m_grille->selectRow(qMin(ligne, m_fiches.nombre() - 1));
    montrerFleches();
    if (m_fiches.nombre() == 0)
        m_commandes->button(Nouveau)->setFocus();
}

void DialogueFiches::quitter()
{
    for (const QString& numero : m_fiches.numerosRepetes())
        montrer(this, {u"N°  "_s + numero + u"  répété"_s});
    leave();
}

void DialogueFiches::appeler()
{
    const int ligne = m_grille->currentRow();
    if (ligne < 0)
        return;
    const Resultat<Fiche> fiche = m_fiches.lire(ligne);
    if (!fiche)
        return montrer(this, fiche.refus());
    const QString telephone = fiche->value(u"tel"_s).trimmed();
    if (!telephone.isEmpty())
        Composer(this, telephone);
}

} // namespace talor
