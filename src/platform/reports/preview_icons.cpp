#include "platform/reports/preview_icons.h"

#include <QMap>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

// Paths in a square of 24, drawn with a pen of 1.8.
const QMap<QString, QByteArray>& drawings()
{
    static const QMap<QString, QByteArray> paths = {
        {u"imprimer"_s, "M7 9V3h10v6 M7 17H4v-8h16v8h-3 M7 14h10v7H7z"},
        {u"enregistrer"_s, "M6 3h8l5 5v13H6z M14 3v5h5 M12.5 11v6 M9.8 14.6l2.7 2.7 2.7-2.7"},
        {u"fermer"_s, "M6 6l12 12 M18 6L6 18"},
        {u"premiere"_s, "M18 5l-8 7 8 7 M6 5v14"},
        {u"precedente"_s, "M15.5 5l-8 7 8 7"},
        {u"suivante"_s, "M8.5 5l8 7-8 7"},
        {u"derniere"_s, "M6 5l8 7-8 7 M18 5v14"},
        {u"moins"_s, "M5 12h14"},
        {u"plus"_s, "M5 12h14 M12 5v14"},
        {u"largeur"_s, "M4 4v16 M20 4v16 M7.5 12h9 M10 9l-3 3 3 3 M14 9l3 3-3 3"},
        {u"pageEntiere"_s, "M6 3h12v18H6z M12 6.5v11 M10 8.5l2-2 2 2 M10 15.5l2 2 2-2"},
    };
    return paths;
}

QPixmap drawing(const QByteArray& path, const QByteArray& color, int size)
{
    QSvgRenderer renderer("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'><path d='" + path +
                          "' fill='none' stroke='" + color +
                          "' stroke-width='1.8' stroke-linecap='round' stroke-linejoin='round'/></svg>");
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

} // namespace

QIcon previewIcon(const QString& name)
{
    QIcon icon;
    const QByteArray path = drawings().value(name);
    if (path.isEmpty())
        return icon;
    for (const int size : {20, 40, 60}) { // for screens of usual, double and treble density
        icon.addPixmap(drawing(path, "#17435e", size), QIcon::Normal);
        icon.addPixmap(drawing(path, "#a3abb1", size), QIcon::Disabled);
    }
    return icon;
}

} // namespace reports
