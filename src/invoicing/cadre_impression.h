#pragma once

#include "core/report_window.h"
#include "invoicing/invoice_register.h"
#include "platform/controls/entry_panel.h"

#include <array>

class QAbstractButton;
class QLabel;
class QRadioButton;

namespace talor {

/// The print panel `SSPanel3` of the invoices: which ones, as what, to where.
class CadreImpression : public controls::EntryPanel
{
    Q_OBJECT

public:
    CadreImpression();

    /// Proposes the marked rows where there are some, else the selected invoice; both are told in the panel.
    void ouvrir(int marquees, const QString& actuelle);
    /// Puts the focus on the choice of rows.
    void viserLignes();

    bool lignesMarquees() const; ///< else the selected invoice
    GenreImpression genre() const;
    Destination destination() const;
    QAbstractButton* annuler() const { return m_annuler; }

signals:
    void accepte();
    void abandonne();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Paire = std::array<QRadioButton*, 2>;

    /// Two options of a family, the first of them set.
    Paire creerPaire(const QString& titre, QStringView famille, const std::array<QString, 2>& legendes);

    Paire m_lignes; ///< the marked ones, the selected one
    Paire m_genre;
    Paire m_destination;
    QLabel* m_detail;
    QAbstractButton* m_annuler;
};

} // namespace talor
