#include "shell/new_mps.h"

#include "core/montrer.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/digit_pad.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/labels.h"
#include "shell/saisie_mot.h"

#include <QBoxLayout>
#include <QLabel>

namespace talor {

using namespace Qt::StringLiterals;
using Case = ChangementMot::Case;

New_MPS::New_MPS(Exercice& exercice, QWidget* parent)
    : Dialog(u"New_MPS", u"Mot d'accès"_s, parent)
    , m_changement(exercice)
{
    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(6);
    gauche->addWidget(controls::sectionLabel(u"Mot de Passe"_s));
    const std::pair<Case, QString> cases[] = {
        {Case::Actuel, u"Mot actuel"_s}, {Case::Nouveau, u"Nouveau"_s}, {Case::Confirmation, u"Confirmation"_s}};
    for (const auto& [rang, legende] : cases) {
        controls::TextField* saisie = creerSaisieMot(static_cast<int>(rang));
        gauche->addWidget(controls::captionLabel(legende, saisie));
        gauche->addWidget(saisie);
        gauche->addSpacing(6);
        m_champs.append(saisie);
    }
    gauche->addStretch(1);
    auto* colonnes = new QHBoxLayout;
    colonnes->setSpacing(20);
    colonnes->addLayout(gauche, 1);
    colonnes->addWidget(
        new controls::DigitPad({u"SSCommand1"_s, controls::familyName(u"Image1", EffacerDernier)}, m_champs));
    body()->addLayout(colonnes);

    auto* commandes = new controls::CommandBar(u"Image1"_s);
    commandes->addStretch();
    commandes->add(Valider, u"ok", u"OK"_s)->setPrimary();
    auto* quitter = commandes->add(Quitter, u"quitter", u"Quitter"_s);
    this->commands()->addWidget(commandes);
    setCancel({quitter});
    connect(commandes, &controls::CommandBar::triggered, this, [this](int index) {
        if (index == Valider)
            valider();
        else
            leave();
    });
    auto* chaine = new controls::FieldChain(this);
    for (controls::TextField* saisie : m_champs)
        chaine->add(saisie);
    chaine->atLast([this] { valider(); });
    m_champs.first()->setFocus();
}

controls::TextField* New_MPS::champ(Case rang) const
{
    return m_champs[static_cast<int>(rang) - static_cast<int>(Case::Actuel)];
}

void New_MPS::valider()
{
    const ChangementMot::Issue issue = m_changement.valider(champ(Case::Actuel)->text(), champ(Case::Nouveau)->text(),
                                                            champ(Case::Confirmation)->text());
    montrer(this, issue.message);
    if (issue.ferme)
        return leave();
    champ(issue.champ)->setFocus();
    champ(issue.champ)->selectAll();
}

} // namespace talor
