#pragma once

#include <QStringList>

namespace talor {

/// The cells of a row, as they are shown.
template<class Registre> QStringList ligneDe(const Registre& registre, int rang, int nbColonnes)
{
    QStringList cellules;
    for (int colonne = 0; colonne < nbColonnes; ++colonne)
        cellules += registre.cellule(rang, colonne);
    return cellules;
}

/// The `num`s of the rows listed, in their order.
template<class Registre> QList<qint64> numsDe(const Registre& registre)
{
    QList<qint64> nums;
    for (int rang = 0; rang < registre.nbLignes(); ++rang)
        nums += registre.num(rang);
    return nums;
}

} // namespace talor
