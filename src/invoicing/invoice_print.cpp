#include "invoicing/invoice_print.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

Etat etatFacture(RegistreFactures& registre, int rang, GenreImpression genre)
{
    return {.modele = registre.modele(rang),
            .formule = registre.formule(rang),
            .tri = {},
            .remplir = [&registre, rang, genre](Exercice&) { registre.ecrireTextesFacture(rang, genre); },
            .titre = {}};
}

QString titreLot(const RegistreFactures& registre, const QList<int>& rangs, GenreImpression genre)
{
    const bool facture = genre == GenreImpression::Facture;
    if (rangs.size() != 1)
        return facture ? u"Factures"_s : u"Bons de livraison"_s;
    return (facture ? u"Facture N° "_s : u"Bon de livraison N° "_s) + registre.numeroEtAnnee(rangs.first());
}

} // namespace

LotFactures ComposerFactures(Exercice& exercice, RegistreFactures& registre, const QList<int>& rangs,
                             GenreImpression genre, const ProgressionLot& progression)
{
    LotFactures lot;
    // One commit for the texts of them all.
    store::Transaction transaction(exercice.Base());
    for (int fait = 0; fait < rangs.size(); ++fait) {
        if (progression && !progression(fait, static_cast<int>(rangs.size())))
            return {.document = {}, .abandonne = true, .refus = {}};
        const Resultat<reports::Document> facture = ComposerEtat(exercice, etatFacture(registre, rangs[fait], genre));
        if (facture)
            lot.document.append(*facture);
        else if (!lot.refus.contains(facture.refus()))
            lot.refus.append(facture.refus());
    }
    transaction.commit();
    lot.document.setTitle(titreLot(registre, rangs, genre));
    return lot;
}

Etat etatListing(RegistreFactures& registre)
{
    return {.modele = RegistreFactures::modeleListing,
            .formule = {},
            .tri = {},
            .remplir = [&registre](Exercice&) { registre.ecrireListing(); },
            .titre = u"Liste des factures"_s};
}

} // namespace talor
