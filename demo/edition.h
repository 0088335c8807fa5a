#pragma once

#include "core/state.h"

#include <QDir>

namespace talor::demo {

/// A document that was printed into a file.
struct Imprime
{
    QString fichier; ///< its name in the folder
    QString contenu; ///< what it is, in French
    int pages;
};

/// Prints what the season left behind as the program does: the report texts filled, the template laid out with its
/// formula and its order. Throws `store::Error` and `reports::Error`.
class Edition
{
public:
    /// Templates are looked for in the folder of the exercise; the documents go to `dossier`.
    Edition(Exercice& exercice, const QDir& dossier);

    /// Every invoice, by number, in one file.
    Imprime factures();
    /// The four lists, clients and fish in both orders.
    QList<Imprime> listes();

private:
    QString modele(const QString& nom) const;
    Imprime liste(const QString& nomModele, const QString& fichier, const QString& contenu, const QString& ch4,
                  const QStringList& ordre);

    Exercice& m_exercice;
    QDir m_dossier;
};

} // namespace talor::demo
