#pragma once

#include <QList>
#include <QWidget>

namespace controls {

class TextField;

/// Ten keys that type into the field in focus, and one that takes its last character away. Unlike `NumberPad` it keeps
/// and shows no number of its own: what is typed may be a word of which only dots are seen.
class DigitPad : public QWidget
{
    Q_OBJECT

public:
    struct Names
    {
        QString keys;      ///< family of the keys, 0 to 9
        QString backspace; ///< whole name, with its index
    };

    /// The keys go to the field entered last, at first to the first of `fields`, and bring the focus there.
    DigitPad(const Names& names, const QList<TextField*>& fields, QWidget* parent = nullptr);

private:
    void press(QChar digit);
    void eraseLast();

    TextField* m_field;
};

} // namespace controls
