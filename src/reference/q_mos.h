#pragma once

#include "reference/dialogue_liste.h"

namespace talor {

/// Asks for a month.
class Q_Mos : public DialogueListe
{
    Q_OBJECT

public:
    /// The month taken, 1 to 12; nothing when the user gave up. The list opens on `moisInitial`.
    static std::optional<int> demander(QWidget* parent, int moisInitial = 1);

    explicit Q_Mos(int moisInitial, QWidget* parent = nullptr);
};

} // namespace talor
