#include "invoicing/cadre_filtre_factures.h"

#include "core/montrer.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"
#include "reference/q_selection.h"
#include "reference/saisie_date.h"
#include "sales/combo_choix.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;
using Porte = RegistreFactures::Porte;

namespace {

/// Meaning of the indexes of `Text1`, and of the first three of `Image4`, their calendars.
enum Champ
{
    Jour,
    Premiere,
    Seconde
};

/// Further indexes of `Image4`.
enum Bouton
{
    ClientPrecedent = 3,
    ClientSuivant,
    RechercheClient,
    TousLesClients
};

/// Meaning of the indexes of `Image2`: OK and cancel of the day, then of the period.
enum Action
{
    OkJour = 1,
    OkPeriode = 3
};

/// On a narrow screen the list of clients gives way.
constexpr int largeurClientMin = 130;

} // namespace

CadreFiltreFactures::CadreFiltreFactures(Exercice& exercice, const RegistreFactures& registre, Porte porte,
                                         const QString& jour)
    : EntryPanel(u"SSFrame1", u"SSPanel1")
    , m_exercice(exercice)
    , m_registre(registre)
    , m_client(named(creerComboChoix(), u"Combo2"))
    , m_etat(new QButtonGroup(this))
{
    setTitle(u"Filtre"_s);
    creerClient(porte);
    creerOptions();
    nextColumn();
    creerDates(jour);
}

// --- The client ------------------------------------------------------------------------------------------------------

void CadreFiltreFactures::creerClient(Porte porte)
{
    remplirCombo(m_client, m_registre.clients());
    m_client->setMinimumWidth(largeurClientMin);
    const int ensemble = m_registre.clients().nombre() - 1;
    m_client->setCurrentIndex(ensemble);
    QList<QWidget*> ligne{m_client};
    if (porte == Porte::Reimpression) {
        m_precedent = creerPas(ClientPrecedent, -1);
        m_suivant = creerPas(ClientSuivant, 1);
        ligne << m_precedent << m_suivant;
        connect(m_client, &QComboBox::currentIndexChanged, this, &CadreFiltreFactures::montrerPas);
        montrerPas();
    }
    QToolButton* recherche =
        named(controls::iconButton(u"recherche", u"Chercher un client"_s), u"Image4", RechercheClient);
    QToolButton* tous = named(controls::iconButton(u"clients", u"Tous les clients"_s), u"Image4", TousLesClients);
    addFields(u"Client"_s, ligne << recherche << tous);
    connect(recherche, &QToolButton::clicked, this, &CadreFiltreFactures::chercherClient);
    connect(tous, &QToolButton::clicked, this, [this, ensemble] { m_client->setCurrentIndex(ensemble); });
}

QToolButton* CadreFiltreFactures::creerPas(int index, int pas)
{
    QToolButton* bouton = named(pas < 0 ? controls::iconButton(u"monter", u"Client précédent"_s)
                                        : controls::iconButton(u"descendre", u"Client suivant"_s),
                                u"Image4", index);
    bouton->setAutoRepeat(true);
    QSizePolicy place = bouton->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    bouton->setSizePolicy(place);
    connect(bouton, &QToolButton::clicked, this,
            [this, pas] { m_client->setCurrentIndex(m_client->currentIndex() + pas); });
    return bouton;
}

/// A button that hides hands its focus to the list that it steps through.
void CadreFiltreFactures::montrerPas()
{
    const bool premier = m_client->currentIndex() <= 0;
    const bool dernier = m_client->currentIndex() >= m_client->count() - 1;
    if ((premier && m_precedent->hasFocus()) || (dernier && m_suivant->hasFocus()))
        m_client->setFocus();
    m_precedent->setVisible(!premier);
    m_suivant->setVisible(!dernier);
}

void CadreFiltreFactures::chercherClient()
{
    const auto choisi = Q_Client::demander(this, m_exercice);
    if (!choisi)
        return;
    const Resultat<int> rang = m_registre.choisirClient(choisi->num);
    if (!rang)
        return montrer(this, rang.refus());
    m_client->setCurrentIndex(*rang);
    m_client->setFocus();
}

// --- Which and in which order ----------------------------------------------------------------------------------------

void CadreFiltreFactures::creerOptions()
{
    auto* reglement = new QGroupBox(u"Règlement"_s);
    auto* colonne = new QVBoxLayout(reglement);
    colonne->setSpacing(2);
    const QString legendes[] = {u"Factures non réglées"_s, u"Factures règlées"_s, u"Ensemble des factures"_s};
    for (const auto etat :
         {FiltreFactures::Etat::NonReglees, FiltreFactures::Etat::Reglees, FiltreFactures::Etat::Toutes}) {
        const int rang = static_cast<int>(etat);
        auto* option = named(new QRadioButton(legendes[rang]), u"SSOption1", rang);
        m_etat->addButton(option, rang);
        colonne->addWidget(option);
    }
    m_etat->button(static_cast<int>(FiltreFactures::Etat::Toutes))->setChecked(true);

    auto* classement = new QGroupBox(u"Classement"_s);
    auto* ligne = new QHBoxLayout(classement);
    m_parClient = named(new QRadioButton(u"Par client"_s), u"SSOption4");
    auto* parNumero = named(new QRadioButton(u"Par numéro"_s), u"SSOption4", 1);
    m_parClient->setChecked(true);
    ligne->addWidget(m_parClient);
    ligne->addWidget(parNumero);
    ligne->addStretch();
    addWide(reglement);
    addWide(classement);
}

// --- Of which day or period ------------------------------------------------------------------------------------------

void CadreFiltreFactures::creerDates(const QString& jour)
{
    addWide(creerGenre(Genre::Jour, {u"Le"}, Jour));
    addWide(creerGenre(Genre::Periode, {u"Du", u"Au"}, Premiere));
    m_dates[Jour]->setText(jour);
    m_dates[Premiere]->setText(m_registre.premiereDate());
    m_dates[Seconde]->setText(m_registre.derniereDate());

    auto* chaine = new controls::FieldChain(this);
    for (controls::TextField* champ : m_dates)
        chaine->add(champ);
    chaine->onKey(Qt::Key_Return, Jour, [this] { accepter(Genre::Jour); });
    chaine->atLast([this] { accepter(Genre::Periode); });
}

QGroupBox* CadreFiltreFactures::creerGenre(Genre genre, const QList<QStringView>& legendes, int premierChamp)
{
    auto* groupe = new QGroupBox(genre == Genre::Jour ? u"Journée"_s : u"Période"_s);
    auto* grille = new QGridLayout(groupe);
    grille->setHorizontalSpacing(6);
    grille->setVerticalSpacing(8);
    grille->setColumnStretch(1, 1);
    for (int i = 0; i < legendes.size(); ++i) {
        const int index = premierChamp + i;
        const SaisieDate date = creerSaisieDate(this);
        m_dates[static_cast<size_t>(index)] = named(date.champ, u"Text1", index);
        grille->addWidget(controls::captionLabel(legendes[i].toString(), date.champ), i, 0);
        grille->addWidget(date.champ, i, 1);
        grille->addWidget(named(date.calendrier, u"Image4", index), i, 2);
    }
    const int ok = genre == Genre::Jour ? OkJour : OkPeriode;
    auto* accepter = named(new controls::CommandButton(u"ok", u"OK"_s), u"Image2", ok);
    auto* annuler = named(new controls::CommandButton(u"annuler", u"Annuler"_s), u"Image2", ok + 1);
    accepter->setCompact();
    accepter->setPrimary();
    annuler->setCompact();
    auto* pied = new QHBoxLayout;
    pied->setSpacing(6);
    pied->addStretch();
    pied->addWidget(accepter);
    pied->addWidget(annuler);
    grille->addLayout(pied, grille->rowCount(), 0, 1, -1);
    connect(accepter, &QToolButton::clicked, this, [this, genre] { this->accepter(genre); });
    connect(annuler, &QToolButton::clicked, this, &CadreFiltreFactures::abandonne);
    if (genre == Genre::Jour)
        m_annuler = annuler;
    return groupe;
}

void CadreFiltreFactures::accepter(Genre genre)
{
    m_genre = genre;
    emit accepte({.genre = genre,
                  .jour = m_dates[Jour]->text().trimmed(),
                  .premiere = m_dates[Premiere]->text().trimmed(),
                  .seconde = m_dates[Seconde]->text().trimmed(),
                  .client = m_registre.clients()[m_client->currentIndex()].num,
                  .etat = static_cast<FiltreFactures::Etat>(m_etat->checkedId()),
                  .parClient = m_parClient->isChecked()});
}

void CadreFiltreFactures::ouvrir()
{
    show();
    raise();
    viserFaute();
}

void CadreFiltreFactures::viserFaute()
{
    if (m_genre == Genre::Periode)
        return viserDateFautive(m_dates[Premiere], m_dates[Seconde]);
    m_dates[Jour]->setFocus();
    m_dates[Jour]->selectAll();
}

/// Enter takes the filter from every control but the dates, which it walks through.
void CadreFiltreFactures::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        accepter(m_genre);
    else
        EntryPanel::keyPressEvent(event);
}

} // namespace talor
