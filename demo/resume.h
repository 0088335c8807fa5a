#pragma once

#include "demo/edition.h"
#include "demo/saison.h"

namespace talor::demo {

/// What the demonstration leaves behind.
struct Resume
{
    QStringList scenes; ///< what was done in the windows themselves
    QList<Imprime> documents;
    QStringList images;
    QStringList ecarts; ///< differences found in the books
};

/// Writes Resume.txt: what was done, what stands in the books, where the files lie.
std::optional<Refus> ecrireResume(Exercice& exercice, const Saison& saison, const Resume& resume, const QDir& dossier);

} // namespace talor::demo
