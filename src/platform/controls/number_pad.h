#pragma once

#include <QPushButton>
#include <QWidget>

class QLabel;

namespace controls {

/// A pad of large keys, for a finger or the mouse: digits, the point, backspace, under the number as it stands. At most
/// 12 characters and one point. Its keys leave the focus where it is.
class NumberPad : public QWidget
{
    Q_OBJECT

public:
    struct Names
    {
        QString keys;      ///< family of the keys: 0 to 9 the digits, 10 the point
        QString display;   ///< the label of the number
        QString backspace; ///< whole name, with its index
    };

    explicit NumberPad(const Names& names, QWidget* parent = nullptr);

    QString text() const;
    /// A field of whole numbers takes no point.
    void setPointEnabled(bool enabled) { m_point->setEnabled(enabled); }
    /// Blanks the display without telling it: the pad turns to another field.
    void clear();

signals:
    /// A key changed the number.
    void displayChanged(const QString& text);

private:
    void press(QChar key);
    void eraseLast();
    void display(const QString& text);

    QLabel* m_display;
    QPushButton* m_point;
};

} // namespace controls
