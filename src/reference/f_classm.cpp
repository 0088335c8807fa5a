#include "reference/f_classm.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/named.h"

#include <QBoxLayout>
#include <QRadioButton>
#include <QShortcut>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

std::optional<Classement> F_Classm::demander(QWidget* parent)
{
    F_Classm dialogue(parent);
    dialogue.exec();
    return dialogue.choisi();
}

F_Classm::F_Classm(QWidget* parent)
    : Dialog(u"F_Classm", u"Classement"_s, parent)
    , m_manuel(named(new QRadioButton(u"Ordre manuel"_s), u"Option1", 0))
{
    auto* alphabetique = named(new QRadioButton(u"Ordre alphabétique"_s), u"Option1", 1);
    m_manuel->setChecked(true);
    body()->addWidget(m_manuel);
    body()->addWidget(alphabetique);

    auto* commandes = new controls::CommandBar(u"Image1"_s);
    auto* ok = commandes->add(0, u"ok", u"OK"_s, Qt::Key_Return);
    ok->setPrimary();
    connect(new QShortcut(Qt::Key_Enter, ok), &QShortcut::activated, ok, &QToolButton::click);
    auto* annuler = commandes->add(1, u"annuler", u"Annuler"_s);
    this->commands()->addStretch();
    this->commands()->addWidget(commandes);
    setCancel({annuler});

    connect(ok, &QToolButton::clicked, this, &F_Classm::accepter);
    connect(annuler, &QToolButton::clicked, this, [this] { leave(); });
    setMinimumWidth(320);
    m_manuel->setFocus();
}

void F_Classm::accepter()
{
    m_choisi = m_manuel->isChecked() ? Classement::OrdreManuel : Classement::OrdreAlphabetique;
    leave(static_cast<int>(*m_choisi));
}

} // namespace talor
