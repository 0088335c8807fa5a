#include "shell/images_laterales.h"

#include "core/helpers.h"

#include <QFile>
#include <QFileInfo>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

QString cheminPhoto(const Installation& installation, Cote cote, const QString& suite)
{
    const QString nom = (cote == Cote::Gauche ? u"Gauche"_s : u"Droit"_s) + suite;
    return CheminReel(QDir(installation.photos()).filePath(nom));
}

QString cheminMarque(const Installation& installation, Cote cote)
{
    return cheminPhoto(installation, cote, u"_V.BMP"_s);
}

} // namespace

QString cheminImage(const Installation& installation, Cote cote)
{
    return cheminPhoto(installation, cote, u".BMP"_s);
}

bool estEcartee(const Installation& installation, Cote cote)
{
    return FichierExiste(cheminMarque(installation, cote));
}

std::optional<QString> imageLaterale(const Installation& installation, Cote cote)
{
    const QString image = cheminImage(installation, cote);
    if (!FichierExiste(image) || estEcartee(installation, cote))
        return std::nullopt;
    return image;
}

std::optional<Refus> ecarterImage(const Installation& installation, Cote cote, bool ecartee)
{
    QFile marque(cheminMarque(installation, cote));
    const bool fait = ecartee ? marque.open(QIODevice::WriteOnly) : !marque.exists() || marque.remove();
    if (fait)
        return std::nullopt;
    return Refus{u"Fichier '"_s + QFileInfo(marque).fileName() + u"' : "_s + marque.errorString()};
}

} // namespace talor
