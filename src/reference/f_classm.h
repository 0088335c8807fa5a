#pragma once

#include "platform/controls/dialog.h"
#include "reference/classement.h"

#include <optional>

class QRadioButton;

namespace talor {

/// Asks the order of a list.
class F_Classm : public controls::Dialog
{
    Q_OBJECT

public:
    /// Nothing when the user gave up.
    static std::optional<Classement> demander(QWidget* parent);

    explicit F_Classm(QWidget* parent = nullptr);

    std::optional<Classement> choisi() const { return m_choisi; }

private:
    void accepter();

    QRadioButton* m_manuel;
    std::optional<Classement> m_choisi;
};

} // namespace talor
