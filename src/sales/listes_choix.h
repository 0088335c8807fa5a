#pragma once

#include "sales/cadre_ligne.h"

#include <QTabWidget>

namespace controls {
class Grid;
}

namespace talor {

/// The clients and the fish on two tabs, `SSTab1`, to be touched in place of typing their number.
class ListesChoix : public QTabWidget
{
    Q_OBJECT

public:
    explicit ListesChoix(const SaisieBordereau& saisie, QWidget* parent = nullptr);

    void montrer(ChoixLigne choix);
    /// Marks what is chosen, and brings it into view.
    void marquer(ChoixLigne choix, int rang);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

signals:
    void touche(ChoixLigne choix, int rang);

private:
    void ajouter(ChoixLigne choix, const QString& onglet, const QString& legende, const ListeChoix& liste);

    std::array<controls::Grid*, nbChoixLigne> m_grilles{};
    QObject* m_premierAppui = nullptr; ///< what the last press of the mouse fell on
    bool m_appuiIgnore = false;
};

} // namespace talor
