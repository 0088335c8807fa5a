#include "sales/vue_totaux.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"

#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;
using controls::TextField;

namespace {

/// Meaning of the indexes of `Image1` that stand in this panel.
enum Bouton
{
    Pad = 5,
    Frais = 7
};

constexpr int longueurPrimes = 12;
constexpr int longueurTaux = 5;
constexpr int largeurMontant = 118; // "2995 000.00" with its margins

} // namespace

VueTotaux::VueTotaux(QWidget* parent)
    : QFrame(parent)
    , m_primes(named(new TextField(TextField::Kind::Amount, longueurPrimes), u"Text4", 0))
    , m_taux(named(new TextField(TextField::Kind::Amount, longueurTaux), u"Text4", 1))
    , m_cageots(named(controls::valueLabel(Qt::AlignHCenter), u"Label1", 7))
    , m_brut(named(controls::valueLabel(), u"Label2", 20))
    , m_commission(named(controls::valueLabel(), u"Label2", 21))
    , m_legendeFrais(named(controls::captionLabel(u" Autres Frais"_s), u"Label2", 18))
    , m_totalFrais(named(controls::valueLabel(), u"Label2", 22))
    , m_net(named(controls::totalLabel(), u"Label2", 23))
    , m_pad(named(controls::iconButton(u"clavier", u"Primes et commission"_s, Qt::Key_F5), u"Image1", Pad))
    , m_frais(named(controls::iconButton(u"frais", u"Autres frais"_s, Qt::Key_F6), u"Image1", Frais))
{
    controls::setRole(this, controls::Role::Panel);
    auto* grille = new QGridLayout(this);
    grille->setContentsMargins(12, 8, 12, 8);
    grille->setHorizontalSpacing(8);
    grille->setVerticalSpacing(6);

    auto* totaux = controls::captionLabel(u"<--  Totaux   -->"_s);
    totaux->setAlignment(Qt::AlignCenter);
    grille->addWidget(m_cageots, 0, 0);
    grille->addWidget(totaux, 0, 1);
    grille->addWidget(m_brut, 0, 2);
    grille->addWidget(controls::captionLabel(u" Primes"_s, m_primes), 0, 3);
    grille->addWidget(m_primes, 0, 4);
    grille->addWidget(m_pad, 0, 5);
    grille->addWidget(controls::captionLabel(u" Total Net"_s), 0, 6);
    grille->addWidget(controls::captionLabel(u" Commission"_s, m_taux), 1, 0);
    grille->addWidget(m_taux, 1, 1);
    grille->addWidget(m_commission, 1, 2);
    grille->addWidget(m_legendeFrais, 1, 3);
    grille->addWidget(m_totalFrais, 1, 4);
    grille->addWidget(m_frais, 1, 5);
    grille->addWidget(m_net, 1, 6);
    for (QWidget* montant : QList<QWidget*>{m_brut, m_commission, m_totalFrais, m_primes, m_net}) {
        montant->setMinimumWidth(largeurMontant);
        montant->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    m_cageots->setMinimumWidth(1);
    m_taux->setMinimumWidth(1);
    QSizePolicy place = m_frais->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    m_frais->setSizePolicy(place);

    auto* chaine = new controls::FieldChain(this);
    chaine->add({m_primes, m_taux});
    connect(m_primes, &TextField::textChanged, this, &VueTotaux::primesSaisies);
    connect(m_taux, &TextField::textChanged, this, &VueTotaux::tauxSaisi);
    connect(m_pad, &QAbstractButton::clicked, this, &VueTotaux::padDemande);
    connect(m_frais, &QAbstractButton::clicked, this, &VueTotaux::fraisDemandes);
    for (QLabel* label : {m_legendeFrais, m_totalFrais})
        label->installEventFilter(this);
}

/// A touch on the expenses, on their caption or their sum, opens them as their button does.
bool VueTotaux::eventFilter(QObject* objet, QEvent* evenement)
{
    if (evenement->type() != QEvent::MouseButtonRelease)
        return false;
    const QPoint lache = static_cast<QMouseEvent*>(evenement)->position().toPoint();
    if (static_cast<QWidget*>(objet)->rect().contains(lache))
        emit fraisDemandes();
    return false;
}

void VueTotaux::afficher(const PanneauTotaux& totaux)
{
    const auto poser = [](auto* ou, const QString& texte) {
        if (ou->text() != texte)
            ou->setText(texte);
    };
    poser(m_cageots, totaux.cageots);
    poser(m_brut, totaux.brut);
    poser(m_primes, totaux.primes);
    poser(m_taux, totaux.taux);
    poser(m_commission, totaux.commission);
    poser(m_totalFrais, totaux.frais);
    poser(m_net, totaux.net);
}

} // namespace talor
