#pragma once

#include "core/report.h"
#include "reference/classement.h"

/// The four lists of the menu "Listes", ready to be printed.
namespace talor {

Etat listeClients(Classement classement);
Etat listePoissons(Classement classement);
/// These two print their table as it stands.
Etat listeArmateurs();
Etat listeChalutiers();

} // namespace talor
