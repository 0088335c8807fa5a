#pragma once

#include "platform/controls/dialog.h"
#include "shell/identification.h"

class QRadioButton;

namespace controls {
class TextField;
}

namespace talor {

/// The trader's fiscal data, the rates of the trade and the sound. "OK" writes what was changed; the rates are in force
/// at once.
class Identif : public controls::Dialog
{
    Q_OBJECT

public:
    explicit Identif(Exercice& exercice, QWidget* parent = nullptr);

private:
    QWidget* creerCases();
    QWidget* creerSons();
    void montrer(const Identification& identification);
    Identification saisie() const;

    Exercice& m_exercice;
    std::array<controls::TextField*, Identification::nbCases> m_cases{};
    std::array<QRadioButton*, 2> m_sons{};
    Identification m_lue; ///< the baseline of a change
};

} // namespace talor
