#include "sales/cadre_frais.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/number_pad.h"
#include "platform/controls/text_field.h"

#include <QBoxLayout>
#include <QGridLayout>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;
using controls::TextField;

namespace {

/// Meaning of the indexes of `Image1` that stand in this frame.
enum Bouton
{
    Abandonner = 2,
    Accepter = 3,
    EffacerDernier = 6,
    ToutEffacer = 8
};

constexpr int longueurLibelle = 50;
constexpr int longueurMontant = 12;
constexpr int largeurLibelle = 158;
constexpr int largeurMontant = 108;

} // namespace

CadreFrais::CadreFrais(SaisieBordereau& saisie, QWidget* parent)
    : QFrame(parent)
    , m_saisie(saisie)
    , m_total(named(controls::totalLabel(), u"Label1", 9))
    , m_pave(new controls::NumberPad({u"SSCommand10"_s, u"Label4"_s, u"Image1(%1)"_s.arg(EffacerDernier)}))
    , m_chaineLibelles(new controls::FieldChain(this))
    , m_chaineMontants(new controls::FieldChain(this))
{
    named(this, u"SSFrame2");
    controls::setRole(this, controls::Role::Panel);
    auto* colonnes = new QHBoxLayout;
    colonnes->setSpacing(8);
    colonnes->addWidget(creerLignes(), 1);
    colonnes->addWidget(m_pave, 0, Qt::AlignTop);

    auto* colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(12, 10, 12, 10);
    colonne->setSpacing(8);
    colonne->addWidget(controls::sectionLabel(u"Autres Frais"_s));
    colonne->addLayout(colonnes);
    colonne->addStretch();
    colonne->addWidget(creerPied());
    enchainer();
}

QWidget* CadreFrais::creerLignes()
{
    auto* panneau = new QWidget;
    auto* grille = new QGridLayout(panneau);
    grille->setContentsMargins({});
    grille->setHorizontalSpacing(4);
    grille->setVerticalSpacing(3);
    grille->setColumnStretch(0, 1);
    for (int i = 0; i < SaisieBordereau::nbFrais; ++i) {
        m_libelles[i] = named(new TextField(TextField::Kind::Free, longueurLibelle), u"Text2", i + 1);
        m_libelles[i]->setAccessibleName(u"Libellé %1"_s.arg(i + 1));
        m_montants[i] = named(new TextField(TextField::Kind::Amount, longueurMontant), u"Text3", i + 1);
        m_montants[i]->setAccessibleName(u"Montant %1"_s.arg(i + 1));
        m_libelles[i]->setMinimumWidth(largeurLibelle);
        m_montants[i]->setFixedWidth(largeurMontant);
        QLabel* marque = controls::markLabel();
        m_pave->serve(m_montants[i], marque);
        connect(m_libelles[i], &TextField::textChanged, this,
                [this, i](const QString& texte) { m_saisie.saisirLibelle(i, texte); });
        connect(m_montants[i], &TextField::textChanged, this, [this, i](const QString& texte) {
            m_saisie.saisirMontant(i, texte);
            montrerTotal();
        });
        connect(m_libelles[i], &TextField::entered, this, [this, i] { m_pave->turnTo(i); });
        grille->addWidget(m_libelles[i], i, 0);
        grille->addWidget(m_montants[i], i, 1);
        grille->addWidget(marque, i, 2);
    }
    grille->addWidget(controls::captionLabel(u"Total"_s), SaisieBordereau::nbFrais, 0, Qt::AlignRight);
    grille->addWidget(m_total, SaisieBordereau::nbFrais, 1);
    return panneau;
}

QWidget* CadreFrais::creerPied()
{
    auto* pied = new QWidget;
    auto* ligne = new QHBoxLayout(pied);
    ligne->setContentsMargins({});
    ligne->setSpacing(6);
    auto* effacer = named(controls::compactButton(u"supprimer", u"Tout effacer"_s), u"Image1", ToutEffacer);
    auto* accepter = named(controls::compactButton(u"ok", u"OK"_s, Qt::CTRL | Qt::Key_Return), u"Image1", Accepter);
    accepter->setPrimary();
    m_abandonner = named(controls::compactButton(u"annuler", u"Annuler"_s), u"Image1", Abandonner);
    ligne->addWidget(effacer);
    ligne->addStretch();
    ligne->addWidget(accepter);
    ligne->addWidget(m_abandonner);
    connect(effacer, &QAbstractButton::clicked, this, &CadreFrais::effacementDemande);
    connect(accepter, &QAbstractButton::clicked, this, &CadreFrais::accepte);
    connect(m_abandonner, &QAbstractButton::clicked, this, &CadreFrais::abandonne);
    return pied;
}

/// Enter goes from a label to its amount and from an amount to the next; the arrows go up and down a column, and
/// between the two.
void CadreFrais::enchainer()
{
    for (int i = 0; i < SaisieBordereau::nbFrais; ++i) {
        m_chaineLibelles->add(m_libelles[i]);
        m_chaineMontants->add(m_montants[i]);
    }
    const auto versMontant = [this](int rang) { m_chaineMontants->goTo(rang); };
    m_chaineLibelles->onKey(Qt::Key_Return, versMontant);
    m_chaineLibelles->onKey(Qt::Key_Right, versMontant);
    m_chaineLibelles->onKey(Qt::Key_Left, [](int) {});
    m_chaineMontants->onKey(Qt::Key_Left, [this](int rang) { m_chaineLibelles->goTo(rang); });
    m_chaineMontants->onKey(Qt::Key_Right, [](int) {});
    for (int i = 0; i < SaisieBordereau::nbFrais; ++i) {
        setTabOrder(m_libelles[i], m_montants[i]);
        if (i + 1 < SaisieBordereau::nbFrais)
            setTabOrder(m_montants[i], m_libelles[i + 1]);
    }
}

void CadreFrais::ouvrir()
{
    for (int i = 0; i < SaisieBordereau::nbFrais; ++i) {
        const LigneFrais ligne = m_saisie.frais()[i];
        m_libelles[i]->setText(ligne.libelle);
        m_libelles[i]->setCursorPosition(0);
        m_montants[i]->setText(ligne.montant);
    }
    montrerTotal();
    m_pave->turnTo(0);
    m_chaineMontants->goTo(0);
}

void CadreFrais::montrerTotal()
{
    m_total->setText(m_saisie.totalFrais());
}

} // namespace talor
