#include "reference/filtre.h"

#include "core/helpers.h"
#include "core/typed_dates.h"

namespace talor {

using namespace Qt::StringLiterals;

Resultat<Periode> lirePeriode(const QString& premiere, const QString& seconde)
{
    const Periode periode{premiere.trimmed(), seconde.trimmed()};
    if (!dateComplete(periode.premiere) || !dateComplete(periode.seconde))
        return Refus{u"Saisie incomplète"_s};
    if (EcartJours(periode.premiere, periode.seconde) < 0)
        return Refus{u"Dates inversées"_s};
    return periode;
}

} // namespace talor
