#include "invoicing/factura.h"

#include "core/montrer.h"
#include "core/typed_dates.h"
#include "invoicing/fact_bis.h"
#include "platform/controls/busy.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"
#include "platform/services/clock.h"
#include "reference/q_selection.h"
#include "reference/saisie_date.h"
#include "sales/combo_choix.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;
using controls::TextField;

namespace {

/// Meaning of the indexes of `Image1`.
enum Action
{
    Calendrier,
    Facturer,
    Quitter
};

/// Columns of the criteria.
enum Place
{
    Legende,
    Numero,
    Liste,
    Tous,
    Recherche
};

constexpr int longueurNumero = 9;

/// How the client and the boat are asked for.
struct Textes
{
    QString legende, nom, combo, image, tous, chercher;
};
const Textes textesChoix[] = {
    {u"Fiche du client"_s, u"Client"_s, u"Combo1"_s, u"clients"_s, u"Tous les clients"_s, u"Chercher un client"_s},
    {u"Fiche du bateau"_s, u"Bateau"_s, u"Combo2"_s, u"bateau"_s, u"Tous les bateaux"_s, u"Chercher un bateau"_s}};

} // namespace

qint64 Factura::Choix::num() const
{
    return liste[combo->currentIndex()].num;
}

Factura::Factura(Exercice& exercice, QWidget* parent)
    : Dialog(u"Factura", u"Facturation"_s, parent)
    , m_exercice(exercice)
{
    m_choix[Client].liste = ListeChoix::clientsParOrdre(exercice).avecEnsemble();
    m_choix[Bateau].liste = ListeChoix::chalutiers(exercice).avecEnsemble();
    body()->addWidget(creerCriteres());
    body()->addStretch();

    auto* commandes = new controls::CommandBar(u"Image1"_s);
    m_facturer = commandes->add(Facturer, u"facture", u"Facturer"_s, Qt::CTRL | Qt::Key_Return);
    m_facturer->setPrimary();
    commandes->addStretch();
    auto* quitter = commandes->add(Quitter, u"quitter", u"Quitter"_s);
    this->commands()->addWidget(commandes);
    setCancel({quitter});
    connect(commandes, &controls::CommandBar::triggered, this, &Factura::executer);

    auto* chaine = new controls::FieldChain(this);
    chaine->add({m_date, m_choix[Client].numero, m_choix[Client].combo, m_choix[Bateau].numero, m_choix[Bateau].combo});
    // Invoicing cannot be taken back: Enter leads to the command, and only there starts it.
    chaine->atLast([this] { m_facturer->setFocus(Qt::TabFocusReason); });
    m_date->setFocus();
}

QWidget* Factura::creerCriteres()
{
    auto* cadre = new QFrame;
    controls::setRole(cadre, controls::Role::Panel);
    auto* grille = new QGridLayout(cadre);
    grille->setContentsMargins(16, 16, 16, 16);
    grille->setHorizontalSpacing(8);
    grille->setVerticalSpacing(10);
    grille->setColumnStretch(Liste, 1);

    const SaisieDate saisie = creerSaisieDate(this);
    m_date = named(saisie.champ, u"Text1");
    m_date->setText(services::clock::todayText());
    auto* calendrier = named(saisie.calendrier, u"Image1", Calendrier);
    grille->addWidget(controls::captionLabel(u"Date des factures"_s, m_date), 0, Legende);
    grille->addWidget(m_date, 0, Numero);
    grille->addWidget(calendrier, 0, Liste, Qt::AlignLeft);
    for (const Rang rang : {Client, Bateau})
        creerChoix(grille, rang);
    grille->addWidget(controls::hintLabel(u"Un bateau choisit ses acheteurs : la facture d'un client prend toutes ses "
                                          "lignes à facturer, quel que soit le bateau."_s),
                      grille->rowCount(), Numero, 1, -1);
    return cadre;
}

void Factura::creerChoix(QGridLayout* grille, Rang rang)
{
    const Textes& textes = textesChoix[rang];
    Choix& choix = m_choix[rang];
    choix.numero = named(new TextField(TextField::Kind::Free, longueurNumero), u"Text2", rang + 1);
    choix.combo = named(creerComboChoix(), textes.combo);
    choix.combo->setAccessibleName(textes.nom);
    remplirCombo(choix.combo, choix.liste);
    choix.combo->setCurrentIndex(choix.liste.nombre() - 1);
    QToolButton* tous = named(controls::iconButton(textes.image, textes.tous), u"Image4", 2 * rang);
    QToolButton* recherche = named(controls::iconButton(u"recherche", textes.chercher), u"Image4", 2 * rang + 1);

    const int ligne = grille->rowCount();
    grille->addWidget(controls::captionLabel(textes.legende, choix.numero), ligne, Legende);
    grille->addWidget(choix.numero, ligne, Numero);
    grille->addWidget(choix.combo, ligne, Liste);
    grille->addWidget(tous, ligne, Tous);
    grille->addWidget(recherche, ligne, Recherche);

    connect(choix.numero, &TextField::left, this, [this, rang] { prendreNum(rang); });
    connect(choix.combo, &QComboBox::activated, this,
            [&choix] { choix.numero->setText(QString::number(choix.num())); });
    connect(tous, &QToolButton::clicked, this, [this, rang] { poserNum(rang, numEnsemble); });
    connect(recherche, &QToolButton::clicked, this, [this, rang] { chercher(rang); });
}

void Factura::chercher(Rang rang)
{
    const auto choisi = rang == Client ? Q_Client::demander(this, m_exercice) : Q_Bateau::demander(this, m_exercice);
    if (choisi)
        poserNum(rang, choisi->num);
}

void Factura::poserNum(Rang rang, qint64 num)
{
    m_choix[rang].numero->setText(QString::number(num));
    prendreNum(rang);
}

/// The number typed selects the combo's entry; none typed leaves it. False when no entry has it.
bool Factura::prendreNum(Rang rang)
{
    const Choix& choix = m_choix[rang];
    if (choix.numero->text().trimmed().isEmpty())
        return true;
    const Resultat<int> trouve = choix.liste.choisirParNum(choix.numero->text());
    if (!trouve) {
        refuser(trouve.refus(), choix.numero);
        return false;
    }
    choix.combo->setCurrentIndex(*trouve);
    return true;
}

void Factura::executer(int index)
{
    if (index == Facturer)
        facturer();
    else
        leave();
}

void Factura::refuser(const Refus& refus, TextField* champ)
{
    montrer(this, refus);
    champ->setFocus();
    champ->selectAll();
}

void Factura::facturer()
{
    // The shortcut and the pointer leave the focus in the field that is being typed into.
    if (!prendreNum(Client) || !prendreNum(Bateau))
        return;
    const QString date = m_date->text().trimmed();
    const Resultat<BilanFacturation> bilan = calculer({date, m_choix[Client].num(), m_choix[Bateau].num()});
    if (!bilan)
        return refuser(bilan.refus(), dateComplete(date) ? m_choix[Client].numero : m_date);
    for (const Refus& refus : bilan->refus)
        montrer(this, refus);
    montrer(this, bilan->message);
    if (bilan->nbFactures == 0)
        return;
    Fact_Bis(m_exercice, date, this).exec();
    leave(1);
}

Resultat<BilanFacturation> Factura::calculer(const DemandeFacturation& demande)
{
    const controls::Busy sablier;
    std::optional<controls::Progress> barre;
    return InvoiceAll(m_exercice, demande, [&](int faits, int total) {
        if (!barre)
            barre.emplace(this, u"Facturation des clients…"_s, total);
        return barre->advance(faits);
    });
}

} // namespace talor
