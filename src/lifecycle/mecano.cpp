#include "lifecycle/mecano.h"

#include "core/message_window.h"
#include "lifecycle/reparation.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/labels.h"
#include "platform/controls/message.h"
#include "platform/controls/named.h"

#include <QApplication>
#include <QBoxLayout>
#include <QListWidget>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

enum Bouton
{
    Reparer,
    Quitter
};

} // namespace

Mecano::Mecano(Exercice& exercice, QWidget* parent)
    : Dialog(u"Mecano", u"Module de réparation"_s, parent)
    , m_exercice(exercice)
    , m_fichiers(named(new QListWidget, u"File1"))
{
    m_fichiers->addItems(basesReparables(exercice.installation()));
    m_fichiers->setCurrentRow(m_fichiers->count() - 1);

    body()->addWidget(controls::hintLabel(
        u"Le fichier choisi est vérifié, réparé s'il le faut, puis compacté. Rien d'autre n'est changé."_s));
    body()->addWidget(controls::captionLabel(u"Exercices"_s, m_fichiers));
    body()->addWidget(m_fichiers, 1);

    auto* boutons = new controls::CommandBar(u"Image1"_s);
    boutons->addStretch();
    boutons->add(Reparer, u"outils", u"Réparer"_s)->setPrimary();
    boutons->add(Quitter, u"quitter", u"Quitter"_s);
    boutons->button(Reparer)->setEnabled(m_fichiers->count() > 0);
    commands()->addWidget(boutons);
    setCancel({boutons->button(Quitter)});
    connect(boutons, &controls::CommandBar::triggered, this, [this](int bouton) {
        if (bouton == Reparer)
            reparer();
        else
            leave();
    });
    connect(m_fichiers, &QListWidget::itemActivated, this, &Mecano::reparer);
}

void Mecano::reparer()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const Resultat<QStringList> pertes = reparerBase(m_exercice, m_fichiers->currentItem()->text());
    QApplication::restoreOverrideCursor();
    if (!pertes) {
        montrer(this, pertes.refus());
        m_fin = Fin::Echoue;
        leave();
        return;
    }
    controls::Message::show(this, u"Base de données réparée avec succès"_s, u"TALOR"_s,
                            controls::MessageIcon::Information);
    if (!pertes->isEmpty())
        montrer(this, {u"Ce qui n'a pu être repris :\n"_s + pertes->join(u'\n'), u"TALOR"_s, Icone::Avertissement});
}

Mecano::Fin Mecano::ouvrir(Exercice& exercice, QWidget* parent)
{
    Mecano dialogue(exercice, parent);
    dialogue.exec();
    return dialogue.m_fin;
}

} // namespace talor
