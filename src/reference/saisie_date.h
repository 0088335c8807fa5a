#pragma once

class QComboBox;
class QToolButton;
class QWidget;

namespace controls {
class TextField;
}

namespace talor {

/// A date as every dialog asks for it: the field, where it is typed, and the button of its calendar, to be placed
/// beside it. Backspace empties the field, and so does leaving it on a date that `DateValide` refuses.
struct SaisieDate
{
    controls::TextField* champ;
    QToolButton* calendrier;
};

/// `dialogue` is what the calendar opens over. Both controls are the caller's to name and place.
SaisieDate creerSaisieDate(QWidget* dialogue);

/// Brings the focus to the date at fault of a refused period: to the second where it alone is incomplete.
void viserDateFautive(controls::TextField* premiere, controls::TextField* seconde);

/// The twelve months by their names, standing on the current one.
QComboBox* creerComboMois();

} // namespace talor
