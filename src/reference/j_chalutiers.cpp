#include "reference/j_chalutiers.h"

#include "reference/fichiers.h"

namespace talor {

j_Chalutiers::j_Chalutiers(Exercice& exercice, QWidget* parent)
    : DialogueFiches(u"j_Chalutiers", exercice, fichierChalutiers(), {}, {}, parent)
{}

} // namespace talor
