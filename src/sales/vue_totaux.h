#pragma once

#include "sales/bordereau_entry.h"

#include <QFrame>

class QLabel;
class QToolButton;

namespace controls {
class FieldChain;
class TextField;
} // namespace controls

namespace talor {

/// The totals under the lines of a bordereau: crates and gross, premiums and rate, which are typed here or taken from
/// the pad, commission, expenses and net.
class VueTotaux : public QFrame
{
    Q_OBJECT

public:
    explicit VueTotaux(QWidget* parent = nullptr);

    void afficher(const PanneauTotaux& totaux);
    /// The button that opens the expenses.
    QToolButton* boutonFrais() const { return m_frais; }

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

signals:
    void primesSaisies(const QString& texte);
    void tauxSaisi(const QString& texte);
    void padDemande();
    void fraisDemandes();

private:
    controls::TextField* m_primes;
    controls::TextField* m_taux;
    QLabel* m_cageots;
    QLabel* m_brut;
    QLabel* m_commission;
    QLabel* m_legendeFrais;
    QLabel* m_totalFrais;
    QLabel* m_net;
    QToolButton* m_pad;
    QToolButton* m_frais;
};

} // namespace talor
