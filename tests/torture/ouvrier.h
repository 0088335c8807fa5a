#pragma once

#include "action.h"

#include "core/state.h"
#include "sales/bordereau_register.h"

#include <random>

namespace torture {

/// What the days of a business are made of, at random: bordereaux opened, keyed in, corrected, left, deleted; invoices;
/// the program left and opened again; the file compacted. It goes through the program's own logic and announces
/// everything when the program would.
class Ouvrier
{
public:
    Ouvrier(talor::Exercice& exercice, quint32 graine, Annoncer annoncer);

    /// Throws `store::Error`, and `Inattendu` when the logic refuses what it has to take.
    void travailler(int nbActions);

    // One action each, for those who want a certain one
    void nouveauBordereau();
    void rouvrirBordereau();
    void supprimerBordereau();
    void facturer();
    void sortir();
    void compacter();

private:
    void commencer(const Action& action) { m_annoncer({false, action}); }
    void annoncer(const Action& action) { m_annoncer({true, action}); }
    void remplir(talor::SaisieBordereau& saisie);
    void ajouterLigne(talor::SaisieBordereau& saisie);
    void corrigerLigne(talor::SaisieBordereau& saisie);
    void supprimerLigne(talor::SaisieBordereau& saisie);
    void quitter(talor::SaisieBordereau& saisie);
    void saisirChiffres(talor::SaisieLigne& ligne);
    std::optional<int> rangModifiable(talor::RegistreBordereaux& registre);

    int hasard(int premier, int dernier) { return std::uniform_int_distribution<int>(premier, dernier)(m_hasard); }

    talor::Exercice& m_exercice;
    std::mt19937 m_hasard;
    Annoncer m_annoncer;
};

/// A refusal where there is nothing to refuse.
struct Inattendu
{
    QString texte;
};

/// An exercise with its clients, boats and fish, closed, in a folder as the installation leaves it.
void preparerExercice(const QString& dossier);
/// The exercise of such a folder, closed.
std::unique_ptr<talor::Exercice> exerciceDe(const QString& dossier);

} // namespace torture
