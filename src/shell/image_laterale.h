#pragma once

#include <QPixmap>
#include <QWidget>

#include <optional>

namespace talor {

/// A picture of the trader's own at a side of the main window, as large as its column allows. Hidden when there is
/// none, or when the file holds no picture.
class ImageLaterale : public QWidget
{
    Q_OBJECT

public:
    explicit ImageLaterale(QWidget* parent = nullptr);

    void charger(const std::optional<QString>& fichier);
    bool estVide() const { return m_image.isNull(); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_image;
};

} // namespace talor
