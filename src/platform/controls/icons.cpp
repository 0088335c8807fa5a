#include "platform/controls/icons.h"

#include "platform/controls/look.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace controls {

using namespace Qt::StringLiterals;

namespace {

/// Renders a drawing afresh for each size; the drawing's lines are in "currentColor".
class DrawingEngine : public QIconEngine
{
public:
    DrawingEngine(QByteArray drawing, QColor colour)
        : m_drawing(std::move(drawing))
        , m_colour(colour)
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QColor shown = mode == QIcon::Disabled ? colour::disabled : m_colour;
        QSvgRenderer renderer(QByteArray(m_drawing).replace("currentColor", shown.name().toLatin1()));
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        renderer.render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1.0);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new DrawingEngine(*this); }

private:
    QByteArray m_drawing;
    QColor m_colour;
};

QByteArray drawingOf(const QString& path)
{
    QFile file(path);
    const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT_X(opened, "controls::icon", qPrintable(path));
    return opened ? file.readAll() : QByteArray();
}

} // namespace

QIcon icon(QStringView name)
{
    return icon(name, colour::blue);
}

QIcon icon(QStringView name, QColor colour)
{
    return QIcon(new DrawingEngine(drawingOf(u":/talor/icons/"_s + name.toString() + u".svg"_s), colour));
}

QIcon applicationIcon()
{
    return QIcon(new DrawingEngine(drawingOf(u":/talor/talor.svg"_s), colour::blue));
}

} // namespace controls
