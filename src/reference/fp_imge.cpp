#include "reference/fp_imge.h"

#include "core/montrer.h"
#include "platform/controls/file_dialog.h"
#include "reference/images.h"

#include <QStandardPaths>

namespace talor {

using namespace Qt::StringLiterals;

bool FP_imge::choisir(QWidget* parent, const QString& cible)
{
    // The patterns in both cases: not every file system takes one for the other.
    const QString choisie = controls::FileDialog::open(
        parent, u"Choix d'une image"_s, QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
        u"Images (*.BMP *.GIF *.JPG *.bmp *.gif *.jpg)"_s);
    return !choisie.isEmpty() && !montrerSi(parent, copierImage(choisie, cible));
}

} // namespace talor
