#include "invoicing/fact_bis.h"

#include "platform/controls/command_bar.h"

namespace talor {

using namespace Qt::StringLiterals;

Fact_Bis::Fact_Bis(Exercice& exercice, const QString& jour, QWidget* parent)
    : DialogueFactures(u"Fact_Bis", u"Réimpression des factures"_s, exercice, RegistreFactures::Porte::Reimpression,
                       jour, parent)
{
    const QString survols[] = {u" Filtre "_s, u" Impr. Facture "_s, u" Impr. Listing "_s, u" Quitter "_s};
    for (const Commande index : {Filtre, Facture, Listing, Quitter})
        commande(index)->setToolTip(survols[index]);
}

} // namespace talor
