#include "shell/listes.h"

#include "core/report_texts.h"
#include "core/state.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

Etat liste(const QString& modele, const QString& titre, const QStringList& tri, const QString& ch4)
{
    return {modele, {}, tri, [ch4](Exercice& exercice) { ecrireTextes(exercice, {{"ch4", ch4}}); }, titre};
}

Etat listeClassee(const QString& modele, const QString& titre, Classement classement, const QString& triManuel,
                  const QStringList& triAlphabetique)
{
    if (classement == Classement::OrdreManuel)
        return liste(modele, titre, {triManuel}, u"Classement sur N° d'ordre"_s);
    return liste(modele, titre, triAlphabetique, u"Classement alphabétique"_s);
}

} // namespace

Etat listeClients(Classement classement)
{
    return listeClassee(u"L_CLIENT.RPT"_s, u"Liste des clients"_s, classement, u"+ {Clients.ordre} "_s,
                        {u"+ {Clients.nom} "_s, u"+ {Clients.prenom} "_s});
}

Etat listePoissons(Classement classement)
{
    return listeClassee(u"L_POISSN.RPT"_s, u"Liste des poissons"_s, classement, u"+ {Poissons.ordre} "_s,
                        {u"+ {Poissons.denom} "_s});
}

Etat listeArmateurs()
{
    return {.modele = u"L_ARMATR.RPT"_s, .formule = {}, .tri = {}, .remplir = {}, .titre = u"Liste des armateurs"_s};
}

Etat listeChalutiers()
{
    return {.modele = u"L_CHALUT.RPT"_s, .formule = {}, .tri = {}, .remplir = {}, .titre = u"Liste des embarcations"_s};
}

} // namespace talor
