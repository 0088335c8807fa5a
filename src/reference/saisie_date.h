#pragma once

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

} // namespace talor
