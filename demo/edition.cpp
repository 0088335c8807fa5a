#include "demo/edition.h"

#include "core/report.h"
#include "core/report_texts.h"
#include "invoicing/invoice_register.h"
#include "platform/reports/paint.h"

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

    reports::Document ensemble;
    for (int rang = 0; rang < registre.nbLignes(); ++rang) {
        const Etat etat = {.modele = registre.modele(rang),
                           .formule = registre.formule(rang),
                           .tri = {},
                           .remplir = [&](Exercice&) { registre.ecrireTextesFacture(rang, GenreImpression::Facture); },
                           .titre = {}};
        const Resultat<reports::Document> facture = ComposerEtat(m_exercice, etat);
        if (!facture)
            return facture.refus();
        ensemble.append(*facture);
    }
    ensemble.setTitle(u"Factures"_s);
    return ecrire(ensemble, u"Factures.pdf"_s, u"%1 factures"_s.arg(registre.nbLignes()));
}

Resultat<QList<Imprime>> Edition::listes()
{
    struct Liste
    {
        QString modele, fichier, contenu, classement;
        QStringList tri;
    };
    const QString parNumero = u"Classement sur N° d'ordre"_s;
    const QString alphabetique = u"Classement alphabétique"_s;
    const Liste listes[] = {
        {u"L_CLIENT.RPT"_s, u"L_CLIENT_numero.pdf"_s, u"clients par numéro"_s, parNumero, {u"+ {Clients.ordre} "_s}},
        {u"L_CLIENT.RPT"_s,
         u"L_CLIENT_alphabetique.pdf"_s,
         u"clients par nom"_s,
         alphabetique,
         {u"+ {Clients.nom} "_s, u"+ {Clients.prenom} "_s}},
        {u"L_POISSN.RPT"_s, u"L_POISSN_numero.pdf"_s, u"poissons par numéro"_s, parNumero, {u"+ {Poissons.ordre} "_s}},
        {u"L_POISSN.RPT"_s,
         u"L_POISSN_alphabetique.pdf"_s,
         u"poissons par nom"_s,
         alphabetique,
         {u"+ {Poissons.denom} "_s}},
        {u"L_ARMATR.RPT"_s, u"L_ARMATR.pdf"_s, u"armateurs"_s, {}, {}},
        {u"L_CHALUT.RPT"_s, u"L_CHALUT.pdf"_s, u"embarcations"_s, {}, {}},
    };
    QList<Imprime> imprimes;
    for (const Liste& liste : listes) {
        Etat etat = {.modele = liste.modele, .formule = {}, .tri = liste.tri, .remplir = {}, .titre = {}};
        if (!liste.classement.isEmpty())
            etat.remplir = [&](Exercice& exercice) { ecrireTextes(exercice, {{"ch4", liste.classement}}); };
        const Resultat<reports::Document> document = ComposerEtat(m_exercice, etat);
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
