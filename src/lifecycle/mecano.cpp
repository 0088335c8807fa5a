#include "lifecycle/mecano.h"

#include "core/helpers.h"
#include "core/montrer.h"
#include "lifecycle/reparation.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/grid.h"
#include "platform/controls/labels.h"
#include "platform/controls/message.h"
#include "platform/controls/named.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDateTime>
#include <QFileInfo>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

constexpr QSize taille(520, 400);

enum Bouton
{
    Reparer,
    Quitter
};

} // namespace

Mecano::Mecano(Exercice& exercice, QWidget* parent)
    : Dialog(u"Mecano", u"Module de réparation"_s, parent)
    , m_exercice(exercice)
    , m_fichiers(named(new controls::Grid, u"File1"))
{
    m_fichiers->setColumns(
        {{u"Fichier"_s, 1700, Qt::AlignLeft, true}, {u"Taille"_s, 1200, Qt::AlignRight}, {u"Modifié le"_s, 2100}});
    lister();

    body()->addWidget(controls::hintLabel(
        u"Le fichier choisi est vérifié, réparé s'il le faut, puis compacté. Rien d'autre n'est changé."_s));
    body()->addWidget(m_fichiers, 1);

    auto* boutons = new controls::CommandBar(u"Image1"_s);
    boutons->addStretch();
    boutons->add(Reparer, u"outils", u"Réparer"_s)->setPrimary();
    boutons->add(Quitter, u"quitter", u"Quitter"_s);
    boutons->button(Reparer)->setEnabled(m_fichiers->rowCount() > 0);
    commands()->addWidget(boutons);
    setCancel({boutons->button(Quitter)});
    connect(boutons, &controls::CommandBar::triggered, this, [this](int bouton) {
        if (bouton == Reparer)
            reparer();
        else
            leave();
    });
    resize(taille);
    connect(m_fichiers, &controls::Grid::rowActivated, this, &Mecano::reparer);
}

void Mecano::lister()
{
    const QStringList noms = basesReparables(m_exercice.installation());
    m_fichiers->setRows(static_cast<int>(noms.size()), [this, noms](int rang, int colonne) {
        const QFileInfo fichier(m_exercice.installation().chemin(noms[rang]));
        switch (colonne) {
        case 0:
            return noms[rang];
        case 1:
            return Format(static_cast<double>(fichier.size()) / 1024, u"### ### ##0 Ko"_s);
        default:
            return fichier.lastModified().toString(u"dd/MM/yyyy  HH:mm"_s);
        }
    });
    m_fichiers->selectRow(static_cast<int>(noms.size()) - 1);
}

void Mecano::reparer()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const Resultat<QStringList> pertes = reparerBase(m_exercice, m_fichiers->text(m_fichiers->currentRow(), 0));
    QApplication::restoreOverrideCursor();
    m_fichiers->refresh();
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
