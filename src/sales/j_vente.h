#pragma once

#include "platform/controls/dialog.h"
#include "sales/bordereau_entry.h"

class QStackedWidget;

namespace controls {
class CommandBar;
class Grid;
} // namespace controls

namespace talor {

class CadreFrais;
class CadreLigne;
class ListesChoix;
class PaveChiffres;
class VueTotaux;

/// The journal of sales: the lines of one bordereau, entered as they are called out.
///
/// By keyboard: Ins a new line, Enter or F2 the line of the row, Del its deletion, F5 premiums and rate on the pad, F6
/// the expenses, Esc out. While a line is entered: Enter from field to field and, in the last, the line; F7 the pad of
/// figures; Esc back to the lines.
class j_vente : public controls::Dialog
{
    Q_OBJECT

public:
    /// Opens the bordereau that is asked for and returns once it is left, its totals written.
    static void saisir(QWidget* parent, Exercice& exercice, const DemandeSaisie& demande);

    /// `saisie` is open.
    j_vente(Exercice& exercice, SaisieBordereau saisie, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* creerLignes();
    QWidget* creerSaisie();
    void creerCommandes();
    void brancherCadres();

    void executer(int index);
    void nouvelle();
    void corriger();
    void supprimer();
    void quitter();
    void enregistrer();
    void abandonner();

    void ShowCommands();
    void HideCommands();
    void montrerCommandes(bool montrees);
    void ouvrirSaisie(const QString& titre);
    bool enSaisie() const;

    void ouvrirPave();
    void fermerPave();
    void demanderChoix(int choix);
    void ouvrirFrais();
    void fermerFrais();
    void demanderPrimes();
    void afficherTotaux();

    Exercice& m_exercice;
    SaisieBordereau m_saisie;
    controls::Grid* m_grille;
    VueTotaux* m_totaux;
    QStackedWidget* m_volets;  ///< entry of lines, or the expenses
    QStackedWidget* m_dessous; ///< under the entry frame: the lists, or the pad of figures
    CadreLigne* m_cadre;
    ListesChoix* m_listes;
    PaveChiffres* m_pave;
    CadreFrais* m_frais;
    controls::CommandBar* m_commandes;
};

} // namespace talor
