#include "reference/j_client.h"

#include "reference/choix_categorie.h"
#include "reference/fichiers.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

CadreFiche::Options optionsCadre(Exercice& exercice)
{
    const auto categorie = [&exercice](const Champ&) {
        auto* choix = new ChoixCategorie(exercice);
        return CadreFiche::Editeur{choix, [choix] { return choix->num(); },
                                   [choix](const QString& num) { choix->poser(num); }};
    };
    return {.imageOk = 1, .imageAnnuler = 2, .fabrique = categorie};
}

} // namespace

j_Client::j_Client(Exercice& exercice, QWidget* parent)
    : DialogueFiches(u"j_Client", exercice, fichierClients(),
                     {{SurNumero, u"trier-numero"_s, u"sur N° d'ordre"_s},
                      {OrdreAlphabetique, u"trier-alpha"_s, u"Ordre Alph."_s},
                      {Appeler, u"appeler"_s, u"Appeler"_s}},
                     optionsCadre(exercice), parent)
{}

void j_Client::executer(int index)
{
    switch (index) {
    case SurNumero:
        return remplir(Classement::OrdreManuel);
    case OrdreAlphabetique:
        return remplir(Classement::OrdreAlphabetique);
    case Appeler:
        return appeler();
    default:
        DialogueFiches::executer(index);
    }
}

} // namespace talor
