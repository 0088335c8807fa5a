#include "lifecycle/form12.h"

#include "core/montrer.h"
#include "lifecycle/premier_exercice.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"
#include "platform/services/clock.h"

#include <QBoxLayout>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

constexpr int chiffresAnnee = 4;

enum Bouton
{
    Accepter,
    Annuler
};

} // namespace

Form12::Form12(const Installation& installation, const QString& CodeFichier, QWidget* parent)
    : Dialog(u"Form12", u"Initialisation"_s, parent)
    , m_installation(installation)
    , m_CodeFichier(CodeFichier)
    , m_annee(named(new controls::TextField(controls::TextField::Kind::Digits, chiffresAnnee), u"Text1"))
{
    m_annee->setText(QString::number(services::clock::today().year()));

    auto* ligne = new QHBoxLayout;
    ligne->addWidget(controls::captionLabel(u"Exercice Initial"_s, m_annee));
    ligne->addWidget(m_annee);
    ligne->addStretch();
    body()->addWidget(controls::hintLabel(
        u"Bienvenue. Indiquez l'année du premier exercice : son fichier est créé avec vos données."_s));
    body()->addLayout(ligne);
    body()->addStretch();

    askAtFoot(u"Image5"_s, Accepter, Annuler, [this] { valider(); });

    auto* chaine = new controls::FieldChain(this);
    chaine->add(m_annee);
    chaine->atLast([this] { valider(); });
}

void Form12::valider()
{
    const Resultat<PointeurAnnee> premier = ouvrirPremierExercice(m_installation, m_CodeFichier, m_annee->text());
    if (!premier) {
        montrer(this, premier.refus());
        m_annee->setFocus();
        m_annee->selectAll();
        return;
    }
    m_choisi = *premier;
    leave();
}

std::optional<PointeurAnnee> Form12::demander(const Installation& installation, const QString& CodeFichier,
                                              QWidget* parent)
{
    Form12 dialogue(installation, CodeFichier, parent);
    dialogue.exec();
    return dialogue.m_choisi;
}

} // namespace talor
