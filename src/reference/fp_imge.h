#pragma once

#include <QString>

class QWidget;

namespace talor {

/// The chooser of a picture.
class FP_imge
{
public:
    /// Asks for a picture and puts a copy of it at the target. True when there is a new one.
    static bool choisir(QWidget* parent, const QString& cible);
};

} // namespace talor
