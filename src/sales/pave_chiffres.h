#pragma once

#include "sales/cadre_ligne.h"

#include <QFrame>

#include <array>

class QLabel;

namespace controls {
class CommandButton;
class FieldChain;
class NumberPad;
class TextField;
} // namespace controls

namespace talor {

/// The figures of a line for a finger, `SSPanel12`: crates, weight and price filled by a pad, and the choice of the
/// client and of the fish.
class PaveChiffres : public QFrame
{
    Q_OBJECT

public:
    explicit PaveChiffres(QWidget* parent = nullptr);

    /// Empties the display and the three fields and takes the crates in hand.
    void ouvrir();
    void montrerNom(ChoixLigne choix, const QString& nom);

    controls::CommandButton* abandonner() const { return m_abandonner; }

signals:
    void accepte(const QString& cageots, const QString& poids, const QString& pu);
    void abandonne();
    /// A client or a fish is to be asked for.
    void choixDemande(ChoixLigne choix);

private:
    static constexpr int nbChiffres = 3;

    QWidget* creerChoix();
    QWidget* creerChiffres();
    QWidget* creerBoutons();

    std::array<QLabel*, nbChoixLigne> m_noms{};
    std::array<controls::TextField*, nbChiffres> m_champs{};
    controls::NumberPad* m_pave;
    controls::FieldChain* m_chaine;
    controls::CommandButton* m_abandonner = nullptr;
};

} // namespace talor
