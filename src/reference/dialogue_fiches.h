#pragma once

#include "platform/controls/dialog.h"
#include "reference/cadre_fiche.h"
#include "reference/fiches.h"

namespace controls {
class CommandBar;
class Grid;
} // namespace controls
class QHBoxLayout;
class QToolButton;

namespace talor {

/// A card file on screen: the list, its commands, and the entry frame beside it while a card is entered.
///
/// By keyboard: Ins a new card, Enter or F2 the card of the row, Del its deletion, Esc out; in the entry frame
/// Ctrl+Enter takes the card and Esc leaves it.
class DialogueFiches : public controls::Dialog
{
    Q_OBJECT

protected:
    /// Meaning of the first indexes of `Crecettes`.
    enum Action
    {
        Nouveau,
        Modifier,
        Supprimer,
        Quitter
    };

    /// A command that one card file has beside the four of all.
    struct Commande
    {
        int index;
        QString icone;
        QString legende;
        QKeySequence raccourci = {};
    };

    DialogueFiches(QStringView nom, Exercice& exercice, const DescriptionFiche& description,
                   const QList<Commande>& commandes, const CadreFiche::Options& cadre, QWidget* parent);

    Fiches& fiches() { return m_fiches; }
    controls::Grid* grille() const { return m_grille; }
    /// The row of the list, for what a dialog shows at its right.
    QHBoxLayout* rangee() const { return m_rangee; }

    /// Lists the cards afresh and selects the first.
    void remplir(Classement classement);
    /// Dials the telephone of the selected card, when it has one.
    void appeler();

    /// A command of the dialog's own.
    virtual void executer(int index);
    /// A card begins or ends to be entered.
    virtual void surSaisie(bool enCours);

    void showEvent(QShowEvent* event) override;

private:
    QSize tailleVoulue() const;
    void creerFleches();
    void montrerFleches();
    void echanger(bool versLeHaut);
    void ouvrirPremiereFiche();
    void nouvelle();
    void modifier();
    void supprimer();
    void quitter();
    void enregistrer();
    void montrerSaisie(bool enCours);
    void ouvrirSaisie(const QString& titre, const Fiche& fiche);
    void fermerSaisie();

    Fiches m_fiches;
    controls::Grid* m_grille;
    controls::CommandBar* m_commandes;
    CadreFiche* m_cadre;
    QHBoxLayout* m_rangee;
    QWidget* m_fleches; ///< what holds the two arrows
    QToolButton* m_haut;
    QToolButton* m_bas;
    std::optional<int> m_ligneEnSaisie; ///< none while a new card is entered
    bool m_ouvert = false;
};

} // namespace talor
