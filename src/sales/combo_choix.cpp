#include "sales/combo_choix.h"

#include "platform/services/sound.h"
#include "sales/lookups.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QWheelEvent>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

/// A wheel turned over the list in passing changes no client.
class ComboChoix : public QComboBox
{
protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

/// What is typed into a combo, closed or open. What leads to no entry is refused with a beep, and what was typed before
/// stands.
class Frappe : public QObject
{
public:
    static Frappe* de(QComboBox* combo)
    {
        auto* frappe = combo->findChild<Frappe*>(u"Frappe"_s, Qt::FindDirectChildrenOnly);
        return frappe ? frappe : new Frappe(combo);
    }

    void setListe(const ListeChoix& liste) { m_liste = liste; }

protected:
    bool eventFilter(QObject*, QEvent* evenement) override
    {
        if (evenement->type() != QEvent::KeyPress)
            return false;
        const auto* touche = static_cast<QKeyEvent*>(evenement);
        const QString texte = touche->text();
        const bool commande = touche->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
        if (texte.isEmpty() || !texte.front().isPrint() || commande) {
            m_frappe.clear();
            return false;
        }
        return taper(texte);
    }

private:
    explicit Frappe(QComboBox* combo)
        : QObject(combo)
        , m_combo(combo)
    {
        setObjectName(u"Frappe"_s);
        combo->installEventFilter(this);
        combo->view()->installEventFilter(this);
    }

    /// The blank that begins nothing opens the list, as in every combo.
    bool taper(const QString& texte)
    {
        constexpr qint64 pause = 1500; // milliseconds after which one begins anew
        if (!m_derniere.isValid() || m_derniere.elapsed() > pause)
            m_frappe.clear();
        if (m_frappe.isEmpty() && texte.front().isSpace())
            return false;
        m_derniere.start();
        const int rang = m_liste.rangDuDebut(m_frappe + texte);
        if (rang < 0) {
            services::sound::beep();
            return true;
        }
        m_frappe += texte;
        if (m_combo->view()->isVisible())
            m_combo->view()->setCurrentIndex(m_combo->model()->index(rang, m_combo->modelColumn()));
        else
            choisir(rang);
        return true;
    }

    /// As Qt's own search does.
    void choisir(int rang)
    {
        m_combo->setCurrentIndex(rang);
        emit m_combo->activated(rang);
    }

    QComboBox* m_combo;
    ListeChoix m_liste;
    QString m_frappe;
    QElapsedTimer m_derniere;
};

} // namespace

QComboBox* creerComboChoix()
{
    constexpr int lettres = 22;
    constexpr int entreesVisibles = 18;
    auto* combo = new ComboChoix;
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(lettres);
    combo->setMaxVisibleItems(entreesVisibles);
    return combo;
}

void remplirCombo(QComboBox* combo, const ListeChoix& liste)
{
    QStringList noms;
    noms.reserve(liste.nombre());
    for (int rang = 0; rang < liste.nombre(); ++rang)
        noms << (liste[rang].num == numEnsemble ? liste[rang].texte : liste.nom(rang));
    combo->clear();
    combo->addItems(noms);
    combo->setCurrentIndex(liste.nombre() > 0 ? 0 : -1);
    Frappe::de(combo)->setListe(liste);
}

} // namespace talor
