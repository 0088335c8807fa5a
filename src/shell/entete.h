#pragma once

#include <QWidget>

#include <memory>

class QLabel;
class QPushButton;
class QSvgRenderer;

namespace talor {

class Exercice;

/// The head of the main window: the trader's name, the third line of his identity, the year in view, today's date and
/// the button of the guide, over a drawn port, or over plain blue when the trader shows pictures of his own.
class Entete : public QWidget
{
    Q_OBJECT

public:
    explicit Entete(QWidget* parent = nullptr);
    ~Entete() override;

    void montrer(const Exercice& exercice);
    /// Without the port the head is only as high as its texts.
    void setPortMontre(bool montre);
    QPushButton* guide() const { return m_guide; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ajusterHauteur();

    QLabel* m_nom;
    QLabel* m_ligne;
    QLabel* m_annee;
    QLabel* m_date;
    QPushButton* m_guide;
    std::unique_ptr<QSvgRenderer> m_port;
    bool m_portMontre = true;
};

} // namespace talor
