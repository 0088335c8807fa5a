#pragma once

#include "sales/dialogue_bordereaux.h"

#include <functional>

namespace talor {

class CadreOuverture;

/// The register of bordereaux, the door to sales: a bordereau is begun, reopened, deleted, looked for or printed here.
///
/// By keyboard: Ins a new bordereau, Enter or F2 the one of the row, Del its deletion, Ctrl+F the filter, Ctrl+P the
/// print, Esc out of the frame, then out of the register. A new one of today is three keys away: Ins, Enter on the
/// date, Enter on the boat, which can be typed by its number or its first letters.
class F_Bord : public DialogueBordereaux
{
    Q_OBJECT

public:
    /// Opens the journal of sales on a bordereau and returns when it is closed.
    using Saisie = std::function<void(QWidget* parent, const DemandeSaisie& demande)>;

    F_Bord(Exercice& exercice, Saisie saisie, QWidget* parent = nullptr);

private:
    void executer(int index) override;
    void surListeVide() override { nouveau(); }
    void nouveau();
    void modifier();
    void supprimer();
    void ouvrirCadre(const CadreBordereau& cadre);
    void confirmer();

    Saisie m_saisie;
    CadreOuverture* m_cadre;
};

} // namespace talor
