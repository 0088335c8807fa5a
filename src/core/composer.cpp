#include "core/composer.h"

#include "core/montrer.h"
#include "platform/services/telephone.h"

namespace talor {

using namespace Qt::StringLiterals;

void Composer(QWidget* parent, const QString& numero)
{
    if (numero.trimmed().isEmpty())
        montrer(parent, {u"Numéro omis"_s, u"ATTENTION "_s}); // the title ends with a blank, as it always has
    else if (!services::telephone::call(numero))
        montrer(parent, {u"Erreur dans l'appel"_s, u"TALOR"_s, Icone::Avertissement});
}

} // namespace talor
