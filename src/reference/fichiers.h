#pragma once

#include "reference/fiche.h"

namespace talor {

// The card files of the trade.
const DescriptionFiche& fichierProduits();
const DescriptionFiche& fichierArmateurs();
const DescriptionFiche& fichierChalutiers();
const DescriptionFiche& fichierClients();

/// "OULD ALI  Mourad": a shipowner as the boats show him; empty when he is gone.
QString nomArmateur(Exercice& exercice, qint64 num);
/// The shipowners in the order of their list.
QList<EntreeCombo> choixArmateurs(Exercice& exercice);

} // namespace talor
