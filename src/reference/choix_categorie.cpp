#include "reference/choix_categorie.h"

#include "core/helpers.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/labels.h"
#include "platform/controls/named.h"
#include "reference/familles.h"

#include <QBoxLayout>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

ChoixCategorie::ChoixCategorie(Exercice& exercice)
    : m_exercice(exercice)
    , m_nom(named(controls::valueLabel(Qt::AlignLeft), u"Label2", 3))
{
    auto* bouton = named(controls::iconButton(u"liste", u"Catégorie"_s, Qt::Key_F4), u"Image1", 0);
    auto* ligne = new QHBoxLayout(this);
    ligne->setContentsMargins({});
    ligne->setSpacing(6);
    ligne->addWidget(m_nom, 1);
    ligne->addWidget(bouton);
    setFocusProxy(bouton);
    connect(bouton, &QToolButton::clicked, this, &ChoixCategorie::choisir);
}

QString ChoixCategorie::num() const
{
    return m_nom->property("tag").toString();
}

void ChoixCategorie::poser(const QString& num)
{
    const QString denom = nomCategorie(m_exercice, ValeurEntiere(num));
    m_nom->setText(denom);
    m_nom->setProperty("tag", denom.isEmpty() ? QString() : num);
}

void ChoixCategorie::choisir()
{
    const std::optional<Categorie> choisie = Familles::demander(this, m_exercice, ValeurEntiere(num()));
    poser(choisie ? QString::number(choisie->num) : num());
}

} // namespace talor
