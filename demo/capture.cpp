#include "demo/capture.h"

#include <QApplication>
#include <QDialog>
#include <QKeySequence>
#include <QLabel>
#include <QTest>
#include <QTimer>

namespace talor::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr int pas = 15;          // milliseconds between two steps
constexpr int attente = 3000;    // milliseconds until a window must stand
constexpr int sortiesPolies = 5; // times that a dialog is asked to close before it is told to

QWidget* cible()
{
    if (QWidget* const champ = QApplication::focusWidget())
        return champ;
    if (QWidget* const modale = QApplication::activeModalWidget())
        return modale;
    return QApplication::activeWindow();
}

} // namespace

void taper(const QString& touche)
{
    if (touche.startsWith(u'<') && touche.endsWith(u'>') && touche.size() > 2) {
        const QKeyCombination combinaison = QKeySequence::fromString(touche.mid(1, touche.size() - 2))[0];
        QTest::keyClick(cible(), combinaison.key(), combinaison.keyboardModifiers());
        return;
    }
    for (const QChar c : touche) {
        if (c.unicode() < 0x80)
            QTest::keyClick(cible(), c.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, cible(), Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

/// One picture under way. A key may open a dialog and return only once it is closed, so each step is a timer of its own
/// that goes on meanwhile; a step that comes when all is over finds nothing to do.
class Photographe::Prise : public QObject
{
public:
    Prise(QWidget& fenetre, const Ecran& ecran, const QString& chemin)
        : m_fenetre(fenetre)
        , m_ecran(ecran)
        , m_chemin(chemin)
    {
        planifier();
    }

    bool estFinie() const { return m_etape == Etape::Finie; }
    bool estPrise() const { return m_etape != Etape::Touches; }
    const std::optional<QString>& faute() const { return m_faute; }

private:
    enum class Etape
    {
        Touches,
        Fermeture,
        Finie
    };

    void planifier()
    {
        QTimer::singleShot(pas, this, [this] { avancer(); });
    }

    void avancer()
    {
        planifier();
        QWidget* const modale = QApplication::activeModalWidget();
        if (m_etape == Etape::Touches) {
            QWidget* const devant = modale || m_ecran.modale ? modale : &m_fenetre;
            if (devant && devant->isActiveWindow())
                presserOuPrendre(devant);
        } else if (modale) {
            fermer(modale);
        } else {
            m_etape = Etape::Finie;
        }
    }

    void presserOuPrendre(QWidget* devant)
    {
        if (m_touche < m_ecran.touches.size()) {
            taper(m_ecran.touches[m_touche++]);
            return;
        }
        m_etape = Etape::Fermeture;
        const QString attendue = m_ecran.nom.section(u'-', 0, 0);
        if (devant->objectName() != attendue)
            m_faute =
                u"à la place de « %1 » se montre « %2 », %3"_s.arg(m_ecran.nom, devant->objectName(), texte(devant));
        else if (!devant->grab().save(m_chemin))
            m_faute = u"l'image « "_s + m_chemin + u" » n'a pu être écrite"_s;
    }

    /// What a window says: the message of a box that was not expected, else its title.
    static QString texte(const QWidget* devant)
    {
        QStringList textes;
        for (const QLabel* etiquette : devant->findChildren<QLabel*>())
            textes << etiquette->text();
        return devant->objectName() == u"Message" ? textes.join(u' ').simplified() : devant->windowTitle();
    }

    void fermer(QWidget* modale)
    {
        auto* const dialogue = qobject_cast<QDialog*>(modale);
        if (!dialogue)
            modale->close();
        else if (++m_sorties <= sortiesPolies)
            dialogue->reject();
        else
            dialogue->done(QDialog::Rejected);
    }

    QWidget& m_fenetre;
    const Ecran& m_ecran;
    QString m_chemin;
    Etape m_etape = Etape::Touches;
    qsizetype m_touche = 0;
    int m_sorties = 0;
    std::optional<QString> m_faute;
};

Photographe::Photographe(QWidget& fenetre, const QDir& dossier)
    : m_fenetre(fenetre)
    , m_dossier(dossier)
{}

std::optional<QString> Photographe::prendre(const Ecran& ecran)
{
    m_fenetre.activateWindow();
    Prise prise(m_fenetre, ecran, m_dossier.filePath(ecran.nom + u".png"_s));
    ecran.ouvrir();
    const bool jamaisOuvert = ecran.modale && !prise.estPrise();
    if (jamaisOuvert || !QTest::qWaitFor([&] { return prise.estFinie(); }, attente))
        return u"l'écran « "_s + ecran.nom + u" » ne s'est pas ouvert"_s;
    return prise.faute();
}

} // namespace talor::demo
