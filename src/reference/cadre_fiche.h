#pragma once

#include "platform/controls/entry_panel.h"
#include "reference/fiche.h"

namespace controls {
class FieldChain;
}
class QAbstractButton;
class QGridLayout;
class QScrollArea;

namespace talor {

/// The entry frame `SSFrame1` of a card file: the fields of one card, with OK and cancel.
class CadreFiche : public controls::EntryPanel
{
    Q_OBJECT

public:
    /// A field's control, and the ways to read and set its text.
    struct Editeur
    {
        QWidget* controle = nullptr;
        std::function<QString()> lire;
        std::function<void(const QString&)> poser;
    };

    struct Options
    {
        int imageOk = 0; ///< index of OK in `Image1`
        int imageAnnuler = 1;
        std::function<Editeur(const Champ&)> fabrique = {}; ///< of the chosen fields that have no entries of their own
    };

    CadreFiche(Exercice& exercice, const DescriptionFiche& description, const Options& options);

    /// Shows a card, with the focus in the first field.
    void ouvrir(const QString& titre, const Fiche& fiche);
    void vider();
    Fiche fiche() const;
    /// Puts the focus in the field of a column.
    void viser(const QString& colonne);

    QAbstractButton* annuler() const { return m_annuler; }

signals:
    void accepte();
    void abandonne();

private:
    Editeur creerEditeur(const Champ& champ, const Options& options);
    Editeur creerListe(const Champ& champ);
    void placer(QGridLayout* grille, const Champ& champ, QWidget* controle);
    void enchainer(const DescriptionFiche& description);
    void garderEnVue(QWidget* champ);

    Exercice& m_exercice;
    QList<Champ> m_champs;
    QList<Editeur> m_editeurs; ///< beside `m_champs`
    controls::FieldChain* m_chaine;
    QScrollArea* m_defilement;
    QAbstractButton* m_annuler;
    int m_colonneLibre = 0; ///< of the line being filled while the fields are placed
};

} // namespace talor
