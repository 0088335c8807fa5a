#pragma once

#include <QAbstractButton>

class QLabel;

namespace talor {

/// A large button: a picture over its caption, with the key that presses it in the corner. Enter presses it as Space
/// does. It is lit while the pointer or the focus is on it.
class GrandBouton : public QAbstractButton
{
    Q_OBJECT

public:
    GrandBouton(const QString& icone, const QString& libelle, const QKeySequence& touche, QWidget* parent = nullptr);

    /// The caption, a label of its own so that it can bear a name.
    QLabel* libelle() const { return m_libelle; }

    /// Back colours at rest and lit.
    void setFonds(QColor repos, QColor allume);
    QColor fond() const { return m_allume ? m_fondAllume : m_fondRepos; }
    void allumer(bool allume);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The pointer or the focus came to the button.
    void designe();

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void montrerIcone();
    QSize taille(int hauteurs) const;

    QIcon m_icone;
    QLabel* m_image;
    QLabel* m_libelle;
    QLabel* m_touche;
    QColor m_fondRepos;
    QColor m_fondAllume;
    bool m_allume = false;
};

} // namespace talor
