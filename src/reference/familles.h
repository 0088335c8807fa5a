#pragma once

#include "platform/controls/dialog.h"
#include "reference/categories.h"

namespace controls {
class EntryPanel;
class TextField;
} // namespace controls
class QAbstractButton;
class QListWidget;

namespace talor {

/// The categories of clients: kept here, and one of them chosen.
class Familles : public controls::Dialog
{
    Q_OBJECT

public:
    /// The category selected on leaving; nothing when there is none. Opens on the category of this `num`.
    static std::optional<Categorie> demander(QWidget* parent, Exercice& exercice, qint64 actuelle = 0);

    Familles(Exercice& exercice, qint64 actuelle, QWidget* parent = nullptr);

    std::optional<Categorie> choisie() const { return m_choisie; }

private:
    /// What OK does with the text. A text typed over the selection without a command is a new category.
    enum class Saisie
    {
        Aucune,
        Nouvelle,
        Modification
    };

    void executer(int index);
    void remplir(qint64 num);
    std::optional<Categorie> selection() const;
    void reprendreSelection();
    void commencer(Saisie saisie);
    void nouvelle();
    void modifier();
    void accepter();
    void abandonner();
    void supprimer();
    void quitter();

    Exercice& m_exercice;
    QList<Categorie> m_categories; ///< in the order of the list
    QListWidget* m_liste;
    controls::EntryPanel* m_cadre;
    controls::TextField* m_texte;
    QAbstractButton* m_annuler;
    Saisie m_saisie = Saisie::Aucune;
    std::optional<Categorie> m_choisie;
};

} // namespace talor
