#pragma once

#include <QPushButton>
#include <QWidget>

class QLabel;

namespace controls {

class TextField;

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
    /// Blanks the display without telling it.
    void clear();

    /// The pad types into this field too, while it is in hand: from when it is entered until another one is. The mark
    /// beside it shows then. A field of digits takes no point.
    void serve(TextField* field, QWidget* mark = nullptr);
    /// Takes a field in hand, counted in the order in which they were given; at first it is the first. Its number
    /// begins anew.
    void turnTo(int field);

signals:
    /// A key changed the number.
    void displayChanged(const QString& text);
    void turned(int field);

private:
    void press(QChar key);
    void eraseLast();
    void display(const QString& text);

    struct Served
    {
        TextField* field;
        QWidget* mark;
    };

    QLabel* m_display;
    QPushButton* m_point;
    QList<Served> m_served;
    int m_inHand = 0;
};

} // namespace controls
