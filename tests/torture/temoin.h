#pragma once

#include "livre.h"

#include "core/state.h"

namespace torture {

/// Hears the announcements, and holds a file found after a crash against them: it must hold exactly what was announced,
/// with or without the one action that was under way, and that one whole.
class Temoin
{
public:
    void entendre(const Annonce& annonce);
    /// Faults of a file just opened, and of its copy in Archives; what was under way is settled by what the file holds.
    QStringList confronter(talor::Exercice& exercice);

    const Livre& livre() const { return m_livre; }
    qint64 nbAnnonces() const { return m_nbAnnonces; }

private:
    QStringList confronterArchive(const talor::Exercice& exercice);

    Livre m_livre;
    std::optional<Livre> m_archive; ///< what the last exit left there
    std::optional<Action> m_enCours;
    qint64 m_nbAnnonces = 0;
};

} // namespace torture
