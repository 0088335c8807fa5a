#include "reference/fiche.h"

#include "core/helpers.h"

#include <algorithm>

namespace talor {

bool DescriptionFiche::numerotee() const
{
    return std::ranges::any_of(champs, [](const Champ& champ) { return champ.saisie == Saisie::Numero; });
}

std::function<QString(Exercice&, const store::Recordset&, int)> celluleTexte(const char* colonne)
{
    return [colonne](Exercice&, const store::Recordset& table, int) { return u' ' + table.text(colonne); };
}

std::function<QString(Exercice&, const store::Recordset&, int)> celluleRang()
{
    return [](Exercice&, const store::Recordset&, int rang) { return QString::number(rang); };
}

std::function<QString(Exercice&, const store::Recordset&, int)> celluleNumero()
{
    return [](Exercice&, const store::Recordset& table, int) { return NombreSimple(table.real("ordre")); };
}

} // namespace talor
