#pragma once

#include "platform/controls/dialog.h"
#include "sales/bordereau_register.h"

class QLabel;
class QToolButton;

namespace controls {
class CommandBar;
class Grid;
} // namespace controls

namespace talor {

class CadreFiltreBordereaux;

/// The list of bordereaux on screen, with its filter and its print: what the register and the listings have in common.
/// A frame, that of the filter or one of the dialog's own, opens in the place of the commands, over a list at rest;
/// only "Quitter" stays beside it.
class DialogueBordereaux : public controls::Dialog
{
    Q_OBJECT

public:
    QSize sizeHint() const override;

protected:
    struct Commande
    {
        int index;
        QString icone;
        QString legende;
        QKeySequence raccourci = {};
    };

    /// The last of the commands is "Quitter". The constructor of the dialog itself ends with `charger`.
    DialogueBordereaux(QStringView nom, Exercice& exercice, RegistreBordereaux::Porte porte,
                       const QList<Commande>& commandes, QWidget* parent);

    RegistreBordereaux& registre() { return m_registre; }
    controls::Grid* grille() const { return m_grille; }
    controls::CommandBar* commandes() const { return m_commandes; }

    /// A frame of the dialog's own, and what Escape presses in it.
    void ajouterCadre(QWidget* cadre, const QList<QAbstractButton*>& annuler);
    /// Shows a frame, or the list with its commands when there is none.
    void montrerCadre(QWidget* cadre);

    /// Reads the list afresh by its current query and selects its last row.
    void charger();
    void ouvrirFiltre();
    void imprimer();

    virtual void executer(int index) = 0;
    /// The list has been filled with nothing.
    virtual void surListeVide() {}

private:
    QWidget* creerFleches();
    void montrerFleches();
    void deplacer(int pas);
    void garderEnVue();
    void remplir();
    void filtrer(const FiltreBordereaux& filtre);

    Exercice& m_exercice;
    RegistreBordereaux m_registre;
    std::array<QLabel*, 2> m_titres;
    controls::Grid* m_grille;
    QToolButton* m_haut;
    QToolButton* m_bas;
    controls::CommandBar* m_commandes;
    QList<int> m_indexCommandes; ///< but for "Quitter"
    QAbstractButton* m_quitter = nullptr;
    CadreFiltreBordereaux* m_filtre;
    QList<QWidget*> m_cadres;
    QList<QAbstractButton*> m_annuler;
};

} // namespace talor
