#include "sales/choix_bateau.h"

#include "core/montrer.h"
#include "reference/q_selection.h"
#include "sales/bordereau_register.h"

#include <QComboBox>

namespace talor {

void choisirBateau(QWidget* parent, Exercice& exercice, const RegistreBordereaux& registre, QComboBox* combo)
{
    combo->setFocus();
    const auto choisi = Q_Bateau::demander(parent, exercice);
    if (!choisi)
        return;
    if (const Resultat<int> rang = registre.choisirEmbarcation(choisi->num))
        combo->setCurrentIndex(*rang);
    else
        montrer(parent, rang.refus());
}

} // namespace talor
