// talor_demo DOSSIER: plays the season of saison.txt in a folder of its own, holds the books against it, prints the
// documents and tells in Resume.txt what was done.

#include "demo/depot.h"
#include "demo/edition.h"
#include "demo/jeu.h"
#include "demo/resume.h"
#include "demo/verification.h"
#include "platform/reports/error.h"
#include "platform/services/clock.h"
#include "platform/store/error.h"

#include <QGuiApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace talor;
using namespace talor::demo;

namespace {

void annoncer(const QString& ligne)
{
    QTextStream(stdout) << ligne << Qt::endl;
}

int echouer(const QString& raison)
{
    QTextStream(stderr) << u"La démonstration s'arrête : "_s << raison << Qt::endl;
    return 1;
}

Origine origine()
{
    return {QDir(QStringLiteral(DEMO_LIVRES)), QDir(QStringLiteral(DEMO_INSTALLATION)),
            QDir(QStringLiteral(DEMO_MODELES)), QStringLiteral(DEMO_SOURCES "/Identite.txt")};
}

int jouer(const QDir& dossier)
{
    const Resultat<Saison> saison = lireSaison(QStringLiteral(DEMO_SOURCES "/saison.txt"));
    if (!saison)
        return echouer(saison.refus().texte);
    if (const std::optional<Refus> refus = deposer(origine(), dossier, saison->annee()))
        return echouer(refus->texte);
    const Resultat<std::shared_ptr<Exercice>> ouvert = ouvrirExercice(dossier, saison->annee());
    if (!ouvert)
        return echouer(ouvert.refus().texte);
    Exercice& exercice = **ouvert;

    if (const std::optional<Refus> refus = Jeu(exercice, *saison, annoncer).jouer())
        return echouer(refus->texte);

    Resume resume;
    resume.ecarts = verifierLivres(exercice, *saison);
    Edition edition(exercice, dossier);
    const Resultat<Imprime> factures = edition.factures();
    if (!factures)
        return echouer(factures.refus().texte);
    const Resultat<QList<Imprime>> listes = edition.listes();
    if (!listes)
        return echouer(listes.refus().texte);
    resume.documents << *factures << *listes;
    for (const Imprime& document : resume.documents)
        annoncer(u"%1 : %2, %3 page(s)"_s.arg(document.fichier, document.contenu).arg(document.pages));
    if (const std::optional<Refus> refus = ecrireResume(exercice, *saison, resume, dossier))
        return echouer(refus->texte);

    if (!resume.ecarts.isEmpty())
        return echouer(u"les livres ne concordent pas\n"_s + resume.ecarts.join(u'\n'));
    annoncer(u"Les livres concordent. Tout est dans « "_s + dossier.path() + u" »."_s);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 2)
        return echouer(u"talor_demo DOSSIER [--ouvrir]"_s);
    try {
        return jouer(QDir(QDir(arguments[1]).absolutePath()));
    } catch (const store::Error& erreur) {
        return echouer(erreur.text());
    } catch (const reports::Error& erreur) {
        return echouer(erreur.text());
    }
}
