#include "shell/form_v2.h"

#include "platform/controls/digit_pad.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "shell/saisie_mot.h"

#include <QBoxLayout>
#include <QLabel>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

Autorisation Form_v2::demander(QWidget* parent, Exercice& exercice, Verrou verrou)
{
    Form_v2 dialogue(exercice, verrou, parent);
    dialogue.exec();
    return dialogue.m_reponse;
}

Form_v2::Form_v2(Exercice& exercice, Verrou verrou, QWidget* parent)
    : Dialog(u"Form_v2", u"Autorisation"_s, parent)
    , m_demande(exercice, verrou)
    , m_mot(creerSaisieMot(1))
    , m_aide(named(controls::hintLabel(u"Tapez le mot au clavier ou au pavé."_s), u"Aide"))
{
    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(6);
    gauche->addWidget(controls::captionLabel(u"Mot d'accès"_s, m_mot));
    gauche->addWidget(m_mot);
    gauche->addWidget(m_aide);
    gauche->addStretch(1);
    auto* colonnes = new QHBoxLayout;
    colonnes->setSpacing(20);
    colonnes->addLayout(gauche, 1);
    colonnes->addWidget(
        new controls::DigitPad({u"SSCommand1"_s, controls::familyName(u"Image1", EffacerDernier)}, {m_mot}));
    body()->addLayout(colonnes);

    askAtFoot(u"Image1"_s, Valider, Quitter, [this] { valider(); });

    auto* chaine = new controls::FieldChain(this);
    chaine->add(m_mot);
    chaine->atLast([this] { valider(); });
    m_mot->setFocus();
}

void Form_v2::valider()
{
    const std::optional<Autorisation> reponse = m_demande.essayer(m_mot->text());
    if (!reponse) {
        m_aide->setText(u"Mot refusé. Essais restants : %1."_s.arg(m_demande.essaisRestants()));
        m_mot->setFocus();
        m_mot->selectAll();
        return;
    }
    m_reponse = *reponse;
    leave();
}

} // namespace talor
