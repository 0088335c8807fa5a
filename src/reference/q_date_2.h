#pragma once

#include "platform/controls/dialog.h"
#include "reference/calendrier.h"

#include <array>
#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;

namespace controls {
class CommandBar;
class TextField;
} // namespace controls

namespace talor {

class CelluleJour;

/// The calendar. Arrows go by day and by week, PgUp and PgDn by month, with Ctrl by year; Enter and a double click take
/// the day.
class Q_Date_2 : public controls::Dialog
{
    Q_OBJECT

public:
    /// The date taken, dd/MM/yyyy; nothing when the user gave up. Opens on `dateInitiale`, on today when it holds none.
    static std::optional<QString> demander(QWidget* parent, const QString& dateInitiale = {});

    explicit Q_Date_2(const QString& dateInitiale, QWidget* parent = nullptr);

    const std::optional<QString>& choisie() const { return m_choisie; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* creerBarreMois();
    QWidget* creerCellules();
    void feuilleter(int index);
    void afficher();
    void prendre();
    template<class Pas> void changer(Pas pas);

    Calendrier m_calendrier;
    QComboBox* m_mois;
    QComboBox* m_annee;
    QLabel* m_date;
    QWidget* m_grille;
    std::array<CelluleJour*, Calendrier::nbCellules> m_cellules{};
    std::optional<QString> m_choisie;
};

/// The calendar beside a date field: opens on its date and writes the day taken into it. True when one was taken.
bool choisirDate(QWidget* parent, QLineEdit* champ);

/// Blanks the field, with a beep, when it is left on a date that `DateValide` refuses.
void viderDateRefusee(controls::TextField* champ);

} // namespace talor
