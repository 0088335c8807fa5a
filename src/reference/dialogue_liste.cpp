#include "reference/dialogue_liste.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/grid.h"
#include "platform/controls/labels.h"
#include "platform/controls/named.h"
#include "platform/services/sound.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

/// Meaning of the indexes of `Image1`.
enum Action
{
    Prendre,
    Annuler,
    Descendre,
    Monter
};

constexpr int lignesVisibles = 20;
constexpr int lignesMin = 8;
/// Letters typed after a longer pause begin anew.
constexpr int pauseFrappe = 1500;

/// A grid that asks for the room of all its rows, up to twenty.
class GrilleHaute : public controls::Grid
{
public:
    QSize sizeHint() const override
    {
        QSize taille = Grid::sizeHint();
        taille.setHeight(horizontalHeader()->sizeHint().height() + 2 * frameWidth() + 2 +
                         std::clamp(rowCount(), lignesMin, lignesVisibles) * verticalHeader()->defaultSectionSize());
        return taille;
    }
};

} // namespace

DialogueListe::DialogueListe(QStringView nom, const QString& titre, QStringView nomListe, QWidget* parent)
    : Dialog(nom, titre, parent)
    , m_liste(named(new GrilleHaute, nomListe))
    , m_aide(named(controls::hintLabel(), u"Aide"))
{
    m_liste->setAccessibleName(titre);
    m_liste->installEventFilter(this);
    body()->addWidget(m_liste, 1);
    body()->addWidget(m_aide);

    auto* commandes = new controls::CommandBar(u"Image1"_s);
    m_descendre = commandes->add(Descendre, u"descendre", u"Bas"_s);
    m_monter = commandes->add(Monter, u"monter", u"Haut"_s);
    for (controls::CommandButton* bouton : {m_descendre, m_monter})
        bouton->setAutoRepeat(true);
    commandes->addStretch();
    commandes->add(Prendre, u"ok", u"OK"_s)->setPrimary();
    auto* annuler = commandes->add(Annuler, u"annuler", u"Annuler"_s);
    this->commands()->addWidget(commandes);
    setCancel({annuler});

    m_oubli.setSingleShot(true);
    m_oubli.setInterval(pauseFrappe);
    connect(&m_oubli, &QTimer::timeout, this, &DialogueListe::oublierFrappe);
    connect(commandes, &controls::CommandBar::triggered, this, &DialogueListe::executer);
    connect(m_liste, &controls::Grid::rowActivated, this, [this] { executer(Prendre); });
    connect(m_liste, &controls::Grid::rowClicked, this, &DialogueListe::oublierFrappe);
    connect(m_liste, &controls::Grid::rowSelected, this, &DialogueListe::actualiserBouts);
    montrerFrappe();
    m_liste->setFocus();
}

std::optional<int> DialogueListe::choisirRang()
{
    exec();
    return m_pris;
}

void DialogueListe::executer(int index)
{
    switch (index) {
    case Prendre:
        if (m_liste->currentRow() < 0)
            return;
        m_pris = m_liste->currentRow();
        return leave(1);
    case Annuler:
        return leave();
    case Descendre:
        return deplacer(1);
    case Monter:
        return deplacer(-1);
    }
}

void DialogueListe::deplacer(int pas)
{
    oublierFrappe();
    m_liste->selectRow(std::clamp(m_liste->currentRow() + pas, 0, m_liste->rowCount() - 1));
    emit deplace();
}

void DialogueListe::actualiserBouts(int rang)
{
    m_descendre->setVisible(rang < m_liste->rowCount() - 1);
    m_monter->setVisible(rang > 0);
}

bool DialogueListe::eventFilter(QObject* objet, QEvent* evenement)
{
    if (objet != m_liste || evenement->type() != QEvent::KeyPress)
        return Dialog::eventFilter(objet, evenement);
    const auto* touche = static_cast<QKeyEvent*>(evenement);
    if (touche->key() == Qt::Key_Backspace)
        return effacerFrappe();
    const QString texte = touche->text();
    const bool commande = touche->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (!texte.isEmpty() && texte.front().isPrint() && !commande)
        return taper(texte);
    oublierFrappe();
    return false;
}

/// A letter that leads to no row is refused with a beep, and those before it stand.
bool DialogueListe::taper(const QString& texte)
{
    if (m_frappe.isEmpty() && texte.trimmed().isEmpty())
        return true;
    const int rang = m_recherche ? m_recherche(m_frappe + texte) : -1;
    if (rang < 0) {
        services::sound::beep();
    } else {
        m_frappe += texte;
        m_liste->selectRow(rang);
    }
    montrerFrappe();
    m_oubli.start();
    return true;
}

bool DialogueListe::effacerFrappe()
{
    m_frappe.chop(1);
    if (!m_frappe.isEmpty())
        m_liste->selectRow(m_recherche(m_frappe));
    montrerFrappe();
    m_oubli.start();
    return true;
}

void DialogueListe::oublierFrappe()
{
    m_oubli.stop();
    m_frappe.clear();
    montrerFrappe();
}

void DialogueListe::montrerFrappe()
{
    m_aide->setText(m_frappe.isEmpty() ? u"Tapez les premières lettres pour y aller."_s : u"Va à : "_s + m_frappe);
}

} // namespace talor
