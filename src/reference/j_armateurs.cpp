#include "reference/j_armateurs.h"

#include "reference/fichiers.h"

namespace talor {

using namespace Qt::StringLiterals;

J_Armateurs::J_Armateurs(Exercice& exercice, QWidget* parent)
    : DialogueFiches(u"J_Armateurs", exercice, fichierArmateurs(), {{Appeler, u"appeler"_s, u"Appeler"_s}}, {}, parent)
{}

void J_Armateurs::executer(int index)
{
    if (index == Appeler)
        appeler();
    else
        DialogueFiches::executer(index);
}

} // namespace talor
