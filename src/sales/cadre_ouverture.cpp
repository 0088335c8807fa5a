#include "sales/cadre_ouverture.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"
#include "reference/saisie_date.h"
#include "sales/choix_bateau.h"
#include "sales/combo_choix.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>

namespace talor {

using namespace Qt::StringLiterals;
using controls::CommandButton;
using controls::named;
using controls::TextField;

namespace {

constexpr int longueurNumero = 9;
constexpr int largeurNumero = 72;
constexpr int lettresBateau = 7; // the least, on a screen of 1024

/// Meaning of the indexes of `Image1`.
enum Action
{
    Accepter,
    Abandonner
};

/// Meaning of the indexes of `Image2`.
enum Bouton
{
    Calendrier,
    RechercheBateau
};

} // namespace

CadreOuverture::CadreOuverture(Exercice& exercice, const RegistreBordereaux& registre, QWidget* dialogue)
    : m_registre(registre)
    , m_titre(named(controls::sectionLabel(), u"Label2", 12))
    , m_numero(named(new TextField(TextField::Kind::Digits, longueurNumero), u"Text2"))
    , m_bateau(named(creerComboChoix(), u"Combo5"))
    , m_recherche(named(controls::iconButton(u"recherche", u"Chercher l'embarcation"_s), u"Image2", RechercheBateau))
    , m_ok(named(new CommandButton(u"ok", u"OK"_s), u"Image1", Accepter))
    , m_annuler(named(new CommandButton(u"annuler", u"Annuler"_s), u"Image1", Abandonner))
{
    named(this, u"SSFrame1");
    controls::setRole(this, controls::Role::Panel);
    const SaisieDate date = creerSaisieDate(dialogue);
    m_date = named(date.champ, u"Text1");
    m_calendrier = named(date.calendrier, u"Image2", Calendrier);
    m_numero->setFixedWidth(largeurNumero);
    m_date->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_bateau->setMinimumContentsLength(lettresBateau);
    for (CommandButton* bouton : {m_ok, m_annuler})
        bouton->setCompact();
    m_ok->setPrimary();
    m_ok->setCommandShortcut(Qt::CTRL | Qt::Key_Return);

    auto* champs = new QHBoxLayout;
    champs->setSpacing(6);
    champs->addWidget(controls::captionLabel(u"N°"_s, m_numero));
    champs->addWidget(m_numero);
    champs->addSpacing(12);
    champs->addWidget(controls::captionLabel(u"Date"_s, m_date));
    champs->addWidget(m_date);
    champs->addWidget(m_calendrier);
    champs->addSpacing(12);
    champs->addWidget(controls::captionLabel(u"Embarcation"_s, m_bateau));
    champs->addWidget(m_bateau, 1);
    champs->addWidget(m_recherche);
    champs->addSpacing(12);
    champs->addWidget(m_ok);
    champs->addWidget(m_annuler);
    auto* colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(16, 10, 16, 12);
    colonne->setSpacing(8);
    colonne->addWidget(m_titre);
    colonne->addLayout(champs);

    auto* chaine = new controls::FieldChain(this);
    chaine->add({m_numero, m_date, m_bateau});
    chaine->atLast([this] { m_ok->click(); });
    setTabOrder(m_date, m_calendrier);
    setTabOrder(m_calendrier, m_bateau);
    connect(m_recherche, &QToolButton::clicked, dialogue,
            [=, this, &exercice] { choisirBateau(dialogue, exercice, m_registre, m_bateau); });
    connect(m_ok, &QToolButton::clicked, this, &CadreOuverture::accepte);
    connect(m_annuler, &QToolButton::clicked, this, &CadreOuverture::abandonne);
}

void CadreOuverture::ouvrir(const CadreBordereau& cadre)
{
    const bool nouveau = cadre.mode == ModeBordereau::Nouveau;
    m_ouvert = cadre;
    m_titre->setText(cadre.legende);
    setAccessibleName(cadre.legende);
    m_numero->setText(cadre.numero);
    m_date->setText(cadre.date);
    remplirCombo(m_bateau, m_registre.embarcations());
    m_bateau->setCurrentIndex(cadre.embarcation);
    for (QWidget* champ : QList<QWidget*>{m_numero, m_date, m_bateau})
        champ->setEnabled(nouveau);
    for (QToolButton* bouton : {m_calendrier, m_recherche})
        bouton->setVisible(nouveau);
    if (nouveau)
        viserDate();
    else
        m_ok->setFocus(Qt::TabFocusReason);
}

CadreBordereau CadreOuverture::cadre() const
{
    CadreBordereau rempli = m_ouvert;
    rempli.numero = m_numero->text();
    rempli.date = m_date->text();
    rempli.embarcation = m_bateau->currentIndex();
    return rempli;
}

void CadreOuverture::viserDate()
{
    m_date->setFocus(Qt::TabFocusReason);
    m_date->selectAll();
}

QAbstractButton* CadreOuverture::annuler() const
{
    return m_annuler;
}

} // namespace talor
