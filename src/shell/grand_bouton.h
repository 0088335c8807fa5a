#pragma once

#include <QAbstractButton>

class QBoxLayout;
class QLabel;

namespace talor {

/// A large button: a picture and its caption, with the key that presses it in the corner. Enter presses it as Space
/// does. It is lit while the pointer is on it; the focus draws a ring around it.
class GrandBouton : public QAbstractButton
{
    Q_OBJECT

public:
    enum class Disposition
    {
        SelonLaPlace, ///< the picture over the caption, or beside it where the button is low
        EnLigne       ///< always beside it
    };

    GrandBouton(const QString& icone, const QString& libelle, const QKeySequence& touche, Disposition disposition,
                QWidget* parent = nullptr);

    /// The caption, a label of its own so that it can bear a name.
    QLabel* libelle() const { return m_libelle; }

    /// Back colours at rest and lit.
    void setFonds(QColor repos, QColor allume);
    QColor fond() const { return m_allume ? m_fondAllume : m_fondRepos; }
    void allumer(bool allume);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The pointer came to the button.
    void survole();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void disposer();
    int placeTouche() const;

    QIcon m_icone;
    Disposition m_disposition;
    QWidget* m_image; ///< keeps the place of the picture
    QLabel* m_libelle;
    QLabel* m_touche;
    QBoxLayout* m_rangee;
    QColor m_fondRepos;
    QColor m_fondAllume;
    bool m_allume = false;
};

} // namespace talor
