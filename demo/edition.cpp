#include "demo/edition.h"

#include "invoicing/invoice_register.h"
#include "platform/reports/layout.h"
#include "platform/reports/paint.h"

namespace talor::demo {

using namespace Qt::StringLiterals;

Edition::Edition(Exercice& exercice, const QDir& dossier)
    : m_exercice(exercice)
    , m_dossier(dossier)
{}

QString Edition::modele(const QString& nom) const
{
    return m_exercice.installation().chemin(nom);
}

Imprime Edition::factures()
{
    RegistreFactures registre(m_exercice, RegistreFactures::Porte::Registre, {});
    FiltreFactures filtre;
    filtre.genre = FiltreFactures::Genre::Periode;
    filtre.premiere = registre.premiereDate();
    filtre.seconde = registre.derniereDate();
    filtre.parClient = false;
    registre.ApplyFilter(filtre);

    const QString chemin = modele(RegistreFactures::modeleFacture);
    const reports::Template facture = reports::Template::load(chemin);
    reports::Document document;
    m_exercice.EcrireEntete();
    for (int rang = 0; rang < registre.nbLignes(); ++rang) {
        registre.ecrireTextesFacture(rang, GenreImpression::Facture);
        document.append(reports::layOut(facture, m_exercice.Base(), {chemin, registre.formule(rang), {}}));
    }
    document.setTitle(u"Factures"_s);
    const QString fichier = u"Factures.pdf"_s;
    reports::writePdf(document, m_dossier.filePath(fichier));
    return {fichier, u"%1 factures"_s.arg(registre.nbLignes()), document.pageCount()};
}

QList<Imprime> Edition::listes()
{
    const QString parNumero = u"Classement sur N° d'ordre"_s;
    const QString alphabetique = u"Classement alphabétique"_s;
    return {
        liste(u"L_CLIENT.RPT"_s, u"L_CLIENT_numero.pdf"_s, u"clients par numéro"_s, parNumero,
              {u"+ {Clients.ordre} "_s}),
        liste(u"L_CLIENT.RPT"_s, u"L_CLIENT_alphabetique.pdf"_s, u"clients par nom"_s, alphabetique,
              {u"+ {Clients.nom} "_s, u"+ {Clients.prenom} "_s}),
        liste(u"L_POISSN.RPT"_s, u"L_POISSN_numero.pdf"_s, u"poissons par numéro"_s, parNumero,
              {u"+ {Poissons.ordre} "_s}),
        liste(u"L_POISSN.RPT"_s, u"L_POISSN_alphabetique.pdf"_s, u"poissons par nom"_s, alphabetique,
              {u"+ {Poissons.denom} "_s}),
        liste(u"L_ARMATR.RPT"_s, u"L_ARMATR.pdf"_s, u"armateurs"_s, {}, {}),
        liste(u"L_CHALUT.RPT"_s, u"L_CHALUT.pdf"_s, u"embarcations"_s, {}, {}),
    };
}

Imprime Edition::liste(const QString& nomModele, const QString& fichier, const QString& contenu, const QString& ch4,
                       const QStringList& ordre)
{
    m_exercice.EcrireEntete();
    if (!ch4.isEmpty())
        ecrireTextes(m_exercice, {{"ch4", ch4}});
    const reports::Document document = reports::layOut(m_exercice.Base(), {modele(nomModele), {}, ordre});
    reports::writePdf(document, m_dossier.filePath(fichier));
    return {fichier, u"liste des "_s + contenu, document.pageCount()};
}

} // namespace talor::demo
