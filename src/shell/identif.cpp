#include "shell/identif.h"

#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;
using controls::TextField;

namespace {

/// Meaning of the indexes of `Image1`.
enum Action
{
    Enregistrer,
    Abandonner
};

/// Meaning of the indexes of `Option1`.
enum Sons
{
    Oui,
    Non
};

constexpr int longueurMax = 50;

struct Legende
{
    QString texte;
    QString unite;
};

const std::array<Legende, Identification::nbCases> legendes = {{{u" Téléphone"_s, {}},
                                                                {u" Fax"_s, {}},
                                                                {u" R.C."_s, {}},
                                                                {u" Id. Fiscale"_s, {}},
                                                                {u" Article"_s, {}},
                                                                {u" Compte Bancaire"_s, {}},
                                                                {u" Commission"_s, u"%"_s},
                                                                {u" Consigne"_s, u"DA"_s},
                                                                {u" TVA"_s, u"%"_s}}};

} // namespace

Identif::Identif(Exercice& exercice, QWidget* parent)
    : Dialog(u"Identif", u"Identification"_s, parent)
    , m_exercice(exercice)
{
    setWindowTitle(u" "_s);
    body()->addWidget(creerCases());
    body()->addStretch();
    askAtFoot(u"Image1"_s, Enregistrer, Abandonner, [this] {
        saisie().enregistrer(m_exercice, m_lue);
        leave();
    });
    montrer(Identification::lire(exercice));
    m_cases.front()->setFocus();
}

/// The fiscal data on the left, the rates and the sound beside them.
QWidget* Identif::creerCases()
{
    auto* cadre = new QFrame;
    controls::setRole(cadre, controls::Role::Panel);
    auto* grille = new QGridLayout(cadre);
    grille->setContentsMargins(16, 14, 16, 14);
    grille->setHorizontalSpacing(10);
    grille->setVerticalSpacing(8);
    grille->setColumnStretch(1, 1);
    grille->setColumnMinimumWidth(1, 240);
    grille->setColumnMinimumWidth(2, 14);
    auto* chaine = new controls::FieldChain(this);
    for (int i = 0; i < Identification::nbCases; ++i) {
        const bool taux = i >= Identification::Commission;
        const int ligne = taux ? i - Identification::Commission : i;
        const int colonne = taux ? 3 : 0;
        const Legende& legende = legendes[static_cast<size_t>(i)];
        auto* champ =
            named(new TextField(taux ? TextField::Kind::Amount : TextField::Kind::Free, longueurMax), u"Text1", i);
        grille->addWidget(controls::captionLabel(legende.texte.trimmed(), champ), ligne, colonne);
        grille->addWidget(champ, ligne, colonne + 1);
        if (taux)
            grille->addWidget(controls::captionLabel(legende.unite), ligne, colonne + 2);
        chaine->add(champ);
        m_cases[static_cast<size_t>(i)] = champ;
    }
    chaine->atLast([chaine] { chaine->goTo(0); });
    const int ligneSons = Identification::nbCases - Identification::Commission;
    grille->addWidget(controls::captionLabel(u"Effet sonore"_s), ligneSons, 3);
    grille->addWidget(creerSons(), ligneSons, 4, 1, 2);
    return cadre;
}

QWidget* Identif::creerSons()
{
    auto* options = new QWidget;
    options->setAccessibleName(u"Effet sonore"_s);
    auto* ligne = new QHBoxLayout(options);
    ligne->setContentsMargins({});
    ligne->setSpacing(18);
    m_sons = {named(new QRadioButton(u"OUI"_s), u"Option1", Oui), named(new QRadioButton(u"NON"_s), u"Option1", Non)};
    for (QRadioButton* option : m_sons)
        ligne->addWidget(option);
    ligne->addStretch();
    return options;
}

void Identif::montrer(const Identification& identification)
{
    for (size_t i = 0; i < m_cases.size(); ++i)
        m_cases[i]->setText(identification.cases[i]);
    m_sons[identification.EffetSonore ? Oui : Non]->setChecked(true);
    m_lue = identification;
}

Identification Identif::saisie() const
{
    Identification tapee;
    for (size_t i = 0; i < m_cases.size(); ++i)
        tapee.cases[i] = m_cases[i]->text();
    tapee.EffetSonore = m_sons[Oui]->isChecked();
    return tapee;
}

} // namespace talor
