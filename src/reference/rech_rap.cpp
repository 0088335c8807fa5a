#include "reference/rech_rap.h"

#include "core/helpers.h"
#include "core/montrer.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/grid.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"

#include <QBoxLayout>
#include <QFrame>
#include <QLabel>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;
using controls::TextField;

namespace {

/// Meaning of the indexes of `Image1`.
enum Action
{
    Zoomer,
    AutreChoix,
    Quitter
};

/// Columns of `Grid1`.
enum Colonne
{
    Nom,
    Prenom,
    Ville,
    Famille,
    Solde
};

constexpr int longueurNumero = 9;
constexpr int longueurNom = 100;

QString cellule(const ClientTrouve& client, int colonne)
{
    switch (colonne) {
    case Nom:
        return client.nom;
    case Prenom:
        return client.prenom;
    case Ville:
        return client.ville;
    case Famille:
        return client.famille;
    case Solde:
        return FormatSiNonNul(client.Solde, u"# ### ##0.00"_s);
    }
    return {};
}

} // namespace

Rech_Rap::Rech_Rap(Exercice& exercice, Zoom zoom, QWidget* parent)
    : Dialog(u"Rech_Rap", u"Recherche Rapide"_s, parent)
    , m_exercice(exercice)
    , m_zoom(std::move(zoom))
    , m_numero(named(new TextField(TextField::Kind::Digits, longueurNumero), u"Text1", 0))
    , m_nom(named(new TextField(TextField::Kind::Free, longueurNom), u"Text1", 1))
    , m_prenom(named(new TextField(TextField::Kind::Free, longueurNom), u"Text1", 2))
    , m_liste(named(new controls::Grid, u"Grid1"))
{
    m_liste->setAccessibleName(u"Clients"_s);
    m_liste->setColumns({{u"NOM"_s, 2200, Qt::AlignLeft, true},
                         {u"Prénom"_s, 1700},
                         {u"Ville"_s, 1400},
                         {u"Famille"_s, 1500},
                         {u"Solde"_s, 1500, Qt::AlignRight}});
    m_liste->setMinimumWidth(780); // what is owed stands in view without scrolling
    m_liste->setInk([this](int rang, int colonne) {
        return colonne == Solde && m_clients[rang].Solde < 0 ? controls::Ink::Owed : controls::Ink::Normal;
    });
    body()->addWidget(creerChamps());
    body()->addWidget(m_liste, 1);

    auto* commandes = new controls::CommandBar(u"Image1"_s);
    m_boutonZoom = commandes->add(Zoomer, u"zoom", u"ZOOM"_s);
    m_boutonZoom->setPrimary();
    commandes->add(AutreChoix, u"recherche", u"Autre choix"_s);
    commandes->addStretch();
    auto* quitter = commandes->add(Quitter, u"quitter", u"Quitter"_s);
    this->commands()->addWidget(commandes);
    setCancel({quitter});

    connect(commandes, &controls::CommandBar::triggered, this, &Rech_Rap::executer);
    connect(m_liste, &controls::Grid::rowActivated, this, &Rech_Rap::zoomer);
    autreChoix();
}

QWidget* Rech_Rap::creerChamps()
{
    auto* cadre = new QFrame;
    controls::setRole(cadre, controls::Role::Panel);
    auto* ligne = new QHBoxLayout(cadre);
    ligne->setContentsMargins(16, 12, 16, 12);
    ligne->setSpacing(8);
    const auto ajouter = [&](const QString& legende, TextField* champ, int place) {
        ligne->addWidget(controls::captionLabel(legende, champ));
        ligne->addWidget(champ, place);
    };
    const auto ajouterBouton = [&](int index, const QString& nom, void (Rech_Rap::*chercher)()) {
        QToolButton* bouton = named(controls::iconButton(u"recherche", nom), u"Image2", index);
        connect(bouton, &QToolButton::clicked, this, chercher);
        ligne->addWidget(bouton);
    };
    ajouter(u"Numéro"_s, m_numero, 2);
    ajouterBouton(0, u"Chercher ce numéro"_s, &Rech_Rap::chercherNumero);
    ligne->addSpacing(18);
    ajouter(u"Nom"_s, m_nom, 4);
    ajouter(u"Prénom"_s, m_prenom, 3);
    ajouterBouton(1, u"Chercher ce nom"_s, &Rech_Rap::chercherNom);

    auto* chaine = new controls::FieldChain(this);
    chaine->add({m_numero, m_nom, m_prenom});
    chaine->onKey(Qt::Key_Return, 0, [this] { chercherNumero(); });
    chaine->onKey(Qt::Key_Return, 1, [this] { chercherNom(); });
    chaine->onKey(Qt::Key_Return, 2, [this] { chercherNom(); });
    return cadre;
}

void Rech_Rap::executer(int index)
{
    switch (index) {
    case Zoomer:
        return zoomer();
    case AutreChoix:
        return autreChoix();
    case Quitter:
        return leave();
    }
}

void Rech_Rap::montrerClients(const QList<ClientTrouve>& clients)
{
    m_clients = clients;
    m_liste->setRows(static_cast<int>(m_clients.size()),
                     [this](int rang, int colonne) { return cellule(m_clients[rang], colonne); });
    m_liste->selectRow(0);
    m_boutonZoom->setEnabled(m_zoom && !m_clients.isEmpty());
}

void Rech_Rap::chercherNumero()
{
    const Resultat<int> rang = chercherParNumero(m_clients, m_numero->text());
    if (!rang)
        return refuser(rang.refus(), m_numero);
    m_liste->selectRow(*rang);
    m_liste->setFocus();
}

void Rech_Rap::chercherNom()
{
    const Resultat<QList<ClientTrouve>> clients = chercherParNom(m_exercice, m_nom->text(), m_prenom->text());
    if (!clients)
        return refuser(clients.refus(), m_nom);
    montrerClients(*clients);
    m_liste->setFocus();
}

/// What was typed stays, selected, to be typed over.
void Rech_Rap::refuser(const Refus& refus, TextField* champ)
{
    montrer(this, refus);
    champ->setFocus();
    champ->selectAll();
}

void Rech_Rap::zoomer()
{
    const int rang = m_liste->currentRow();
    if (m_zoom && rang >= 0)
        m_zoom(this, m_clients[rang].num);
}

void Rech_Rap::autreChoix()
{
    for (TextField* champ : {m_numero, m_nom, m_prenom})
        champ->clear();
    montrerClients(listerClients(m_exercice));
    m_numero->setFocus();
}

} // namespace talor
