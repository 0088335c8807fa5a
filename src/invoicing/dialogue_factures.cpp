#include "invoicing/dialogue_factures.h"

#include "core/montrer.h"
#include "invoicing/cadre_filtre_factures.h"
#include "invoicing/cadre_impression.h"
#include "invoicing/invoice_print.h"
#include "platform/controls/busy.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/grid.h"
#include "platform/controls/labels.h"
#include "platform/controls/named.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QShortcut>

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;
using Porte = RegistreFactures::Porte;

namespace {

const QList<controls::Column> colonnes = {
    {u"N°"_s, 710, Qt::AlignRight},           {u"Date"_s, 1200},
    {u"Client"_s, 2380, Qt::AlignLeft, true}, {u"Téléphone"_s, 1310},
    {u"Cas."_s, 480, Qt::AlignRight},         {u"Poisson"_s, 1180, Qt::AlignRight},
    {u"Consigne"_s, 1160, Qt::AlignRight},    {u"Total"_s, 1180, Qt::AlignRight},
    {u"Règl"_s, 560, Qt::AlignHCenter},       {u"Impr"_s, 560, Qt::AlignHCenter}};

/// A caption as narrow as its longest word.
QLabel* surDeuxLignes(const QString& texte)
{
    QLabel* legende = controls::captionLabel(texte);
    legende->setWordWrap(true);
    int largeur = 0;
    for (const QString& mot : texte.split(u' '))
        largeur = std::max(largeur, legende->fontMetrics().horizontalAdvance(mot));
    legende->setFixedWidth(largeur + 4);
    return legende;
}

} // namespace

DialogueFactures::DialogueFactures(QStringView nom, const QString& titre, Exercice& exercice, Porte porte,
                                   const QString& jour, QWidget* parent)
    : Dialog(nom, titre, parent)
    , m_exercice(exercice)
    , m_registre(exercice, porte, jour)
    , m_liste(named(new controls::Grid, u"Grid1"))
    , m_filtre(new CadreFiltreFactures(exercice, m_registre, porte, jour))
    , m_impression(new CadreImpression)
    , m_commandes(new controls::CommandBar(u"Image1"_s))
{
    body()->addWidget(creerTitres());
    creerListe();
    body()->addWidget(creerSommes());
    body()->addWidget(creerMarques());
    creerCommandes();
    montrerListe();
}

// --- What it is made of ----------------------------------------------------------------------------------------------

QWidget* DialogueFactures::creerTitres()
{
    auto* titres = new QWidget;
    auto* ligne = new QHBoxLayout(titres);
    ligne->setContentsMargins({});
    for (int i = 0; i < 2; ++i) {
        QLabel* etiquette = named(controls::sectionLabel(), u"Label4", i);
        etiquette->setTextFormat(Qt::PlainText);
        ligne->addWidget(etiquette, i);
        m_titres[i] = etiquette;
    }
    m_titres[1]->setWordWrap(true);
    m_titres[1]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return titres;
}

/// The frames lie in the list's own cell: it neither moves nor shrinks when one opens.
void DialogueFactures::creerListe()
{
    m_liste->setAccessibleName(u"Factures"_s);
    m_liste->setColumns(colonnes);
    m_liste->setMark([this](int rang) { return m_registre.estMarquee(rang); });
    m_liste->setEmptyText(u"Aucune facture"_s);
    auto* pile = new QGridLayout;
    pile->addWidget(m_liste, 0, 0);
    for (QWidget* cadre : {static_cast<QWidget*>(m_filtre), static_cast<QWidget*>(m_impression)}) {
        pile->addWidget(cadre, 0, 0, Qt::AlignCenter);
        cadre->hide();
    }
    constexpr int marge = 16;
    pile->setRowMinimumHeight(0, m_filtre->sizeHint().height() + marge);
    body()->addLayout(pile, 1);

    connect(m_liste, &controls::Grid::rowActivated, this, &DialogueFactures::basculer);
    connect(m_filtre, &CadreFiltreFactures::accepte, this, &DialogueFactures::appliquer);
    connect(m_filtre, &CadreFiltreFactures::abandonne, this, [this] { fermerCadre(m_filtre); });
    connect(m_impression, &CadreImpression::accepte, this, &DialogueFactures::PrintChoice);
    connect(m_impression, &CadreImpression::abandonne, this, [this] { fermerCadre(m_impression); });
}

QWidget* DialogueFactures::creerSommes()
{
    auto* sommes = new QWidget;
    auto* grille = new QGridLayout(sommes);
    grille->setContentsMargins({});
    grille->setHorizontalSpacing(8);
    grille->setVerticalSpacing(2);
    grille->setColumnStretch(0, 1);
    m_nombre = named(controls::captionLabel({}), u"Label4");
    grille->addWidget(m_nombre, 1, 0);
    const QString legendes[] = {u"Poisson"_s, u"Consigne"_s, u"Total"_s};
    for (int i = 0; i < 3; ++i) {
        m_sommes[i] = named(i == 2 ? controls::totalLabel() : controls::valueLabel(), u"Label3", i);
        m_sommes[i]->setMinimumWidth(0); // never narrower than its figures
        grille->addWidget(controls::captionLabel(legendes[i], m_sommes[i]), 0, i + 1, Qt::AlignRight);
        grille->addWidget(m_sommes[i], 1, i + 1);
        grille->setColumnMinimumWidth(i + 1, 120);
    }
    return sommes;
}

QWidget* DialogueFactures::creerMarques()
{
    struct Marque
    {
        QString image, legende;
        QKeySequence raccourci;
        int lettre; ///< place in the caption of the letter that works with Alt
    };
    const Marque marques[] = {{u"ok"_s, u"Marquer"_s, Qt::Key_Plus, 0},
                              {u"annuler"_s, u"Démarquer"_s, Qt::Key_Minus, 0},
                              {u"annuler"_s, u"Aucune"_s, Qt::CTRL | Qt::SHIFT | Qt::Key_A, 1},
                              {u"ok"_s, u"Toutes"_s, Qt::CTRL | Qt::Key_A, 0}};
    auto* panneau = new QWidget;
    auto* ligne = new QHBoxLayout(panneau);
    ligne->setContentsMargins({});
    ligne->setSpacing(6);
    for (int i = 0; i < 4; ++i) {
        if (i == 2)
            ligne->addStretch();
        if (i % 2 == 0)
            ligne->addWidget(surDeuxLignes(i == 0 ? u"Sélection Individuelle"_s : u"Sélection Globale"_s));
        auto* bouton = named(new controls::CommandButton(marques[i].image, marques[i].legende), u"Image3", i);
        bouton->setCompact();
        bouton->setMnemonic(marques[i].lettre);
        bouton->setCommandShortcut(marques[i].raccourci);
        ligne->addWidget(bouton);
        m_marques.append(bouton);
    }
    connect(m_marques[0], &QToolButton::clicked, this, [this] { marquer(true); });
    connect(m_marques[1], &QToolButton::clicked, this, [this] { marquer(false); });
    connect(m_marques[2], &QToolButton::clicked, this, [this] { marquerTout(false); });
    connect(m_marques[3], &QToolButton::clicked, this, [this] { marquerTout(true); });
    auto* blanc = new QShortcut(Qt::Key_Space, m_liste);
    blanc->setContext(Qt::WidgetShortcut);
    connect(blanc, &QShortcut::activated, this, [this] { basculer(m_liste->currentRow()); });
    return panneau;
}

void DialogueFactures::creerCommandes()
{
    m_commandes->add(Filtre, u"filtre", u"Filtre"_s, Qt::CTRL | Qt::Key_F);
    m_commandes->add(Facture, u"imprimer", u"Facture"_s, QKeySequence::Print)->setPrimary();
    m_commandes->add(Listing, u"liste", u"Listing"_s, Qt::CTRL | Qt::Key_L);
    m_commandes->addStretch();
    auto* quitter = m_commandes->add(Quitter, u"quitter", u"Quitter"_s);
    commands()->addWidget(m_commandes);
    setCancel({m_filtre->annuler(), m_impression->annuler(), quitter});
    connect(m_commandes, &controls::CommandBar::triggered, this, &DialogueFactures::executer);
}

controls::CommandButton* DialogueFactures::commande(Commande index) const
{
    return m_commandes->button(index);
}

// --- The list --------------------------------------------------------------------------------------------------------

/// Room for long names and a few rows more, where the screen has it.
QSize DialogueFactures::sizeHint() const
{
    return Dialog::sizeHint() + QSize(180, 50);
}

void DialogueFactures::showEvent(QShowEvent* event)
{
    Dialog::showEvent(event);
    if (!focusWidget() || !focusWidget()->isVisible())
        viserListe();
}

void DialogueFactures::montrerListe()
{
    m_titres[0]->setText(m_registre.titre1());
    m_titres[1]->setText(m_registre.titre2());
    m_liste->setRows(m_registre.nbLignes(),
                     [this](int rang, int colonne) { return m_registre.cellule(rang, colonne); });
    m_liste->selectRow(0);
    m_sommes[0]->setText(m_registre.sommeTotalHT());
    m_sommes[1]->setText(m_registre.sommeConsigne());
    m_sommes[2]->setText(m_registre.sommeTotal());
    m_nombre->setText(m_registre.nombreTotal());
    montrerCadre(nullptr, false);
}

/// The list with its commands, or a frame over a list at rest.
void DialogueFactures::montrerCadre(QWidget* cadre, bool ouvert)
{
    const bool libre = !ouvert, remplie = m_registre.nbLignes() > 0;
    if (cadre)
        cadre->setVisible(ouvert);
    m_liste->setEnabled(libre && remplie);
    for (controls::CommandButton* marque : m_marques)
        marque->setEnabled(libre && remplie);
    m_commandes->setAllEnabled(libre);
    m_commandes->button(Facture)->setEnabled(libre && remplie);
    m_commandes->button(Listing)->setEnabled(libre && remplie);
}

void DialogueFactures::fermerCadre(QWidget* cadre)
{
    montrerCadre(cadre, false);
    viserListe();
}

void DialogueFactures::viserListe()
{
    if (m_liste->isEnabled())
        m_liste->setFocus();
    else
        m_commandes->button(Filtre)->setFocus(Qt::TabFocusReason);
}

void DialogueFactures::executer(int index)
{
    switch (index) {
    case Filtre:
        montrerCadre(m_filtre, true);
        return m_filtre->ouvrir();
    case Facture:
        return ouvrirImpression();
    case Listing:
        ImprimerEtat(this, m_exercice, etatListing(m_registre));
        return;
    case Quitter:
        return leave();
    }
}

void DialogueFactures::appliquer(const FiltreFactures& filtre)
{
    const std::optional<Refus> refus = [&] {
        const controls::Busy sablier;
        return m_registre.ApplyFilter(filtre);
    }();
    if (refus) {
        montrer(this, *refus);
        return m_filtre->viserFaute();
    }
    montrerListe();
    fermerCadre(m_filtre);
}

// --- Marks -----------------------------------------------------------------------------------------------------------

void DialogueFactures::basculer(int rang)
{
    if (rang < 0)
        return;
    m_registre.marquer(rang, !m_registre.estMarquee(rang));
    m_liste->refreshRow(rang);
}

void DialogueFactures::marquer(bool marquee)
{
    const int rang = m_liste->currentRow();
    if (rang < 0)
        return;
    m_registre.marquer(rang, marquee);
    m_liste->refreshRow(rang);
}

void DialogueFactures::marquerTout(bool marquee)
{
    m_registre.marquerTout(marquee);
    m_liste->refresh();
}

// --- Prints ----------------------------------------------------------------------------------------------------------

void DialogueFactures::ouvrirImpression()
{
    const int rang = m_liste->currentRow();
    const Resultat<QList<int>> marquees = m_registre.lignesMarquees();
    montrerCadre(m_impression, true);
    m_impression->ouvrir(marquees ? static_cast<int>(marquees->size()) : 0,
                         u"N° "_s + m_registre.cellule(rang, ColFactNumero) + u", "_s +
                             m_registre.cellule(rang, ColFactClient).trimmed());
}

/// What cannot be laid out is told, and the others are printed; a batch given up prints nothing.
void DialogueFactures::PrintChoice()
{
    if (TestImprimante(this) != 0)
        return;
    const Resultat<QList<int>> rangs =
        m_impression->lignesMarquees() ? m_registre.lignesMarquees() : QList<int>{m_liste->currentRow()};
    if (!rangs) {
        montrer(this, rangs.refus());
        return m_impression->viserLignes();
    }
    const LotFactures lot = composer(*rangs);
    for (const Refus& refus : lot.refus)
        montrer(this, refus);
    if (lot.document.pageCount() > 0)
        ImprimerDocument(this, lot.document, m_impression->destination());
}

LotFactures DialogueFactures::composer(const QList<int>& rangs)
{
    const controls::Busy sablier;
    controls::Progress barre(this, u"Mise en page des factures…"_s, static_cast<int>(rangs.size()));
    return ComposerFactures(m_exercice, m_registre, rangs, m_impression->genre(),
                            [&](int faits, int) { return barre.advance(faits); });
}

} // namespace talor
