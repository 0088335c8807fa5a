#pragma once

#include "sales/bordereau_entry.h"

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

/// The ten expenses of a bordereau with their sum, `SSFrame2`, by keyboard or pad. Labels and amounts go into the entry
/// as they are typed; rows are numbered from 1 here.
class CadreFrais : public QFrame
{
    Q_OBJECT

public:
    explicit CadreFrais(SaisieBordereau& saisie, QWidget* parent = nullptr);

    /// Shows the expenses as they stand, the first in hand.
    void ouvrir();

    controls::CommandButton* abandonner() const { return m_abandonner; }

signals:
    void accepte();
    void abandonne();
    /// All amounts are to be cleared.
    void effacementDemande();

private:
    QWidget* creerLignes();
    QWidget* creerPied();
    void enchainer();
    void montrerTotal();

    SaisieBordereau& m_saisie;
    std::array<controls::TextField*, SaisieBordereau::nbFrais> m_libelles{};
    std::array<controls::TextField*, SaisieBordereau::nbFrais> m_montants{};
    QLabel* m_total;
    controls::NumberPad* m_pave;
    controls::CommandButton* m_abandonner = nullptr;
    controls::FieldChain* m_chaineLibelles;
    controls::FieldChain* m_chaineMontants;
};

} // namespace talor
