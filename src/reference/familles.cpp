#include "reference/familles.h"

#include "core/montrer.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/entry_panel.h"
#include "platform/controls/field_chain.h"
#include "platform/controls/message.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"

#include <QBoxLayout>
#include <QListWidget>
#include <QShortcut>

namespace talor {

using namespace Qt::StringLiterals;
using controls::Message;
using controls::named;

namespace {

constexpr int longueurDenom = 100;

/// Meaning of the indexes of `Image1`.
enum Action
{
    Nouveau,
    Modifier,
    Supprimer,
    Quitter
};

} // namespace

std::optional<Categorie> Familles::demander(QWidget* parent, Exercice& exercice, qint64 actuelle)
{
    Familles dialogue(exercice, actuelle, parent);
    dialogue.exec();
    return dialogue.choisie();
}

Familles::Familles(Exercice& exercice, qint64 actuelle, QWidget* parent)
    : Dialog(u"Familles", u"Catégories de Clients"_s, parent)
    , m_exercice(exercice)
    , m_liste(named(new QListWidget, u"List1"))
    , m_cadre(new controls::EntryPanel(u"SSFrame1", u"SSPanel2"))
    , m_texte(named(new controls::TextField(controls::TextField::Kind::Free, longueurDenom), u"Text1"))
{
    m_liste->setAccessibleName(u"Catégories de Clients"_s);
    m_cadre->addField(u"Libellé"_s, m_texte);
    auto* ok = m_cadre->addAccept(u"Image2", 0);
    m_annuler = m_cadre->addCancel(u"Image2", 1);

    body()->addWidget(m_liste, 1);
    body()->addWidget(m_cadre);

    auto* commandes = new controls::CommandBar(u"Image1"_s);
    commandes->add(Nouveau, u"nouveau", u" Nouveau "_s, Qt::Key_Insert);
    commandes->add(Modifier, u"modifier", u" Modifier "_s, Qt::Key_F2);
    commandes->add(Supprimer, u"supprimer", u" Supprimer "_s, Qt::Key_Delete);
    commandes->addStretch();
    auto* quitter = commandes->add(Quitter, u"quitter", u" Quitter "_s);
    this->commands()->addWidget(commandes);
    setCancel({m_annuler, quitter});

    auto* chaine = new controls::FieldChain(this);
    chaine->add(m_texte);
    chaine->atLast([this] { accepter(); });

    connect(commandes, &controls::CommandBar::triggered, this, &Familles::executer);
    connect(ok, &QToolButton::clicked, this, &Familles::accepter);
    connect(m_annuler, &QAbstractButton::clicked, this, &Familles::abandonner);
    connect(m_texte, &QLineEdit::textEdited, this, [this] {
        if (m_saisie == Saisie::Aucune)
            commencer(Saisie::Nouvelle);
    });
    connect(m_liste, &QListWidget::currentRowChanged, this, &Familles::reprendreSelection);
    connect(m_liste, &QListWidget::itemClicked, this, &Familles::reprendreSelection);
    for (const Qt::Key entree : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(entree, m_liste, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
                &Familles::quitter);
    remplir(actuelle);
    resize(480, 560);
}

void Familles::executer(int index)
{
    switch (index) {
    case Nouveau:
        return nouvelle();
    case Modifier:
        return modifier();
    case Supprimer:
        return supprimer();
    case Quitter:
        return quitter();
    }
}

void Familles::remplir(qint64 num)
{
    m_categories = listerCategories(m_exercice);
    const QSignalBlocker muet(m_liste);
    m_liste->clear();
    int ligne = 0;
    for (const Categorie& categorie : std::as_const(m_categories)) {
        if (categorie.num == num)
            ligne = m_liste->count();
        m_liste->addItem(categorie.denom);
    }
    m_liste->setCurrentRow(m_categories.isEmpty() ? -1 : ligne);
    abandonner();
}

std::optional<Categorie> Familles::selection() const
{
    const int ligne = m_liste->currentRow();
    return ligne < 0 ? std::nullopt : std::optional(m_categories[ligne]);
}

void Familles::reprendreSelection()
{
    m_texte->setText(selection().value_or(Categorie{}).denom);
}

void Familles::commencer(Saisie saisie)
{
    m_saisie = saisie;
    m_cadre->setTitle(saisie == Saisie::Nouvelle ? u"Nouvelle Famille"_s : u"Modification"_s);
    m_annuler->setEnabled(true);
}

void Familles::nouvelle()
{
    commencer(Saisie::Nouvelle);
    m_texte->clear();
    m_texte->setFocus();
}

void Familles::modifier()
{
    if (!selection())
        return;
    commencer(Saisie::Modification);
    reprendreSelection();
    m_texte->setFocus();
}

void Familles::abandonner()
{
    m_saisie = Saisie::Aucune;
    m_cadre->setTitle({});
    m_annuler->setEnabled(false);
    reprendreSelection();
    m_liste->setFocus();
}

void Familles::accepter()
{
    const QString texte = m_texte->text();
    if (m_saisie == Saisie::Aucune && !texte.isEmpty())
        return quitter();
    const Resultat<qint64> num = m_saisie == Saisie::Modification
                                     ? renommerCategorie(m_exercice, selection().value_or(Categorie{}).num, texte)
                                     : ajouterCategorie(m_exercice, texte);
    if (!num) {
        montrer(this, num.refus());
        return m_texte->setFocus();
    }
    remplir(*num);
}

void Familles::supprimer()
{
    const std::optional<Categorie> categorie = selection();
    if (montrerSi(this, empechementCategorie(m_exercice, categorie ? std::optional(categorie->num) : std::nullopt)))
        return;
    if (!Message::confirm(this, u"Confirmer la suppression ?"_s, u"Attention"_s))
        return;
    if (montrerSi(this, supprimerCategorie(m_exercice, categorie->num)))
        return;
    const int voisine = qMin(m_liste->currentRow() + 1, static_cast<int>(m_categories.size()) - 1);
    remplir(m_categories[voisine].num);
}

void Familles::quitter()
{
    const Categorie choisie = selection().value_or(Categorie{});
    if (m_texte->text() != choisie.denom) {
        const QString question =
            u"La selection ne correspond pas à la saisie. Voudriez vous reporter "_s + choisie.denom;
        if (!Message::confirm(this, question)) {
            montrer(this, {u"Veuillez Ajouter la nouvelle famille"_s, u"TALOR"_s, Icone::Information});
            return m_texte->setFocus();
        }
    }
    m_choisie = selection();
    leave();
}

} // namespace talor
