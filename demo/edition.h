#pragma once

#include "core/refus.h"
#include "core/state.h"
#include "platform/reports/document.h"

#include <QDir>

namespace talor::demo {

/// A document that was printed into a file.
struct Imprime
{
    QString fichier; ///< its name in the folder
    QString contenu; ///< what it is, in French
    int pages;
};

/// Prints what the season left behind, by the program's own print sequence. Templates are those of the exercise's
/// folder. Throws `store::Error`, and `reports::Error` for a file that can't be written.
class Edition
{
public:
    Edition(Exercice& exercice, const QDir& dossier);

    /// Every invoice, by number, in one file.
    Resultat<Imprime> factures();
    /// The four lists, clients and fish in both orders.
    Resultat<QList<Imprime>> listes();

private:
    Imprime ecrire(const reports::Document& document, const QString& fichier, const QString& contenu) const;

    Exercice& m_exercice;
    QDir m_dossier;
};

} // namespace talor::demo
