#include "reference/q_date_2.h"

#include "core/helpers.h"
#include "core/state.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"
#include "platform/services/clock.h"
#include "platform/services/sound.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

/// Meaning of the indexes of `Image2`.
enum Action
{
    Prendre,
    Annuler,
    MoisPrecedent,
    MoisSuivant,
    AnneePrecedente,
    AnneeSuivante
};

constexpr int premiereAnneeListe = 2001;

} // namespace

/// A day of the calendar.
class CelluleJour : public QToolButton
{
public:
    CelluleJour()
    {
        setFocusPolicy(Qt::NoFocus);
        setCheckable(true);
        setProperty("day", true);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

    void montrer(int jour, bool choisi, bool aujourdhui)
    {
        setText(jour > 0 ? QString::number(jour) : QString());
        setEnabled(jour > 0);
        setChecked(choisi);
        if (property("today").toBool() != aujourdhui) {
            setProperty("today", aujourdhui);
            style()->unpolish(this);
            style()->polish(this);
        }
    }

    std::function<void()> auDoubleClic;

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override
    {
        QToolButton::mouseDoubleClickEvent(event);
        if (event->button() == Qt::LeftButton)
            auDoubleClic();
    }
};

std::optional<QString> Q_Date_2::demander(QWidget* parent, const QString& dateInitiale)
{
    Q_Date_2 dialogue(dateInitiale, parent);
    dialogue.exec();
    return dialogue.choisie();
}

Q_Date_2::Q_Date_2(const QString& dateInitiale, QWidget* parent)
    : Dialog(u"Q_Date_2", u"Calendrier"_s, parent)
    , m_calendrier(dateInitiale)
    , m_mois(named(new QComboBox, u"Combo1"))
    , m_annee(named(new QComboBox, u"Combo2"))
    , m_date(named(controls::sectionLabel(), u"Label1"))
    , m_grille(named(new QWidget, u"Jours"))
{
    m_date->setAlignment(Qt::AlignCenter);
    body()->addWidget(creerBarreMois());
    body()->addWidget(creerCellules(), 1);
    body()->addWidget(m_date);
    askAtFoot(u"Image2"_s, Prendre, Annuler, [this] { prendre(); });

    connect(m_mois, &QComboBox::currentIndexChanged, this,
            [this](int rang) { changer([&] { m_calendrier.choisirMois(rang + 1); }); });
    connect(m_annee, &QComboBox::currentIndexChanged, this,
            [this](int rang) { changer([&] { m_calendrier.choisirAnnee(premiereAnneeListe + rang); }); });
    afficher();
    m_grille->setFocus();
}

QWidget* Q_Date_2::creerBarreMois()
{
    for (const QString& nom : NomsMois)
        m_mois->addItem(nom);
    for (int annee = premiereAnneeListe; annee <= Calendrier::derniereAnnee; ++annee)
        m_annee->addItem(QString::number(annee));
    m_mois->setAccessibleName(u"Mois"_s);
    m_annee->setAccessibleName(u"Année"_s);

    auto* barre = new QWidget;
    auto* ligne = new QHBoxLayout(barre);
    ligne->setContentsMargins({});
    ligne->setSpacing(6);
    const auto ajouterBouton = [&](int index, QStringView image, const QString& nom) {
        QToolButton* bouton = named(controls::iconButton(image, nom), u"Image2", index);
        bouton->setAutoRepeat(true);
        connect(bouton, &QToolButton::clicked, this, [this, index] { feuilleter(index); });
        ligne->addWidget(bouton);
    };
    ajouterBouton(AnneePrecedente, u"premiere-page", u"Année précédente (Ctrl+Page préc.)"_s);
    ajouterBouton(MoisPrecedent, u"page-precedente", u"Mois précédent (Page préc.)"_s);
    ligne->addWidget(m_mois, 1);
    ligne->addWidget(m_annee);
    ajouterBouton(MoisSuivant, u"page-suivante", u"Mois suivant (Page suiv.)"_s);
    ajouterBouton(AnneeSuivante, u"derniere-page", u"Année suivante (Ctrl+Page suiv.)"_s);
    return barre;
}

QWidget* Q_Date_2::creerCellules()
{
    m_grille->setFocusPolicy(Qt::StrongFocus);
    m_grille->setAccessibleName(u"Jours du mois"_s);
    auto* grille = new QGridLayout(m_grille);
    grille->setContentsMargins({});
    grille->setSpacing(3);
    for (int colonne = 0; colonne < Calendrier::joursSemaine; ++colonne) {
        auto* entete = controls::captionLabel(Calendrier::entetes[static_cast<size_t>(colonne)]);
        entete->setAlignment(Qt::AlignCenter);
        grille->addWidget(entete, 0, colonne);
    }
    for (int i = 1; i < Calendrier::nbCellules; ++i) {
        auto* cellule = named(new CelluleJour, u"Jour", i);
        cellule->auDoubleClic = [this] { prendre(); };
        connect(cellule, &QToolButton::clicked, this, [this, i] {
            const int jour = m_calendrier.cellules()[static_cast<size_t>(i)];
            changer([&] { m_calendrier.choisirJour(jour); });
            m_grille->setFocus();
        });
        grille->addWidget(cellule, 1 + (i - 1) / Calendrier::joursSemaine, (i - 1) % Calendrier::joursSemaine);
        m_cellules[static_cast<size_t>(i)] = cellule;
    }
    return m_grille;
}

void Q_Date_2::feuilleter(int index)
{
    switch (index) {
    case MoisPrecedent:
        return changer([this] { m_calendrier.avancerMois(-1); });
    case MoisSuivant:
        return changer([this] { m_calendrier.avancerMois(1); });
    case AnneePrecedente:
        return changer([this] { m_calendrier.avancerAnnees(-1); });
    case AnneeSuivante:
        return changer([this] { m_calendrier.avancerAnnees(1); });
    }
}

template<class Pas> void Q_Date_2::changer(Pas pas)
{
    pas();
    afficher();
}

void Q_Date_2::afficher()
{
    const QSignalBlocker moisMuet(m_mois);
    const QSignalBlocker anneeMuette(m_annee);
    m_mois->setCurrentIndex(m_calendrier.mois() - 1);
    // A year before those of the list shows in its place.
    m_annee->setCurrentIndex(qMax(m_calendrier.annee() - premiereAnneeListe, -1));
    m_annee->setPlaceholderText(QString::number(m_calendrier.annee()));
    m_date->setText(m_calendrier.enToutesLettres());

    const Calendrier aujourdhui{QString()};
    const bool moisCourant = aujourdhui.mois() == m_calendrier.mois() && aujourdhui.annee() == m_calendrier.annee();
    const auto jours = m_calendrier.cellules();
    for (size_t i = 1; i < jours.size(); ++i)
        m_cellules[i]->montrer(jours[i], jours[i] == m_calendrier.jour(), moisCourant && jours[i] == aujourdhui.jour());
}

void Q_Date_2::prendre()
{
    m_choisie = m_calendrier.texte();
    leave(1);
}

void Q_Date_2::keyPressEvent(QKeyEvent* event)
{
    const bool annee = event->modifiers() & Qt::ControlModifier;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return prendre();
    case Qt::Key_Left:
        return changer([this] { m_calendrier.avancerJours(-1); });
    case Qt::Key_Right:
        return changer([this] { m_calendrier.avancerJours(1); });
    case Qt::Key_Up:
        return changer([this] { m_calendrier.avancerJours(-Calendrier::joursSemaine); });
    case Qt::Key_Down:
        return changer([this] { m_calendrier.avancerJours(Calendrier::joursSemaine); });
    case Qt::Key_PageUp:
        return feuilleter(annee ? AnneePrecedente : MoisPrecedent);
    case Qt::Key_PageDown:
        return feuilleter(annee ? AnneeSuivante : MoisSuivant);
    case Qt::Key_Home:
        return changer([this] { m_calendrier.choisirJour(1); });
    case Qt::Key_End:
        return changer([this] { m_calendrier.choisirJour(JoursDuMois(m_calendrier.mois(), m_calendrier.annee())); });
    default:
        Dialog::keyPressEvent(event);
    }
}

bool choisirDate(QWidget* parent, QLineEdit* champ)
{
    const std::optional<QString> date = Q_Date_2::demander(parent, champ->text().trimmed());
    if (date)
        champ->setText(*date);
    return date.has_value();
}

void viderDateRefusee(controls::TextField* champ)
{
    QObject::connect(champ, &controls::TextField::left, champ, [champ] {
        if (champ->text().isEmpty() || DateValide(champ->text()) == 0)
            return;
        services::sound::beep();
        champ->clear();
    });
}

} // namespace talor
