#include "reference/images.h"

#include "core/helpers.h"
#include "platform/store/maintenance.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

bool estImage(const QByteArray& contenu)
{
    return contenu.startsWith("BM") || contenu.startsWith("GIF8") || contenu.startsWith("\xFF\xD8\xFF");
}

} // namespace

QString photoProduit(const Exercice& exercice, qint64 num)
{
    return CheminReel(QDir(exercice.installation().photos()).filePath(QString::number(num) + u".BMP"_s));
}

std::optional<Refus> copierImage(const QString& source, const QString& cible)
{
    const QString nom = QFileInfo(source).fileName();
    QFile fichier(source);
    if (!fichier.open(QIODevice::ReadOnly))
        return Refus{u"Fichier "_s + nom + u" illisible"_s};
    const QByteArray contenu = fichier.readAll();
    if (!estImage(contenu))
        return Refus{u"Fichier "_s + nom + u" : ce n'est pas une image"_s};
    fichier.close();
    store::writeFileSafely(cible, contenu);
    return std::nullopt;
}

std::optional<Refus> supprimerImage(const QString& chemin)
{
    if (!FichierExiste(chemin) || QFile::remove(CheminReel(chemin)))
        return std::nullopt;
    return Refus{u"Fichier "_s + QFileInfo(chemin).fileName() + u" : suppression impossible"_s};
}

} // namespace talor
