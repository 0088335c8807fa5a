#include "demo/edition.h"

#include "core/report.h"
#include "invoicing/invoice_print.h"
#include "platform/reports/paint.h"
#include "shell/listes.h"

#include <numeric>

namespace talor::demo {

using namespace Qt::StringLiterals;

Edition::Edition(Exercice& exercice, const QDir& dossier)
    : m_exercice(exercice)
    , m_dossier(dossier)
{}

Resultat<Imprime> Edition::factures()
{
    RegistreFactures registre(m_exercice, RegistreFactures::Porte::Registre, {});
    FiltreFactures filtre;
    filtre.genre = FiltreFactures::Genre::Periode;
    filtre.premiere = registre.premiereDate();
    filtre.seconde = registre.derniereDate();
    filtre.parClient = false;
    if (const std::optional<Refus> refus = registre.ApplyFilter(filtre))
        return *refus;

    QList<int> toutes(registre.nbLignes());
    std::iota(toutes.begin(), toutes.end(), 0);
    const LotFactures lot = ComposerFactures(m_exercice, registre, toutes, GenreImpression::Facture);
    if (!lot.refus.isEmpty())
        return lot.refus.first();
    return ecrire(lot.document, u"Factures.pdf"_s, u"%1 factures"_s.arg(registre.nbLignes()));
}

Resultat<QList<Imprime>> Edition::listes()
{
    struct Liste
    {
        QString fichier, contenu;
        Etat etat;
    };
    const Liste listes[] = {
        {u"L_CLIENT_numero.pdf"_s, u"clients par numéro"_s, listeClients(Classement::OrdreManuel)},
        {u"L_CLIENT_alphabetique.pdf"_s, u"clients par nom"_s, listeClients(Classement::OrdreAlphabetique)},
        {u"L_POISSN_numero.pdf"_s, u"poissons par numéro"_s, listePoissons(Classement::OrdreManuel)},
        {u"L_POISSN_alphabetique.pdf"_s, u"poissons par nom"_s, listePoissons(Classement::OrdreAlphabetique)},
        {u"L_ARMATR.pdf"_s, u"armateurs"_s, listeArmateurs()},
        {u"L_CHALUT.pdf"_s, u"embarcations"_s, listeChalutiers()},
    };
    QList<Imprime> imprimes;
    for (const Liste& liste : listes) {
        const Resultat<reports::Document> document = ComposerEtat(m_exercice, liste.etat);
        if (!document)
            return document.refus();
        imprimes << ecrire(*document, liste.fichier, u"liste des "_s + liste.contenu);
    }
    return imprimes;
}

Imprime Edition::ecrire(const reports::Document& document, const QString& fichier, const QString& contenu) const
{
    reports::writePdf(document, m_dossier.filePath(fichier));
    return {fichier, contenu, document.pageCount()};
}

} // namespace talor::demo
