#pragma once

#include "core/state.h"
#include "demo/saison.h"
#include "sales/bordereau_entry.h"

#include <functional>

namespace talor::demo {

/// Plays a season into an open, empty exercise as its user would: card by card, line by line, every step through the
/// program's own logic. The clock shows the day that is played.
///
/// What the program refuses stops the game; the refusal says what was being entered.
class Jeu
{
public:
    using Annonce = std::function<void(const QString&)>;

    /// `annonce` hears a line for each thing done.
    Jeu(Exercice& exercice, const Saison& saison, Annonce annonce);

    /// What is left to be done at the windows.
    enum class Reste
    {
        Rien,
        DernierBordereau ///< the last bordereau of the season, and the invoices of its day
    };

    std::optional<Refus> jouer(Reste reste = Reste::Rien);

    // The same in steps.
    void identifier();
    std::optional<Refus> ouvrirFiches();
    std::optional<Refus> saisirBordereau(const Journee& journee, const Bordereau& bordereau);
    std::optional<Refus> facturer(const Journee& journee);

private:
    std::optional<Refus> ouvrirCategories();
    std::optional<Refus> ouvrirPoissons();
    std::optional<Refus> ouvrirArmateurs();
    std::optional<Refus> ouvrirEmbarcations();
    std::optional<Refus> ouvrirClients();

    Exercice& m_exercice;
    const Saison& m_saison;
    Annonce m_annonce;
};

/// Row of the expense frame, from 0, where a label goes: its own, or the first "Divers" that is still free.
std::optional<int> rangFrais(const SaisieBordereau& saisie, const QString& libelle);

} // namespace talor::demo
