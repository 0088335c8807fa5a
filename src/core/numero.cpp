#include "core/numero.h"

namespace talor {

QString NumeroCompose(const QString& numero)
{
    QString compose = numero.trimmed();
    if (compose.size() > 3)
        for (qsizetype i = compose.size() - 1; i > 0; --i)
            if (compose[i] < u'0' || compose[i] > u'9')
                compose.remove(i, 1);
    return compose;
}

} // namespace talor
