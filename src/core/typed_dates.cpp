#include "core/typed_dates.h"

#include "core/helpers.h"
#include "platform/store/database.h"

namespace talor {

bool dateComplete(const QString& texte)
{
    return !store::isoDate(texte).isEmpty() && DateValide(texte) == 0;
}

} // namespace talor
