#include "sales/pave_chiffres.h"

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

/// Meaning of the indexes of `Image22`.
enum Bouton
{
    EffacerDernier,
    Accepter,
    ChercherPoisson,
    ChercherClient,
    Abandonner
};

/// Meaning of the indexes of `Text22`.
enum Chiffre
{
    Cageots,
    Poids,
    PU
};

constexpr int longueurChamp = 12;
const QStringList legendes = {u"Cageots"_s, u"Poids"_s, u"P.U."_s};

} // namespace

PaveChiffres::PaveChiffres(QWidget* parent)
    : QFrame(parent)
    , m_pave(new controls::NumberPad({u"SSCommand11"_s, u"Label11"_s, u"Image22(%1)"_s.arg(EffacerDernier)}))
    , m_chaine(new controls::FieldChain(this))
{
    named(this, u"SSPanel12");
    controls::setRole(this, controls::Role::Panel);
    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(8);
    gauche->addWidget(creerChoix());
    gauche->addWidget(creerChiffres());
    gauche->addStretch();
    gauche->addWidget(creerBoutons());

    auto* colonnes = new QHBoxLayout(this);
    colonnes->setContentsMargins(16, 10, 16, 10);
    colonnes->setSpacing(16);
    colonnes->addLayout(gauche, 1);
    colonnes->addWidget(m_pave);
}

QWidget* PaveChiffres::creerChoix()
{
    struct Choix
    {
        ChoixLigne choix;
        Bouton bouton;
        QString legende, icone;
    };
    const Choix tous[] = {{ChoixClient, ChercherClient, u"Client"_s, u"client"_s},
                          {ChoixPoisson, ChercherPoisson, u"Poisson"_s, u"poisson"_s}};
    auto* panneau = new QWidget;
    auto* grille = new QGridLayout(panneau);
    grille->setContentsMargins({});
    grille->setSpacing(6);
    grille->setColumnStretch(1, 1);
    for (const Choix& choix : tous) {
        m_noms[choix.choix] = named(controls::sectionLabel(), u"Label5", choix.choix);
        m_noms[choix.choix]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        auto* chercher = named(controls::compactButton(choix.icone, choix.legende), u"Image22", choix.bouton);
        connect(chercher, &QAbstractButton::clicked, this, [this, c = choix.choix] { emit choixDemande(c); });
        grille->addWidget(chercher, choix.choix, 0);
        grille->addWidget(m_noms[choix.choix], choix.choix, 1);
    }
    return panneau;
}

QWidget* PaveChiffres::creerChiffres()
{
    auto* panneau = new QWidget;
    auto* grille = new QGridLayout(panneau);
    grille->setContentsMargins({});
    grille->setHorizontalSpacing(8);
    grille->setVerticalSpacing(6);
    grille->setColumnStretch(1, 1);
    for (int i = 0; i < nbChiffres; ++i) {
        const auto kind = i == Cageots ? TextField::Kind::Digits : TextField::Kind::Amount;
        m_champs[i] = named(new TextField(kind, longueurChamp), u"Text22", i);
        m_champs[i]->setAlignment(Qt::AlignRight);
        QLabel* marque = controls::markLabel();
        m_pave->serve(m_champs[i], marque);
        grille->addWidget(controls::captionLabel(legendes[i], m_champs[i]), i, 0);
        grille->addWidget(m_champs[i], i, 1);
        grille->addWidget(marque, i, 2);
        m_chaine->add(m_champs[i]);
    }
    return panneau;
}

QWidget* PaveChiffres::creerBoutons()
{
    auto* panneau = new QWidget;
    auto* ligne = new QHBoxLayout(panneau);
    ligne->setContentsMargins({});
    ligne->setSpacing(6);
    auto* accepter = named(controls::compactButton(u"ok", u"OK"_s, Qt::CTRL | Qt::Key_Return), u"Image22", Accepter);
    accepter->setPrimary();
    m_abandonner = named(controls::compactButton(u"annuler", u"Annuler"_s), u"Image22", Abandonner);
    ligne->addWidget(accepter);
    ligne->addWidget(m_abandonner);
    ligne->addStretch();
    connect(accepter, &QAbstractButton::clicked, this,
            [this] { emit accepte(m_champs[Cageots]->text(), m_champs[Poids]->text(), m_champs[PU]->text()); });
    connect(m_abandonner, &QAbstractButton::clicked, this, &PaveChiffres::abandonne);
    return panneau;
}

void PaveChiffres::ouvrir()
{
    for (TextField* champ : m_champs)
        champ->clear();
    m_pave->turnTo(Cageots);
    m_chaine->goTo(Cageots);
}

void PaveChiffres::montrerNom(ChoixLigne choix, const QString& nom)
{
    m_noms[choix]->setText(nom);
}

} // namespace talor
