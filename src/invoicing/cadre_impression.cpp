#include "invoicing/cadre_impression.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/labels.h"
#include "platform/controls/named.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QShortcut>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

/// Meaning of the indexes of `Image5`.
enum Action
{
    Imprimer,
    Annuler
};

/// At once: the option's own letter would press it for a tenth of a second first, and an Enter typed meanwhile would
/// print what is no longer meant.
void prendreSaLettre(QRadioButton* option)
{
    auto* lettre = new QShortcut(option->shortcut(), option);
    option->setShortcut({});
    QObject::connect(lettre, &QShortcut::activated, option, [option] {
        option->setFocus(Qt::ShortcutFocusReason);
        option->click();
    });
}

} // namespace

CadreImpression::CadreImpression()
    : EntryPanel(u"SSPanel3", u"SSPanel4")
    , m_detail(controls::hintLabel())
{
    setTitle(u"Impression"_s);
    m_lignes =
        creerPaire(u"Factures"_s, u"Option2", {u"Factures des lignes &sélectionnées"_s, u"La Facture &actuelle"_s});
    m_detail->setTextFormat(Qt::PlainText);
    addWide(m_detail);
    nextColumn();
    m_genre = creerPaire(u"Document"_s, u"SSOption5", {u"&Facture"_s, u"Bon de &livraison"_s});
    m_destination = creerPaire(u"Destination"_s, u"SSOption3", {u"&Écran"_s, u"Im&primante"_s});

    auto* imprimer = addAccept(u"Image5", Imprimer, u"Imprimer"_s);
    m_annuler = addCancel(u"Image5", Annuler);
    connect(imprimer, &QAbstractButton::clicked, this, &CadreImpression::accepte);
    connect(m_annuler, &QAbstractButton::clicked, this, &CadreImpression::abandonne);
}

CadreImpression::Paire CadreImpression::creerPaire(const QString& titre, QStringView famille,
                                                   const std::array<QString, 2>& legendes)
{
    auto* groupe = new QGroupBox(titre);
    auto* colonne = new QVBoxLayout(groupe);
    colonne->setSpacing(2);
    Paire paire;
    for (int i = 0; i < 2; ++i) {
        paire[i] = named(new QRadioButton(legendes[i]), famille, i);
        prendreSaLettre(paire[i]);
        colonne->addWidget(paire[i]);
    }
    paire[0]->setChecked(true);
    addWide(groupe);
    return paire;
}

void CadreImpression::ouvrir(int marquees, const QString& actuelle)
{
    m_lignes[marquees > 0 ? 0 : 1]->setChecked(true);
    m_detail->setText(u"Lignes sélectionnées : %1. Facture actuelle : %2"_s.arg(QString::number(marquees), actuelle));
    show();
    raise();
    viserLignes();
}

void CadreImpression::viserLignes()
{
    m_lignes[lignesMarquees() ? 0 : 1]->setFocus(Qt::TabFocusReason);
}

bool CadreImpression::lignesMarquees() const
{
    return m_lignes[0]->isChecked();
}

GenreImpression CadreImpression::genre() const
{
    return m_genre[0]->isChecked() ? GenreImpression::Facture : GenreImpression::BonDeLivraison;
}

Destination CadreImpression::destination() const
{
    return m_destination[0]->isChecked() ? Destination::Fenetre : Destination::Imprimante;
}

/// Enter prints from every option.
void CadreImpression::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit accepte();
    else
        EntryPanel::keyPressEvent(event);
}

} // namespace talor
