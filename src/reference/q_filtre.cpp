#include "reference/q_filtre.h"

#include "core/montrer.h"
#include "core/state.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"
#include "platform/services/clock.h"
#include "reference/saisie_date.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

/// Meaning of the indexes of `Image1`.
enum Bouton
{
    CalendrierPremiere = 1,
    CalendrierSeconde,
    MoisSuivant,
    MoisPrecedent
};

/// Meaning of the indexes of `Image2`.
enum Action
{
    Prendre,
    Annuler
};

enum Page
{
    PageMois,
    PagePeriode
};

} // namespace

std::optional<Filtre> Q_Filtre::demander(QWidget* parent, const Exercice& exercice)
{
    Q_Filtre dialogue(exercice, parent);
    dialogue.exec();
    return dialogue.choisi();
}

Q_Filtre::Q_Filtre(const Exercice& exercice, QWidget* parent)
    : Dialog(u"Q_Filtre", u"Opérations  à  éditer"_s, parent)
    , m_pages(named(new QTabWidget, u"SSTab1"))
    , m_mois(named(creerComboMois(), u"Combo1"))
    , m_archive(new QButtonGroup(this))
{
    m_pages->addTab(creerPageMois(), u" &Mois"_s);
    m_pages->addTab(creerPagePeriode(exercice), u" &Période"_s);
    body()->addWidget(m_pages);
    body()->addWidget(creerArchives());
    body()->addStretch();

    askAtFoot(u"Image2"_s, Prendre, Annuler, [this] { prendre(); });
    connect(m_pages, &QTabWidget::currentChanged, this, &Q_Filtre::changerPage);
    m_mois->setFocus();
}

QWidget* Q_Filtre::creerPageMois()
{
    auto* page = new QWidget;
    auto* ligne = new QHBoxLayout(page);
    ligne->setContentsMargins(16, 16, 16, 16);
    ligne->setSpacing(6);
    ligne->addWidget(controls::captionLabel(u"Mois"_s, m_mois));
    ligne->addWidget(m_mois, 1);
    const auto ajouterBouton = [&](int index, QStringView image, const QString& nom, int pas) {
        QToolButton* bouton = named(controls::iconButton(image, nom), u"Image1", index);
        bouton->setAutoRepeat(true);
        connect(bouton, &QToolButton::clicked, this, [this, pas] { avancerMois(pas); });
        ligne->addWidget(bouton);
    };
    ajouterBouton(MoisPrecedent, u"monter", u"Mois précédent"_s, -1);
    ajouterBouton(MoisSuivant, u"descendre", u"Mois suivant"_s, 1);
    return page;
}

QWidget* Q_Filtre::creerPagePeriode(const Exercice& exercice)
{
    auto* page = new QWidget;
    auto* grille = new QGridLayout(page);
    grille->setContentsMargins(16, 16, 16, 16);
    grille->setHorizontalSpacing(6);
    grille->setVerticalSpacing(8);
    grille->setColumnStretch(1, 1);
    auto* chaine = new controls::FieldChain(this);
    const QString legendes[] = {u"Du"_s, u"Au"_s};
    const QString departs[] = {u"01/01/%1"_s.arg(exercice.Annee), services::clock::todayText()};
    for (int i = 0; i < 2; ++i) {
        const SaisieDate date = creerSaisieDate(this);
        auto* champ = named(date.champ, u"Text1", i + 1);
        auto* calendrier = named(date.calendrier, u"Image1", CalendrierPremiere + i);
        champ->setText(departs[i]);
        grille->addWidget(controls::captionLabel(legendes[i], champ), i, 0);
        grille->addWidget(champ, i, 1);
        grille->addWidget(calendrier, i, 2);
        chaine->add(champ);
        m_dates[static_cast<size_t>(i)] = champ;
    }
    chaine->atLast([this] { prendre(); });
    return page;
}

QWidget* Q_Filtre::creerArchives()
{
    auto* cadre = new QGroupBox(u"Opérations"_s);
    auto* colonne = new QVBoxLayout(cadre);
    const QString legendes[] = {u"Opérations récentes"_s, u"Opérations archivées"_s, u"Ensemble des opérations"_s};
    for (const EtatArchive etat : {EtatArchive::Recentes, EtatArchive::Archivees, EtatArchive::Ensemble}) {
        const int rang = static_cast<int>(etat) - 1;
        auto* option = named(new QRadioButton(legendes[rang]), u"Option1", rang);
        m_archive->addButton(option, static_cast<int>(etat));
        colonne->addWidget(option);
    }
    m_archive->button(static_cast<int>(EtatArchive::Recentes))->setChecked(true);
    return cadre;
}

void Q_Filtre::changerPage()
{
    // Who walks along the tabs by the arrows stays there.
    if (m_pages->tabBar()->hasFocus())
        return;
    if (m_pages->currentIndex() == PageMois)
        m_mois->setFocus();
    else
        m_dates.front()->setFocus();
}

void Q_Filtre::avancerMois(int pas)
{
    m_mois->setCurrentIndex(std::clamp(m_mois->currentIndex() + pas, 0, m_mois->count() - 1));
}

void Q_Filtre::prendre()
{
    const auto archive = static_cast<EtatArchive>(m_archive->checkedId());
    if (m_pages->currentIndex() == PageMois) {
        m_choisi = Filtre{m_mois->currentIndex() + 1, archive};
        return leave(1);
    }
    const Resultat<Periode> periode = lirePeriode(m_dates.front()->text(), m_dates.back()->text());
    if (!periode) {
        montrer(this, periode.refus());
        return viserDateFautive(m_dates.front(), m_dates.back());
    }
    m_choisi = Filtre{*periode, archive};
    leave(1);
}

/// Enter takes the answer from every control but the fields, which it walks through.
void Q_Filtre::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        prendre();
    else
        Dialog::keyPressEvent(event);
}

} // namespace talor
