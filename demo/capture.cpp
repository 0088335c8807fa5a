#include "demo/capture.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeySequence>
#include <QTest>
#include <QTimer>

namespace talor::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr int pas = 15;               // milliseconds between two keys
constexpr int attenteMaximale = 3000; // milliseconds until a window must stand

} // namespace

void taper(const QString& touche)
{
    QWidget* cible = QApplication::focusWidget();
    if (!cible)
        cible = QApplication::activeModalWidget();
    if (!cible)
        cible = QApplication::activeWindow();
    if (!cible)
        return;
    if (touche.startsWith(u'<') && touche.endsWith(u'>') && touche.size() > 2) {
        const QKeyCombination combinaison = QKeySequence::fromString(touche.mid(1, touche.size() - 2))[0];
        QTest::keyClick(cible, combinaison.key(), combinaison.keyboardModifiers());
    } else {
        QTest::keyClicks(cible, touche);
    }
}

Photographe::Photographe(QWidget& fenetre, const QDir& dossier)
    : m_fenetre(fenetre)
    , m_dossier(dossier)
{}

std::optional<QString> Photographe::prendre(const Ecran& ecran)
{
    m_nom = ecran.nom;
    m_touches = ecran.touches;
    m_modale = ecran.modale;
    m_prise = m_finie = false;
    m_faute.reset();

    planifier();
    ecran.ouvrir();
    QElapsedTimer attente;
    attente.start();
    while (!m_finie && attente.elapsed() < attenteMaximale)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, pas);
    m_finie = true;
    if (!m_prise && !m_faute)
        m_faute = u"l'écran « "_s + m_nom + u" » ne s'est pas ouvert"_s;
    return m_faute;
}

/// Each step is a timer of its own: a key may open a dialog and return only once it is closed, and the steps must go
/// on meanwhile.
void Photographe::planifier()
{
    QTimer::singleShot(pas, qApp, [this] { avancer(); });
}

void Photographe::avancer()
{
    if (m_finie)
        return;
    QWidget* const devant_ = devant();
    if (!devant_) {
        if (m_prise)
            m_finie = true;
        else
            planifier();
        return;
    }
    if (!m_prise) {
        if (presser())
            return;
        const QString chemin = m_dossier.filePath(m_nom + u".png"_s);
        if (!devant_->grab().save(chemin))
            m_faute = u"l'image "_s + chemin + u" n'a pu être écrite"_s;
        m_prise = true;
        planifier();
        return;
    }
    if (devant_ == &m_fenetre) {
        m_finie = true;
        return;
    }
    planifier();
    if (auto* dialogue = qobject_cast<QDialog*>(devant_))
        dialogue->reject();
    else
        devant_->close();
}

/// Presses the next key; false when none is left.
bool Photographe::presser()
{
    if (m_touches.isEmpty())
        return false;
    const QString touche = m_touches.takeFirst();
    planifier();
    taper(touche);
    return true;
}

/// The window in front, or nothing while none stands there that could be taken.
QWidget* Photographe::devant() const
{
    if (QWidget* const modale = QApplication::activeModalWidget())
        return modale->isVisible() ? modale : nullptr;
    return m_modale && !m_prise ? nullptr : &m_fenetre;
}

} // namespace talor::demo
