#pragma once

#include "sales/bordereau_entry.h"

#include <QFrame>

#include <array>

class QComboBox;
class QLabel;

namespace controls {
class CommandButton;
class FieldChain;
class TextField;
} // namespace controls

namespace talor {

/// What is chosen for a line, by number, by name or by a touch: the index of `Combo1`, `Label3` and `Text1`.
enum ChoixLigne
{
    ChoixClient,
    ChoixPoisson,
    nbChoixLigne
};

/// The fields of a line, in the order of the keyboard: the index of `Text1`.
enum ChampLigne
{
    ChampClient,
    ChampPoisson,
    ChampCageots,
    ChampPoids,
    ChampPU,
    nbChampsLigne
};

/// The frame in which a sale line is entered, `SSFrame1`. Enter walks through its fields, and in the last one takes the
/// line; a client or a fish is chosen by number, in its list, or from outside by `prendre`.
class CadreLigne : public QFrame
{
    Q_OBJECT

public:
    explicit CadreLigne(const SaisieBordereau& saisie, QWidget* parent = nullptr);

    /// `titre` is "NOUVEL ACHAT" or "MODIFICATION".
    void setTitre(const QString& titre);
    void remplir(const SaisieLigne& ligne);
    /// Empties the three quantities and the amount; client and fish stay.
    void viderQuantites();
    void poserQuantites(const QString& cageots, const QString& poids, const QString& pu);
    void montrerMontant(const QString& texte);
    SaisieLigne ligne() const;

    const ListeChoix& liste(ChoixLigne choix) const;
    /// The name of what a line recorded now will carry.
    QString nom(ChoixLigne choix) const;
    void prendre(ChoixLigne choix, int rang);
    /// A number as it is typed into the field: what is not found is told, and the former choice stays.
    bool prendreOrdre(ChoixLigne choix, const QString& ordre);
    /// Looks up the number that is being typed, for a line taken before its field is left; false when it is refused.
    bool prendreFrappe();
    void viser(ChampLigne champ);

    controls::CommandButton* accepter() const { return m_accepter; }
    controls::CommandButton* abandonner() const { return m_abandonner; }

signals:
    void acceptee();
    void abandonnee();
    void paveDemande();
    /// The focus came to the number of a client or of a fish.
    void choixEnMain(ChoixLigne choix);
    void choisi(ChoixLigne choix, int rang);

private:
    void creerChoix(ChoixLigne choix);
    QWidget* creerTete();
    QWidget* creerChamps();
    QWidget* creerPied();
    void enchainer();

    const SaisieBordereau& m_saisie;
    QLabel* m_titre;
    std::array<controls::TextField*, nbChampsLigne> m_champs{};
    std::array<QComboBox*, nbChoixLigne> m_combos{};
    std::array<QLabel*, nbChoixLigne> m_noms{};
    std::array<qint64, nbChoixLigne> m_nums{}; ///< of the client and the fish chosen last
    QLabel* m_montant;
    controls::CommandButton* m_accepter;
    controls::CommandButton* m_abandonner;
    controls::FieldChain* m_chaine;
};

} // namespace talor
