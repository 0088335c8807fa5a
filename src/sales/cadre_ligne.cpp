#include "sales/cadre_ligne.h"

#include "core/montrer.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"
#include "sales/combo_choix.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;
using controls::TextField;

namespace {

/// Meaning of the indexes of `Image1` that stand in this frame.
enum Bouton
{
    Enregistrer = 0,
    Abandonner = 1,
    Pave = 4
};

constexpr int longueurChamp = 12; // what the pad can hold
constexpr int largeurNumero = 84;

const std::array<QString, nbChampsLigne> legendes = {u"Client"_s, u"Poisson"_s, u"Cageots"_s, u"Poids"_s, u"P.U."_s};

} // namespace

CadreLigne::CadreLigne(const SaisieBordereau& saisie, QWidget* parent)
    : QFrame(parent)
    , m_saisie(saisie)
    , m_titre(named(controls::sectionLabel(), u"SSPanel2"))
    , m_montant(named(controls::totalLabel(), u"Label2", 2))
    , m_chaine(new controls::FieldChain(this))
{
    named(this, u"SSFrame1");
    controls::setRole(this, controls::Role::Panel);
    for (int i = 0; i < nbChampsLigne; ++i) {
        const auto kind = i < ChampPoids ? TextField::Kind::Digits : TextField::Kind::Amount;
        m_champs[i] = named(new TextField(kind, longueurChamp), u"Text1", i);
        if (kind == TextField::Kind::Digits)
            m_champs[i]->setAlignment(Qt::AlignRight);
    }
    for (const ChoixLigne choix : {ChoixClient, ChoixPoisson})
        creerChoix(choix);

    auto* colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(16, 10, 16, 10);
    colonne->setSpacing(10);
    colonne->addWidget(creerTete());
    colonne->addWidget(creerChamps());
    colonne->addWidget(creerPied());
    enchainer();
    for (const ChoixLigne choix : {ChoixClient, ChoixPoisson})
        prendre(choix, 0);
}

void CadreLigne::creerChoix(ChoixLigne choix)
{
    m_noms[choix] = named(controls::sectionLabel(), u"Label3", choix);
    m_combos[choix] = named(creerComboChoix(), u"Combo1", choix);
    m_combos[choix]->setAccessibleName(choix == ChoixClient ? u"Nom du client"_s : u"Nom du poisson"_s);
    // A list opened by the pointer does not leave the field, which would look its number up.
    m_combos[choix]->setFocusPolicy(Qt::TabFocus);
    remplirCombo(m_combos[choix], liste(choix));
    connect(m_combos[choix], &QComboBox::activated, this, [this, choix](int rang) { prendre(choix, rang); });

    TextField* numero = m_champs[choix];
    numero->setFixedWidth(largeurNumero);
    connect(numero, &TextField::entered, this, [this, choix] { emit choixEnMain(choix); });
    connect(numero, &TextField::left, this, [this, choix] { prendreOrdre(choix, m_champs[choix]->text()); });
}

QWidget* CadreLigne::creerChamps()
{
    auto* panneau = new QWidget;
    auto* grille = new QGridLayout(panneau);
    grille->setContentsMargins({});
    grille->setHorizontalSpacing(8);
    grille->setVerticalSpacing(6);
    for (const ChoixLigne choix : {ChoixClient, ChoixPoisson}) {
        grille->addWidget(controls::captionLabel(legendes[choix], m_champs[choix]), choix, 0);
        grille->addWidget(m_champs[choix], choix, 1);
        grille->addWidget(m_combos[choix], choix, 2);
    }
    grille->setColumnStretch(2, 1);

    auto* quantites = new QGridLayout;
    quantites->setHorizontalSpacing(8);
    quantites->setVerticalSpacing(2);
    for (int i = ChampCageots; i < nbChampsLigne; ++i) {
        const int colonne = i - ChampCageots;
        quantites->addWidget(controls::captionLabel(legendes[i], m_champs[i]), 0, colonne);
        quantites->addWidget(m_champs[i], 1, colonne);
        quantites->setColumnStretch(colonne, 1);
    }
    quantites->addWidget(controls::captionLabel(u"Montant"_s), 0, nbChampsLigne);
    quantites->addWidget(m_montant, 1, nbChampsLigne);
    quantites->setColumnStretch(nbChampsLigne, 1);
    grille->addLayout(quantites, nbChoixLigne, 0, 1, 3);
    return panneau;
}

/// What is being done, and the names as the line will carry them.
QWidget* CadreLigne::creerTete()
{
    auto* tete = new QWidget;
    auto* ligne = new QHBoxLayout(tete);
    ligne->setContentsMargins({});
    auto* noms = new QVBoxLayout;
    noms->setSpacing(2);
    for (QLabel* nom : m_noms) {
        nom->setAlignment(Qt::AlignRight);
        nom->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        noms->addWidget(nom);
    }
    ligne->addWidget(m_titre, 0, Qt::AlignTop);
    ligne->addLayout(noms, 1);
    return tete;
}

QWidget* CadreLigne::creerPied()
{
    auto* pied = new QWidget;
    auto* ligne = new QHBoxLayout(pied);
    ligne->setContentsMargins({});
    ligne->setSpacing(6);
    ligne->addStretch();
    const auto ajouter = [&](int index, QStringView icone, const QString& legende, const QKeySequence& raccourci) {
        auto* bouton = named(controls::compactButton(icone, legende, raccourci), u"Image1", index);
        ligne->addWidget(bouton);
        return bouton;
    };
    auto* pave = ajouter(Pave, u"clavier", u"Chiffres"_s, Qt::Key_F7);
    m_accepter = ajouter(Enregistrer, u"ok", u"OK"_s, Qt::CTRL | Qt::Key_Return);
    m_accepter->setPrimary();
    m_abandonner = ajouter(Abandonner, u"annuler", u"Abandon"_s, {});
    connect(pave, &QAbstractButton::clicked, this, &CadreLigne::paveDemande);
    connect(m_accepter, &QAbstractButton::clicked, this, &CadreLigne::acceptee);
    connect(m_abandonner, &QAbstractButton::clicked, this, &CadreLigne::abandonnee);
    return pied;
}

void CadreLigne::enchainer()
{
    for (TextField* champ : m_champs)
        m_chaine->add(champ);
    m_chaine->atLast([this] { emit acceptee(); });
    // Right goes on as Down does; Left does nothing, on purpose.
    m_chaine->onKey(Qt::Key_Right, [this](int position) { m_chaine->goNext(position); });
    m_chaine->onKey(Qt::Key_Left, [](int) {});
    setTabOrder(m_champs[ChampClient], m_combos[ChoixClient]);
    setTabOrder(m_combos[ChoixClient], m_champs[ChampPoisson]);
    setTabOrder(m_champs[ChampPoisson], m_combos[ChoixPoisson]);
    setTabOrder(m_combos[ChoixPoisson], m_champs[ChampCageots]);
}

void CadreLigne::setTitre(const QString& titre)
{
    m_titre->setText(titre);
}

const ListeChoix& CadreLigne::liste(ChoixLigne choix) const
{
    return choix == ChoixClient ? m_saisie.clients() : m_saisie.poissons();
}

QString CadreLigne::nom(ChoixLigne choix) const
{
    return m_noms[choix]->text();
}

void CadreLigne::prendre(ChoixLigne choix, int rang)
{
    if (rang < 0 || rang >= liste(choix).nombre())
        return;
    const EntreeListe& entree = liste(choix)[rang];
    m_combos[choix]->setCurrentIndex(rang);
    m_noms[choix]->setText(liste(choix).nom(rang));
    m_nums[choix] = entree.num;
    m_champs[choix]->setText(entree.ordre.trimmed());
    emit choisi(choix, rang);
}

bool CadreLigne::prendreOrdre(ChoixLigne choix, const QString& ordre)
{
    m_champs[choix]->setText(ordre);
    const Resultat<int> rang = liste(choix).choisirParOrdre(ordre);
    if (rang)
        prendre(choix, *rang);
    else
        montrer(this, rang.refus());
    return static_cast<bool>(rang);
}

bool CadreLigne::prendreFrappe()
{
    for (const ChoixLigne choix : {ChoixClient, ChoixPoisson}) {
        if (m_champs[choix]->hasFocus())
            return prendreOrdre(choix, m_champs[choix]->text());
    }
    return true;
}

void CadreLigne::viser(ChampLigne champ)
{
    // A field that has the focus already is not entered again: what was typed is taken up to be typed over.
    m_champs[champ]->setFocus(Qt::TabFocusReason);
    m_champs[champ]->selectAll();
}

void CadreLigne::remplir(const SaisieLigne& ligne)
{
    prendre(ChoixClient, liste(ChoixClient).rangDuNum(ligne.num_client));
    prendre(ChoixPoisson, liste(ChoixPoisson).rangDuNum(ligne.Num_Poisson));
    poserQuantites(ligne.cageots, ligne.poids, ligne.pu);
    m_montant->clear();
}

void CadreLigne::viderQuantites()
{
    poserQuantites({}, {}, {});
    m_montant->clear();
}

void CadreLigne::poserQuantites(const QString& cageots, const QString& poids, const QString& pu)
{
    m_champs[ChampCageots]->setText(cageots);
    m_champs[ChampPoids]->setText(poids);
    m_champs[ChampPU]->setText(pu);
}

void CadreLigne::montrerMontant(const QString& texte)
{
    m_montant->setText(texte);
}

SaisieLigne CadreLigne::ligne() const
{
    return {m_nums[ChoixClient],
            m_nums[ChoixPoisson],
            m_champs[ChampClient]->text(),
            m_champs[ChampPoisson]->text(),
            m_champs[ChampCageots]->text(),
            m_champs[ChampPoids]->text(),
            m_champs[ChampPU]->text()};
}

} // namespace talor
