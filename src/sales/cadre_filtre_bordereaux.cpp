#include "sales/cadre_filtre_bordereaux.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"
#include "platform/services/clock.h"
#include "reference/q_mos.h"
#include "reference/saisie_date.h"
#include "sales/choix_bateau.h"
#include "sales/combo_choix.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QShortcut>

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;
using controls::CommandButton;
using controls::named;
using controls::TextField;
using Genre = FiltreBordereaux::Genre;

namespace {

/// Meaning of the indexes of `Image21`: each line has its OK and its cancel.
enum Action
{
    AccepterMois = 1,
    AnnulerMois,
    AccepterPeriode,
    AnnulerPeriode
};

/// Meaning of the indexes of `Image31`.
enum Bouton
{
    Ensemble,
    RechercheBateau,
    RechercheMois,
    CalendrierPremiere,
    CalendrierSeconde
};

template<class Action> QToolButton* bouton(int index, QStringView image, const QString& nom, Action action)
{
    QToolButton* cree = named(controls::iconButton(image, nom), u"Image31", index);
    QObject::connect(cree, &QToolButton::clicked, cree, action);
    return cree;
}

} // namespace

CadreFiltreBordereaux::CadreFiltreBordereaux(Exercice& exercice, const RegistreBordereaux& registre, QWidget* dialogue)
    : m_registre(registre)
    , m_bateau(named(creerComboChoix(), u"Combo21"))
    , m_mois(named(creerComboMois(), u"Combo1"))
{
    named(this, u"SSFrame2");
    setAccessibleName(u"Filtre"_s);
    controls::setRole(this, controls::Role::Panel);

    auto* grille = new QGridLayout(this);
    grille->setContentsMargins(16, 10, 16, 12);
    grille->setHorizontalSpacing(12);
    grille->setVerticalSpacing(8);
    grille->addWidget(controls::sectionLabel(u"Filtre"_s), 0, 0, 1, 2);
    grille->setColumnStretch(3, 1);
    const auto ajouter = [grille](const QString& legende, QWidget* champ, QBoxLayout* ligne) {
        ligne->setSpacing(6);
        ligne->addStretch();
        const int rang = grille->rowCount();
        grille->addWidget(controls::captionLabel(legende, champ), rang, 0);
        grille->addLayout(ligne, rang, 1);
        return rang;
    };
    ajouter(u"&Embarcation"_s, m_bateau, creerBateau(exercice, dialogue));
    m_okMois = ajouterOk(grille, ajouter(u"&Mois"_s, m_mois, creerMois(dialogue)), Genre::Mois);
    QBoxLayout* periode = creerPeriode(dialogue);
    m_okPeriode = ajouterOk(grille, ajouter(u"&Du"_s, m_dates[0], periode), Genre::Periode);

    auto* mois = new controls::FieldChain(this);
    mois->add({m_bateau, m_mois});
    mois->atLast([this] { m_okMois->click(); });
    auto* dates = new controls::FieldChain(this);
    dates->add({m_dates[0], m_dates[1]});
    dates->atLast([this] { m_okPeriode->click(); });
    auto* ok = new QShortcut(Qt::CTRL | Qt::Key_Return, this);
    ok->setContext(Qt::WidgetWithChildrenShortcut);
    connect(ok, &QShortcut::activated, this, [this] { (estDansPeriode() ? m_okPeriode : m_okMois)->click(); });
}

QBoxLayout* CadreFiltreBordereaux::creerBateau(Exercice& exercice, QWidget* dialogue)
{
    auto* ligne = new QHBoxLayout;
    ligne->addWidget(m_bateau);
    ligne->addWidget(bouton(Ensemble, u"actualiser", u"Ensemble des embarcations"_s,
                            [this] { m_bateau->setCurrentIndex(m_bateau->count() - 1); }));
    ligne->addWidget(bouton(RechercheBateau, u"recherche", u"Chercher l'embarcation"_s,
                            [=, this, &exercice] { choisirBateau(dialogue, exercice, m_registre, m_bateau); }));
    ligne->addStretch();
    return ligne;
}

QBoxLayout* CadreFiltreBordereaux::creerMois(QWidget* dialogue)
{
    auto* ligne = new QHBoxLayout;
    ligne->addWidget(m_mois);
    ligne->addWidget(bouton(RechercheMois, u"recherche", u"Choisir le mois"_s, [this, dialogue] {
        m_mois->setFocus();
        if (const auto mois = Q_Mos::demander(dialogue, m_mois->currentIndex() + 1))
            m_mois->setCurrentIndex(*mois - 1);
    }));
    return ligne;
}

QBoxLayout* CadreFiltreBordereaux::creerPeriode(QWidget* dialogue)
{
    auto* ligne = new QHBoxLayout;
    for (int i = 0; i < 2; ++i) {
        const SaisieDate date = creerSaisieDate(dialogue);
        auto* champ = named(date.champ, u"Text21", i + 1);
        champ->setText(services::clock::todayText());
        champ->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        if (i > 0) {
            ligne->addSpacing(6);
            ligne->addWidget(controls::captionLabel(u"a&u"_s, champ));
        }
        ligne->addWidget(champ);
        ligne->addWidget(named(date.calendrier, u"Image31", CalendrierPremiere + i));
        m_dates[static_cast<size_t>(i)] = champ;
    }
    return ligne;
}

CommandButton* CadreFiltreBordereaux::ajouterOk(QGridLayout* grille, int rang, Genre genre)
{
    const bool parMois = genre == Genre::Mois;
    auto* ok = named(new CommandButton(u"ok", u"OK"_s), u"Image21", parMois ? AccepterMois : AccepterPeriode);
    auto* annuler =
        named(new CommandButton(u"annuler", u"Annuler"_s), u"Image21", parMois ? AnnulerMois : AnnulerPeriode);
    ok->setPrimary();
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(6);
    for (CommandButton* action : {ok, annuler}) {
        action->setCompact();
        ligne->addWidget(action);
    }
    grille->addLayout(ligne, rang, 2);
    m_annuler.append(annuler);
    connect(ok, &QToolButton::clicked, this, [this, genre] { emit accepte(filtre(genre)); });
    connect(annuler, &QToolButton::clicked, this, &CadreFiltreBordereaux::abandonne);
    return ok;
}

void CadreFiltreBordereaux::ouvrir()
{
    const ListeChoix bateaux = m_registre.embarcations().avecEnsemble();
    const bool tous = m_bateau->currentIndex() < 0 || m_bateau->currentIndex() == m_bateau->count() - 1;
    const int rang = tous ? bateaux.nombre() - 1 : m_bateau->currentIndex();
    remplirCombo(m_bateau, bateaux);
    m_bateau->setCurrentIndex(rang);
    m_bateau->setFocus(Qt::TabFocusReason);
}

void CadreFiltreBordereaux::viser(const FiltreBordereaux& refuse)
{
    if (refuse.genre == Genre::Mois)
        return m_mois->setFocus(Qt::TabFocusReason);
    viserDateFautive(m_dates[0], m_dates[1]);
}

FiltreBordereaux CadreFiltreBordereaux::filtre(Genre genre) const
{
    const ListeChoix& bateaux = m_registre.embarcations();
    const int rang = m_bateau->currentIndex();
    return {genre, m_mois->currentIndex() + 1, m_dates[0]->text(), m_dates[1]->text(),
            rang >= 0 && rang < bateaux.nombre() ? bateaux[rang].num : numEnsemble};
}

bool CadreFiltreBordereaux::estDansPeriode() const
{
    const QWidget* champ = QApplication::focusWidget();
    const QWidget* periode[] = {m_dates[0], m_dates[1], m_okPeriode};
    return std::ranges::find(periode, champ) != std::end(periode);
}

} // namespace talor
