#pragma once

#include "core/configuration.h"
#include "core/installation.h"
#include "platform/controls/dialog.h"

namespace controls {
class TextField;
}

namespace talor {

/// "Initialisation": asks a new business for its first exercise and makes it.
class Form12 : public controls::Dialog
{
    Q_OBJECT

public:
    /// The year pointer of the exercise that was made, or nothing when it was declined.
    static std::optional<PointeurAnnee> demander(const Installation& installation, const QString& CodeFichier,
                                                 QWidget* parent = nullptr);

private:
    Form12(const Installation& installation, const QString& CodeFichier, QWidget* parent);
    void valider();

    Installation m_installation;
    QString m_CodeFichier;
    controls::TextField* m_annee;
    std::optional<PointeurAnnee> m_choisi;
};

} // namespace talor
