#include "reference/cadre_fiche.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>

namespace talor {

using namespace Qt::StringLiterals;
using controls::MemoField;
using controls::named;
using controls::TextField;

namespace {

constexpr int colonnesGrille = 4; ///< caption and field, twice
constexpr int largeurDemiChamp = 110;

TextField::Kind genre(Saisie saisie)
{
    switch (saisie) {
    case Saisie::Chiffres:
    case Saisie::Numero:
        return TextField::Kind::Digits;
    case Saisie::Initiale:
        return TextField::Kind::FirstCapital;
    case Saisie::Majuscules:
        return TextField::Kind::Capitals;
    default:
        return TextField::Kind::Free;
    }
}

template<class Controle> CadreFiche::Editeur editeurTexte(Controle* controle)
{
    return {controle, [controle] { return controle->text(); },
            [controle](const QString& texte) { controle->setText(texte); }};
}

} // namespace

CadreFiche::CadreFiche(Exercice& exercice, const DescriptionFiche& description, const Options& options)
    : EntryPanel(u"SSFrame1", u"SSPanel2")
    , m_exercice(exercice)
    , m_champs(description.champs)
    , m_chaine(new controls::FieldChain(this))
    , m_defilement(new QScrollArea)
{
    auto* contenu = new QWidget;
    auto* grille = new QGridLayout(contenu);
    grille->setContentsMargins(0, 0, 4, 0);
    grille->setHorizontalSpacing(12);
    grille->setVerticalSpacing(8);
    for (const int colonne : {1, 3}) {
        grille->setColumnStretch(colonne, 1);
        grille->setColumnMinimumWidth(colonne, largeurDemiChamp);
    }
    for (const Champ& champ : m_champs) {
        m_editeurs.append(creerEditeur(champ, options));
        placer(grille, champ, m_editeurs.last().controle);
    }
    if (m_champs.last().saisie != Saisie::Memo)
        grille->setRowStretch(grille->rowCount(), 1);
    enchainer(description);

    m_defilement->setWidget(contenu);
    m_defilement->setWidgetResizable(true);
    m_defilement->setFrameShape(QFrame::NoFrame);
    m_defilement->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_defilement->setFocusPolicy(Qt::NoFocus);
    m_defilement->viewport()->setAutoFillBackground(false);
    contenu->setAutoFillBackground(false);
    m_defilement->setMinimumWidth(contenu->minimumSizeHint().width() +
                                  m_defilement->verticalScrollBar()->sizeHint().width());
    addWide(m_defilement);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* champ) { garderEnVue(champ); });

    QLabel* raccourcis = controls::hintLabel(u"Ctrl+Entrée : OK\nÉchap : Annuler"_s);
    raccourcis->setWordWrap(false);
    addButton(raccourcis);
    QToolButton* ok = addAccept(u"Image1", options.imageOk);
    connect(new QShortcut(Qt::CTRL | Qt::Key_Enter, ok), &QShortcut::activated, ok, &QToolButton::click);
    connect(ok, &QToolButton::clicked, this, &CadreFiche::accepte);
    m_annuler = addCancel(u"Image1", options.imageAnnuler);
    connect(m_annuler, &QAbstractButton::clicked, this, &CadreFiche::abandonne);
}

CadreFiche::Editeur CadreFiche::creerEditeur(const Champ& champ, const Options& options)
{
    if (champ.saisie == Saisie::Choix)
        return champ.choix ? creerListe(champ) : options.fabrique(champ);
    if (champ.saisie == Saisie::Memo)
        return editeurTexte(named(new MemoField(champ.longueur), u"Text1", champ.index));
    return editeurTexte(named(new TextField(genre(champ.saisie), champ.longueur), u"Text1", champ.index));
}

CadreFiche::Editeur CadreFiche::creerListe(const Champ& champ)
{
    auto* liste = named(new QComboBox, u"Combo"_s + QString::number(champ.index));
    // A boat whose shipowner is gone shows none, and keeps its number until another is picked.
    const auto lire = [liste] {
        return (liste->currentIndex() < 0 ? liste->property("num") : liste->currentData()).toString();
    };
    const auto poser = [this, liste, choix = champ.choix](const QString& num) {
        liste->clear();
        for (const EntreeCombo& entree : choix(m_exercice))
            liste->addItem(entree.texte, QString::number(entree.num));
        liste->setProperty("num", num);
        liste->setCurrentIndex(liste->findData(num));
    };
    return {liste, lire, poser};
}

void CadreFiche::placer(QGridLayout* grille, const Champ& champ, QWidget* controle)
{
    if (!champ.demi)
        m_colonneLibre = 0;
    const int ligne = m_colonneLibre == 0 ? grille->rowCount() : grille->rowCount() - 1;
    const bool memo = champ.saisie == Saisie::Memo;
    QLabel* legende = controls::captionLabel(champ.legende, controle);
    legende->setContentsMargins(0, memo ? 6 : 0, 0, 0);
    grille->addWidget(legende, ligne, m_colonneLibre, memo ? Qt::AlignTop : Qt::AlignVCenter);
    grille->addWidget(controle, ligne, m_colonneLibre + 1, 1, champ.demi ? 1 : colonnesGrille - 1);
    if (memo)
        grille->setRowStretch(ligne, 1);
    m_colonneLibre = champ.demi ? (m_colonneLibre + 2) % colonnesGrille : 0;
}

/// The fields that are typed into follow one another by Enter and the arrows; Tab goes through all of them.
void CadreFiche::enchainer(const DescriptionFiche& description)
{
    int derniereLigne = -1; // position of the last field of one line
    for (qsizetype i = 0; i < m_champs.size(); ++i) {
        if (m_champs[i].saisie == Saisie::Choix)
            continue;
        if (m_champs[i].saisie != Saisie::Memo)
            derniereLigne = m_chaine->count();
        m_chaine->add(m_editeurs[i].controle);
    }
    if (!description.enterVaAuMemo)
        m_chaine->onKey(Qt::Key_Return, derniereLigne, [] {});
    for (qsizetype i = 1; i < m_editeurs.size(); ++i)
        setTabOrder(m_editeurs[i - 1].controle, m_editeurs[i].controle);
}

void CadreFiche::garderEnVue(QWidget* champ)
{
    if (champ && m_defilement->widget()->isAncestorOf(champ))
        m_defilement->ensureWidgetVisible(champ, 0, 8);
}

void CadreFiche::ouvrir(const QString& titre, const Fiche& fiche)
{
    setTitle(titre);
    setAccessibleName(titre);
    for (qsizetype i = 0; i < m_champs.size(); ++i)
        m_editeurs[i].poser(fiche.value(QString::fromLatin1(m_champs[i].colonne)));
    m_chaine->goTo(0);
}

void CadreFiche::vider()
{
    for (const Editeur& editeur : m_editeurs)
        editeur.poser({});
}

Fiche CadreFiche::fiche() const
{
    Fiche fiche;
    for (qsizetype i = 0; i < m_champs.size(); ++i)
        fiche[QString::fromLatin1(m_champs[i].colonne)] = m_editeurs[i].lire();
    return fiche;
}

void CadreFiche::viser(const QString& colonne)
{
    for (qsizetype i = 0; i < m_champs.size(); ++i)
        if (QString::fromLatin1(m_champs[i].colonne) == colonne)
            m_editeurs[i].controle->setFocus(Qt::TabFocusReason);
}

} // namespace talor
