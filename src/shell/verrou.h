#pragma once

#include "core/refus.h"
#include "core/state.h"

namespace talor {

/// The lock. Words stand in the configuration file: the user's in record 1, the one of the exercise operations in
/// record 2, a third in record 3 that is accepted everywhere. They are compared in capitals, without blanks around.

/// What is locked, and with it the word that opens it.
enum class Verrou
{
    Programme = 1, ///< record 1; three wrong words end the program
    Exercice = 2   ///< record 2; three wrong words refuse the operation
};

enum class Autorisation
{
    Acceptee,
    Refusee,
    FinProgramme ///< the caller must end the program
};

/// One request for the word, with its attempts.
class DemandeMot
{
public:
    static constexpr int essaisMax = 3;

    DemandeMot(Exercice& exercice, Verrou verrou)
        : m_exercice(exercice)
        , m_verrou(verrou)
    {}

    /// The answer to what was typed; nothing while another attempt is left. The access word in force opens too. An
    /// empty word, be it the third's or the one in force, is equalled by an empty text.
    std::optional<Autorisation> essayer(const QString& saisie);
    int essaisRestants() const { return essaisMax - m_essais; }

private:
    bool estAccepte(const QString& mot) const;

    Exercice& m_exercice;
    Verrou m_verrou;
    int m_essais = 0;
};

/// The change of the user's word, record 1: the other two are delivered with the installation.
class ChangementMot
{
public:
    static constexpr int echecsMax = 2;

    enum class Case
    {
        Actuel = 1,
        Nouveau,
        Confirmation
    };

    struct Issue
    {
        Refus message;
        bool ferme = false; ///< the word is changed, or too many wrong ones were given
        Case champ = Case::Actuel;
    };

    explicit ChangementMot(Exercice& exercice)
        : m_exercice(exercice)
    {}

    /// Writes the new word to the configuration file and keeps it in memory, or tells what is wrong in which box.
    Issue valider(const QString& actuel, const QString& nouveau, const QString& confirmation);

private:
    Exercice& m_exercice;
    int m_echecs = 0;
};

} // namespace talor
