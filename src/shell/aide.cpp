#include "shell/aide.h"

#include "core/state.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/dialog.h"
#include "platform/controls/icons.h"
#include "platform/controls/labels.h"
#include "platform/controls/named.h"

#include <QBoxLayout>
#include <QFile>
#include <QLabel>
#include <QTextBrowser>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

constexpr QSize tailleAide(760, 560);
constexpr int margeAide = 18;
constexpr int coteEmbleme = 96;

void ajouterFermer(controls::Dialog& dialogue)
{
    auto* fermer = named(new controls::CommandButton(u"ok", u"OK"_s), u"Image1");
    fermer->setPrimary();
    QObject::connect(fermer, &QAbstractButton::clicked, &dialogue, [&dialogue] { dialogue.leave(); });
    dialogue.commands()->addStretch();
    dialogue.commands()->addWidget(fermer);
    dialogue.setCancel({fermer});
}

QString presentation()
{
    QFile fichier(u":/talor/presentation.html"_s);
    return fichier.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichier.readAll()) : QString();
}

} // namespace

void montrerAide(QWidget* parent)
{
    controls::Dialog dialogue(u"F_HLP", u"Aide"_s, parent);
    auto* texte = named(new QTextBrowser, u"Text1");
    texte->setHtml(presentation());
    texte->document()->setDocumentMargin(margeAide);
    dialogue.body()->addWidget(texte);
    ajouterFermer(dialogue);
    dialogue.resize(tailleAide);
    dialogue.exec();
}

void montrerAPropos(QWidget* parent, const Exercice& exercice)
{
    controls::Dialog dialogue(u"APropos", u"À propos de TALOR"_s, parent);
    auto* embleme = new QLabel;
    embleme->setPixmap(
        controls::applicationIcon().pixmap(QSize(coteEmbleme, coteEmbleme), dialogue.devicePixelRatioF()));
    embleme->setAlignment(Qt::AlignTop);
    auto* texte =
        named(new QLabel(u"<h2 style='margin-top:0'>TALOR</h2>"
                         "<p>Version 2.1, révisée le 06/06/2022</p>"
                         "<p>La gestion du mandataire en poissons :<br>ventes à la criée, factures, décomptes,"
                         "<br>comptes et caisse.</p>"_s),
              u"Label1");
    texte->setTextFormat(Qt::RichText);
    auto* fichier = named(controls::hintLabel(u"Exercice en vue : "_s + exercice.CheminBase), u"Label2");
    fichier->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(20);
    rangee->addWidget(embleme);
    rangee->addWidget(texte, 1);
    dialogue.body()->addLayout(rangee);
    dialogue.body()->addWidget(fichier);
    ajouterFermer(dialogue);
    dialogue.exec();
}

} // namespace talor
