#include "tools/calclette.h"

#include "core/helpers.h"
#include "core/jouer.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/controls/number_pad.h"
#include "platform/controls/pad_key.h"
#include "platform/controls/text_field.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;
using controls::TextField;

namespace {

/// Meaning of the indexes of `Image1`.
enum Action
{
    EffacerDernier,
    Valider,
    Annuler
};

/// `SSCommand2` between its two clearing keys: these move the number into the value before their own index.
constexpr int premierePose = 1;
constexpr int effacerChiffres = 0;
constexpr int effacerPrimes = 4;

constexpr int longueurNombre = 12;
constexpr double tauxLimite = 100;

const QStringList legendesChiffres = {u"Cageots"_s, u"Poids"_s, u"P.U."_s};
const QStringList legendesPrimes = {u"Primes"_s, u"Commission (%)"_s};

/// A key of one row beside others of its kind.
QPushButton* grandeTouche(const QString& texte)
{
    QPushButton* touche = controls::padKey(texte);
    touche->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return touche;
}

} // namespace

std::optional<Chiffres> Calclette::demanderChiffres(QWidget* parent, const Exercice& exercice)
{
    Calclette dialogue(Emploi::Chiffres, exercice, parent);
    if (!dialogue.valide())
        return std::nullopt;
    return Chiffres{dialogue.m_valeurs[0]->text(), dialogue.m_valeurs[1]->text(), dialogue.m_valeurs[2]->text()};
}

std::optional<PrimesEtTaux> Calclette::demanderPrimes(QWidget* parent, const Exercice& exercice,
                                                      const PrimesEtTaux& actuels)
{
    Calclette dialogue(Emploi::Primes, exercice, parent);
    dialogue.m_cases[0]->setText(actuels.primes.trimmed());
    dialogue.m_cases[1]->setText(actuels.taux.trimmed());
    dialogue.m_cases[0]->selectAll();
    if (!dialogue.valide())
        return std::nullopt;
    const QString taux = dialogue.m_cases[1]->text();
    return PrimesEtTaux{dialogue.m_cases[0]->text(), Valeur(taux) < tauxLimite ? taux : QString()};
}

Calclette::Calclette(Emploi emploi, const Exercice& exercice, QWidget* parent)
    : Dialog(u"Calclette", emploi == Emploi::Chiffres ? u"Cageots, poids et prix"_s : u"Primes et commission"_s, parent)
    , m_emploi(emploi)
    , m_pave(new controls::NumberPad({u"SSCommand1"_s, u"Label1"_s, u"Image1(%1)"_s.arg(EffacerDernier)}))
    , m_legende(named(controls::sectionLabel(), u"Label4"))
{
    auto* colonnes = new QHBoxLayout;
    colonnes->setSpacing(20);
    colonnes->addWidget(emploi == Emploi::Chiffres ? creerValeurs() : creerCases(), 1);
    colonnes->addWidget(creerPave());
    body()->addLayout(colonnes);

    askAtFoot(u"Image1"_s, Valider, Annuler, [this] { valider(); });
    suivreClics(exercice);
    // The keyboard types into the pad, not on the command that Qt would put in focus.
    if (emploi == Emploi::Chiffres) {
        m_pave->setFocusPolicy(Qt::StrongFocus);
        m_pave->setFocus();
    }
    mettreEnMain(0);
}

/// First use: a key and the value that it takes.
QWidget* Calclette::creerValeurs()
{
    auto* panneau = new QWidget;
    auto* grille = new QGridLayout(panneau);
    grille->setContentsMargins({});
    grille->setSpacing(8);
    for (int i = 0; i < legendesChiffres.size(); ++i) {
        auto* touche = named(grandeTouche(legendesChiffres[i]), u"SSCommand2", premierePose + i);
        connect(touche, &QPushButton::clicked, this, [this, i] { poser(i); });
        auto* valeur = named(controls::totalLabel(), u"Label2", i);
        valeur->setAccessibleName(legendesChiffres[i]);
        grille->addWidget(touche, i, 0);
        grille->addWidget(valeur, i, 1);
        m_valeurs.append(valeur);
    }
    grille->setColumnMinimumWidth(0, 110); // "Cageots" keeps its margins
    grille->setColumnStretch(1, 1);
    grille->setRowStretch(static_cast<int>(legendesChiffres.size()), 1);
    return panneau;
}

/// Second use: two boxes, filled by the pad or typed into.
QWidget* Calclette::creerCases()
{
    auto* panneau = new QWidget;
    auto* colonne = new QVBoxLayout(panneau);
    colonne->setContentsMargins({});
    auto* chaine = new controls::FieldChain(this);
    for (int i = 0; i < legendesPrimes.size(); ++i) {
        auto* champ = named(new TextField(TextField::Kind::Amount, longueurNombre), u"Text1", i);
        m_pave->serve(champ);
        colonne->addWidget(controls::captionLabel(legendesPrimes[i], champ));
        colonne->addWidget(champ);
        colonne->addSpacing(8);
        chaine->add(champ);
        m_cases.append(champ);
    }
    colonne->addStretch(1);
    chaine->atLast([this] { valider(); });
    connect(m_pave, &controls::NumberPad::turned, this, &Calclette::mettreEnMain);
    return panneau;
}

QWidget* Calclette::creerPave()
{
    auto* panneau = new QWidget;
    auto* colonne = new QVBoxLayout(panneau);
    colonne->setContentsMargins({});
    colonne->setSpacing(6);
    auto* effacement = named(grandeTouche(u"Effacer"_s), u"SSCommand2",
                             m_emploi == Emploi::Chiffres ? effacerChiffres : effacerPrimes);
    connect(effacement, &QPushButton::clicked, this, &Calclette::effacer);
    colonne->addWidget(m_legende);
    colonne->addWidget(m_pave, 1);
    colonne->addWidget(effacement);
    return panneau;
}

void Calclette::suivreClics(const Exercice& exercice)
{
    for (const QAbstractButton* touche : findChildren<QAbstractButton*>())
        connect(touche, &QAbstractButton::clicked, this, [&exercice] { JouerTouche(exercice); });
}

void Calclette::mettreEnMain(int rang)
{
    m_enMain = rang;
    m_pave->clear();
    m_legende->setText(m_emploi == Emploi::Chiffres ? legendesChiffres[rang] : legendesPrimes[rang]);
    for (int i = 0; i < m_valeurs.size(); ++i)
        controls::setInHand(m_valeurs[i], i == rang);
    if (m_emploi == Emploi::Primes && !m_cases[rang]->hasFocus())
        m_cases[rang]->setFocus();
}

/// The number goes into a value, and the next value comes in hand.
void Calclette::poser(int rang)
{
    m_valeurs[rang]->setText(m_pave->text());
    mettreEnMain((rang + 1) % static_cast<int>(m_valeurs.size()));
}

void Calclette::effacer()
{
    m_pave->clear();
    if (m_emploi == Emploi::Primes)
        m_cases[m_enMain]->clear();
}

/// Enter in the first use: the number into the value in hand; without a number, the values are taken.
void Calclette::entrer()
{
    if (m_pave->text().isEmpty())
        valider();
    else
        poser(m_enMain);
}

/// A number not yet moved goes where Enter would have put it.
void Calclette::valider()
{
    if (m_emploi == Emploi::Chiffres && !m_pave->text().isEmpty())
        poser(m_enMain);
    leave(valideCode);
}

void Calclette::keyPressEvent(QKeyEvent* event)
{
    if (m_emploi == Emploi::Chiffres) {
        const int dernier = static_cast<int>(m_valeurs.size()) - 1;
        switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return entrer();
        case Qt::Key_Up:
            return mettreEnMain(std::max(m_enMain - 1, 0));
        case Qt::Key_Down:
            return mettreEnMain(std::min(m_enMain + 1, dernier));
        case Qt::Key_Delete:
            return effacer();
        default:
            if (taperAuPave(*event))
                return;
        }
    }
    Dialog::keyPressEvent(event);
}

/// The keyboard presses the keys of the pad.
bool Calclette::taperAuPave(const QKeyEvent& event)
{
    constexpr int point = 10;
    const QString texte = event.text();
    QString nom;
    if (event.key() == Qt::Key_Backspace)
        nom = controls::familyName(u"Image1", EffacerDernier);
    else if (texte == u"." || texte == u",")
        nom = controls::familyName(u"SSCommand1", point);
    else if (texte.size() == 1 && texte[0] >= u'0' && texte[0] <= u'9')
        nom = controls::familyName(u"SSCommand1", texte[0].digitValue());
    auto* touche = nom.isEmpty() ? nullptr : findChild<QPushButton*>(nom);
    if (touche)
        touche->click();
    return touche != nullptr;
}

} // namespace talor
