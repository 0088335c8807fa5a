#pragma once

#include "core/state.h"

#include <QWidget>

class QLabel;

namespace talor {

/// The category of a client in the entry frame: its name in `Label2(3)`, its `num` in the label's tag, and the button
/// `Image1(0)` that opens the choice.
class ChoixCategorie : public QWidget
{
    Q_OBJECT

public:
    explicit ChoixCategorie(Exercice& exercice);

    /// Empty while no category is set.
    QString num() const;
    /// A category that does not exist leaves none.
    void poser(const QString& num);

private:
    void choisir();

    Exercice& m_exercice;
    QLabel* m_nom;
};

} // namespace talor
