#include "shell/image_laterale.h"

#include <QPainter>

namespace talor {

namespace {

constexpr int largeur = 220;

}

ImageLaterale::ImageLaterale(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    hide();
}

void ImageLaterale::charger(const std::optional<QString>& fichier)
{
    m_image = fichier ? QPixmap(*fichier) : QPixmap();
    setVisible(!m_image.isNull());
    update();
}

QSize ImageLaterale::sizeHint() const
{
    return {largeur, largeur};
}

void ImageLaterale::paintEvent(QPaintEvent*)
{
    QRect cadre({}, m_image.size().scaled(size(), Qt::KeepAspectRatio));
    cadre.moveCenter(rect().center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(cadre, m_image);
}

} // namespace talor
