#pragma once

#include <QFrame>

class QToolButton;

namespace talor {

/// The picture frame of a product: the picture `Image3`, which is also the button that chooses another, the button
/// that deletes it and the one that closes the frame.
class CadreImage : public QFrame
{
    Q_OBJECT

public:
    explicit CadreImage(QWidget* parent = nullptr);

    /// Shows the picture of a file, or the default one where there is none.
    void charger(const QString& chemin);
    bool estParDefaut() const { return m_parDefaut; }

signals:
    void choisir();
    void supprimer();
    void fermer();

private:
    QToolButton* m_image;
    bool m_parDefaut = true;
};

} // namespace talor
