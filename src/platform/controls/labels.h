#pragma once

#include <QLabel>

namespace controls {

/// The caption beside a field. With a field it is its accessible name, and a mnemonic in it ("&Nom") leads there.
QLabel* captionLabel(const QString& text, QWidget* field = nullptr);
/// A computed figure or text, in a box; right-aligned unless told otherwise.
QLabel* valueLabel(Qt::Alignment alignment = Qt::AlignRight);
/// The same, for the figure that counts.
QLabel* totalLabel();
/// Heading of a panel.
QLabel* sectionLabel(const QString& text = {});
/// The mark beside the field that a pad fills. Hidden, it keeps its place.
QLabel* markLabel();
/// Small quiet text, over several lines if need be.
QLabel* hintLabel(const QString& text = {});

} // namespace controls
