#include "sales/combo_choix.h"

#include "sales/lookups.h"

#include <QComboBox>
#include <QWheelEvent>

namespace talor {

namespace {

/// A wheel turned over the list in passing changes no client.
class ComboChoix : public QComboBox
{
protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

} // namespace

QComboBox* creerComboChoix()
{
    constexpr int lettres = 22;
    constexpr int entreesVisibles = 18;
    auto* combo = new ComboChoix;
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(lettres);
    combo->setMaxVisibleItems(entreesVisibles);
    return combo;
}

void remplirCombo(QComboBox* combo, const ListeChoix& liste)
{
    QStringList noms;
    noms.reserve(liste.nombre());
    for (int rang = 0; rang < liste.nombre(); ++rang)
        noms << liste.nom(rang);
    combo->clear();
    combo->addItems(noms);
    combo->setCurrentIndex(liste.nombre() > 0 ? 0 : -1);
}

} // namespace talor
