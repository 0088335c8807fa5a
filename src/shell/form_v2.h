#pragma once

#include "platform/controls/dialog.h"
#include "shell/verrou.h"

class QLabel;

namespace controls {
class TextField;
}

namespace talor {

/// Asks for the word of a lock, typed or pressed on the pad, up to three times.
///
///     if (!exercice.MotAcces.isEmpty() &&
///         Form_v2::demander(&form1, exercice, Verrou::Exercice) != Autorisation::Acceptee)
///         return;
class Form_v2 : public controls::Dialog
{
    Q_OBJECT

public:
    /// Giving up is a refusal, of the operation alone.
    static Autorisation demander(QWidget* parent, Exercice& exercice, Verrou verrou);

    Form_v2(Exercice& exercice, Verrou verrou, QWidget* parent = nullptr);

private:
    void valider();

    DemandeMot m_demande;
    controls::TextField* m_mot;
    QLabel* m_aide;
    Autorisation m_reponse = Autorisation::Refusee;
};

} // namespace talor
