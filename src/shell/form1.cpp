#include "shell/form1.h"

#include "core/montrer.h"
#include "platform/controls/message.h"
#include "platform/controls/named.h"
#include "shell/barre_menus.h"
#include "shell/entete.h"
#include "shell/image_laterale.h"
#include "shell/images_laterales.h"
#include "shell/menu.h"
#include "shell/panneaux.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

constexpr int hauteurAvecPort = 600;

const QStringList entreesResolution = {u"R0"_s, u"R1"_s, u"R2"_s};

} // namespace

Form1::Form1(Exercice& exercice)
    : m_exercice(exercice)
    , m_resolution(lireResolution(exercice.installation()))
    , m_menus(new BarreMenus(this))
    , m_entete(new Entete)
    , m_gauche(named(new ImageLaterale, u"Image2", 0))
    , m_droite(named(new ImageLaterale, u"Image2", 1))
    , m_pages(new QStackedWidget)
    , m_raccourcis(new PanneauRaccourcis)
{
    named(this, u"Form1");
    resize(screen()->availableSize() * 9 / 10); // where it is not maximised
    setWindowTitle(u"   TALOR  Version  2.1      (Révisé le 06/06/2022"_s);
    setMenuBar(m_menus);
    m_pages->addWidget(m_raccourcis);

    auto* milieu = new QHBoxLayout;
    milieu->setContentsMargins(24, 16, 24, 20);
    milieu->setSpacing(20);
    milieu->addWidget(m_gauche);
    milieu->addWidget(m_pages, 1);
    milieu->addWidget(m_droite);
    auto* centre = new QWidget;
    auto* colonne = new QVBoxLayout(centre);
    colonne->setContentsMargins({});
    colonne->setSpacing(0);
    colonne->addWidget(m_entete);
    colonne->addLayout(milieu, 1);
    setCentralWidget(centre);

    connect(m_menus, &BarreMenus::choisie, this, &Form1::executer);
    connect(m_raccourcis, &PanneauRaccourcis::choisi, this, &Form1::executer);
    connect(m_entete->guide(), &QPushButton::clicked, this, [this] { executer(u"G_PDF"_s); });
    brancherLesSiennes();
    m_menus->cocher(entreesResolution[static_cast<int>(m_resolution)]);
    actualiser();
}

Form1::~Form1() = default;

void Form1::brancherLesSiennes()
{
    brancher(u"MFACT"_s, [this] { ouvrirFacturation(); });
    brancher(u"mnu_5"_s, [this] { close(); });
    for (int i = 0; i < entreesResolution.size(); ++i)
        brancher(entreesResolution[i], [this, i] { m_resolution = static_cast<Resolution>(i); });
}

void Form1::brancher(const QString& nom, const std::function<void()>& fonction)
{
    Q_ASSERT_X(entree(nom), "Form1::brancher", qPrintable(nom));
    m_fonctions.insert(nom, fonction);
    actualiserMenus();
}

void Form1::executer(const QString& nom)
{
    if (!disponible(nom))
        return;
    if (const auto refus = verifier(m_exercice, nom)) {
        montrer(this, *refus);
        return;
    }
    m_fonctions[nom]();
    if (m_exercice.estOuvert()) // closed for good once the window is
        actualiser();
}

void Form1::actualiser()
{
    actualiserMenus();
    actualiserImages();
    m_entete->montrer(m_exercice);
}

void Form1::actualiserMenus()
{
    const bool courant = m_exercice.estCourant();
    for (const Entree& entree : entrees())
        if (QAction* action = m_menus->action(entree.nom))
            action->setEnabled((courant || !entree.exerciceCourantSeul) &&
                               (entree.genre == Entree::Genre::SousMenu || disponible(entree.nom)));
    const auto branche = [this](const QString& nom) { return disponible(nom); };
    m_raccourcis->actualiser(branche, courant);
    if (m_facturation)
        m_facturation->actualiser(branche);
    m_entete->guide()->setEnabled(disponible(u"G_PDF"_s));
}

void Form1::actualiserImages()
{
    m_gauche->charger(imageLaterale(m_exercice.installation(), Cote::Gauche));
    m_droite->charger(imageLaterale(m_exercice.installation(), Cote::Droite));
    montrerPort();
}

/// The drawn port stands where the trader has no pictures of his own and the window has room for it.
void Form1::montrerPort()
{
    m_entete->setPortMontre(m_gauche->estVide() && m_droite->estVide() && height() >= hauteurAvecPort);
}

PanneauFacturation* Form1::facturation()
{
    if (!m_facturation) {
        m_facturation = new PanneauFacturation;
        m_pages->addWidget(m_facturation);
        connect(m_facturation, &PanneauFacturation::choisi, this, &Form1::executer);
        connect(m_facturation, &PanneauFacturation::ferme, this, &Form1::fermerFacturation);
        setTabOrder(m_facturation, m_entete->guide());
        actualiserMenus();
    }
    return m_facturation;
}

void Form1::ouvrirFacturation()
{
    m_menus->setEnabled(false);
    m_pages->setCurrentWidget(facturation());
    facturation()->prendreFocus();
}

void Form1::fermerFacturation()
{
    m_pages->setCurrentWidget(m_raccourcis);
    m_menus->setEnabled(true);
    m_raccourcis->prendreFocus();
}

void Form1::terminer()
{
    m_exercice.FermerBase();
    QCoreApplication::exit(1);
}

void Form1::closeEvent(QCloseEvent* event)
{
    if (!controls::Message::confirm(this, u"Veuiller Confirmer Fin de Travail !!"_s, u"P. Vente"_s)) {
        event->ignore();
        return;
    }
    for (const Refus& echec : arreterExercice(m_exercice, m_resolution))
        montrer(this, echec);
    event->accept();
}

void Form1::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    m_raccourcis->prendreFocus();
}

void Form1::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    montrerPort();
}

void Form1::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    // A program left open overnight greets the morning with the right day.
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_entete->montrer(m_exercice);
}

} // namespace talor
