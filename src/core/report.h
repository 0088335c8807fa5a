#pragma once

#include "core/refus.h"
#include "platform/reports/document.h"

#include <QStringList>

#include <functional>

namespace talor {

class Exercice;

/// One print: which template, which rows, in which order, and what to put into the report texts and work tables first.
struct Etat
{
    QString modele;  ///< file name of the template, "Facture.RPT"
    QString formule; ///< selection formula, "{Factures.num} = 12"; empty: every row
    QStringList tri; ///< sort fields, "+ {Clients.nom} "
    /// Fills the fields `ch4` and on of `textes` and the work table of the report.
    std::function<void(Exercice&)> remplir;
    QString titre; ///< of the preview window
};

/// The common print sequence up to the pages: looks for the template, writes the heading, lets the print fill its
/// tables, lays the report out. What is wrong with the template or the formula is a refusal.
Resultat<reports::Document> ComposerEtat(Exercice& exercice, const Etat& etat);

} // namespace talor
