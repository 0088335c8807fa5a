#pragma once

#include "core/refus.h"

#include <QStringList>

#include <array>

namespace talor {

/// What the configuration file holds: the name of the year pointer, the language word, three access words and the
/// sixteen identity texts.
///
/// The file is a row of records of 42 little-endian 16-bit words. Character codes stand in it multiplied by 7, a light
/// scrambling that keeps the words from being read at a glance and no more.
struct Configuration
{
    static constexpr int nbMots = 3;
    static constexpr int nbTextes = 16;
    static constexpr int motLongueurMax = 41; ///< characters that a record holds
    static constexpr quint16 francais = 65535;

    /// Width of each identity text, French then Arabic; a longer one is cut.
    static const std::array<int, nbTextes> largeurs;

    QString CodeFichier;                  ///< up to three characters
    quint16 langue = francais;            ///< 1 Arabic, 65535 French
    std::array<QString, nbMots> mots;     ///< access words of records 1, 2, 3
    std::array<QString, nbTextes> textes; ///< identity texts 1 to 16, trimmed

    /// A file that is absent, short, or holds no usable name for the year pointer is refused by name.
    static Resultat<Configuration> lire(const QString& chemin);
    /// Writes the whole file; nothing of an older one is kept.
    std::optional<Refus> ecrire(const QString& chemin) const;

    /// Writes one access word (0 to 2) into an existing file and leaves all else in it as it is. A read-only file is
    /// made writable first.
    static std::optional<Refus> ecrireMot(const QString& chemin, int rang, const QString& mot);
};

/// The exercises that exist: the first year ever opened and how many closures have been made since.
struct PointeurAnnee
{
    qint16 AnneeInitiale = 0; ///< 0: no exercise yet
    qint16 NbClotures = 0;

    int anneeCourante() const { return AnneeInitiale + NbClotures; }

    /// An absent, short or foreign file reads as "no exercise yet".
    static PointeurAnnee lire(const QString& chemin);
    std::optional<Refus> ecrire(const QString& chemin) const;
};

} // namespace talor
