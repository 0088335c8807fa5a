// talor_demo DOSSIER [--ouvrir]: plays the season of saison.txt in a folder of its own, holds the books against it,
// prints the documents, takes the pictures of the windows and tells in Resume.txt what was done. With --ouvrir, the
// program is then left open on that folder.

#include "demo/depot.h"
#include "demo/ecrans.h"
#include "demo/edition.h"
#include "demo/jeu.h"
#include "demo/resume.h"
#include "demo/scenes.h"
#include "demo/verification.h"
#include "platform/reports/error.h"
#include "platform/services/clock.h"
#include "platform/store/error.h"
#include "shell/application.h"
#include "shell/fonctions.h"
#include "shell/form1.h"

#include <QProcess>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace talor;
using namespace talor::demo;

namespace {

constexpr QSize tailleFenetre(1366, 768);

/// No screen, of the size of a small one.
constexpr char sansEcran[] = "offscreen:configfile=" DEMO_SOURCES "/ecran.json";

/// What ends the demonstration: a French sentence.
struct Echec
{
    QString raison;
};

void annoncer(const QString& ligne)
{
    QTextStream(stdout) << ligne << Qt::endl;
}

void exiger(const std::optional<Refus>& refus)
{
    if (refus)
        throw Echec{refus->texte};
}

template<class T> T exiger(const Resultat<T>& resultat)
{
    if (!resultat)
        throw Echec{resultat.refus().texte};
    return *resultat;
}

Saison lireSaisonLivree()
{
    return exiger(lireSaison(QStringLiteral(DEMO_SOURCES "/saison.txt")));
}

Origine origine()
{
    return {QDir(QStringLiteral(DEMO_LIVRES)), QDir(QStringLiteral(DEMO_INSTALLATION)),
            QDir(QStringLiteral(DEMO_MODELES)), QStringLiteral(DEMO_SOURCES "/Identite.txt")};
}

QList<Imprime> imprimer(Exercice& exercice, const QDir& dossier)
{
    Edition edition(exercice, dossier);
    const QList<Imprime> imprimes = QList<Imprime>{exiger(edition.factures())} + exiger(edition.listes());
    for (const Imprime& document : imprimes)
        annoncer(u"%1 : %2, %3 page(s)"_s.arg(document.fichier, document.contenu).arg(document.pages));
    return imprimes;
}

/// The windows, worked and photographed one after the other.
class Seance
{
public:
    Seance(Exercice& exercice, const QDir& dossier)
        : m_exercice(exercice)
        , m_form1(exercice)
        , m_photographe(m_form1, QDir(dossier.filePath(u"ecrans"_s)))
    {
        dossier.mkpath(u"ecrans"_s);
        brancherFonctions(m_form1, exercice);
        m_form1.resize(tailleFenetre);
        m_form1.show();
    }

    QStringList jouerScenes(const Saison& saison)
    {
        QStringList recits;
        for (const Scene& scene : scenes(m_form1, m_exercice, saison)) {
            prendre(scene.ecran);
            if (const std::optional<QString> ecart = scene.verifier(m_exercice))
                throw Echec{scene.recit + u" : "_s + *ecart};
            annoncer(scene.recit);
            recits << scene.recit;
        }
        return recits;
    }

    void prendreEcrans()
    {
        for (const Ecran& ecran : ecrans(m_form1, m_exercice))
            prendre(ecran);
        annoncer(u"%1 images d'écran"_s.arg(m_images.size()));
    }

    const QStringList& images() const { return m_images; }

private:
    void prendre(const Ecran& ecran)
    {
        if (const std::optional<QString> faute = m_photographe.prendre(ecran))
            throw Echec{*faute};
        m_images << ecran.nom;
    }

    Exercice& m_exercice;
    Form1 m_form1;
    Photographe m_photographe;
    QStringList m_images;
};

void jouer(const QDir& dossier)
{
    const Saison saison = lireSaisonLivree();
    exiger(deposer(origine(), dossier, saison.annee()));
    const std::shared_ptr<Exercice> exercice = exiger(ouvrirExercice(dossier, saison.annee()));
    exiger(Jeu(*exercice, saison, annoncer).jouer(Jeu::Reste::DernierBordereau));

    Resume resume;
    Seance seance(*exercice, dossier);
    resume.scenes = seance.jouerScenes(saison);
    resume.ecarts = verifierLivres(*exercice, saison);
    resume.documents = imprimer(*exercice, dossier);
    seance.prendreEcrans();
    resume.images = seance.images();
    exiger(ecrireResume(*exercice, saison, resume, dossier));
    if (!resume.ecarts.isEmpty())
        throw Echec{u"les livres ne concordent pas\n"_s + resume.ecarts.join(u'\n')};
    annoncer(u"Les livres concordent. Tout est dans « "_s + dossier.path() + u" »."_s);
}

/// Plays the season without a screen, in a process of its own: the pictures are then the same on every machine.
int jouerSansEcran(const QDir& dossier)
{
    QProcess jeu;
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    environnement.insert(u"QT_QPA_PLATFORM"_s, QString::fromLatin1(sansEcran));
    jeu.setProcessEnvironment(environnement);
    jeu.setProcessChannelMode(QProcess::ForwardedChannels);
    jeu.start(QCoreApplication::applicationFilePath(), {dossier.path()});
    if (!jeu.waitForFinished(-1) || jeu.exitStatus() != QProcess::NormalExit)
        throw Echec{u"le jeu s'est interrompu"_s};
    return jeu.exitCode();
}

/// Leaves the program open on the folder, on the last day of the season.
int ouvrirProgramme(Application& application, const QDir& dossier)
{
    const Saison saison = lireSaisonLivree();
    const std::shared_ptr<Exercice> exercice = exiger(ouvrirExercice(dossier, saison.annee()));
    services::clock::setToday(saison.journees.last().date);
    application.suivre(exercice.get());
    Form1 form1(*exercice);
    brancherFonctions(form1, *exercice);
    form1.showMaximized();
    return QApplication::exec();
}

int executer(Application& application)
{
    QStringList arguments = application.arguments().mid(1);
    const bool laisserOuvert = arguments.removeAll(u"--ouvrir"_s) > 0;
    if (arguments.size() != 1)
        throw Echec{u"l'appel est « talor_demo DOSSIER [--ouvrir] »"_s};
    const QDir dossier(QDir(arguments[0]).absolutePath());
    if (!laisserOuvert) {
        jouer(dossier);
        return EXIT_SUCCESS;
    }
    const int code = jouerSansEcran(dossier);
    return code == EXIT_SUCCESS ? ouvrirProgramme(application, dossier) : code;
}

/// The platform without a screen warns at every window of what it can't do; nobody needs to read that.
void taireSansEcran(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith(u"This plugin does not support") && !message.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR"))
        QTextStream(stderr) << message << Qt::endl;
}

bool demandeOuverture(int argc, char** argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char* argument) { return qstrcmp(argument, "--ouvrir") == 0; });
}

} // namespace

int main(int argc, char** argv)
{
    if (!demandeOuverture(argc, argv)) {
        // A screen of another size may be asked for: offscreen:configfile=...
        if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen:"))
            qputenv("QT_QPA_PLATFORM", sansEcran);
        qInstallMessageHandler(taireSansEcran);
    }
    Application application(argc, argv);
    QString raison;
    try {
        return executer(application);
    } catch (const Echec& echec) {
        raison = echec.raison;
    } catch (const store::Error& erreur) {
        raison = erreur.text();
    } catch (const reports::Error& erreur) {
        raison = erreur.text();
    }
    QTextStream(stderr) << u"La démonstration s'arrête : "_s << raison << Qt::endl;
    return EXIT_FAILURE;
}
