#include "reference/saisie_date.h"

#include "core/state.h"
#include "core/typed_dates.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/text_field.h"
#include "platform/services/clock.h"
#include "reference/q_date_2.h"

#include <QComboBox>

namespace talor {

using namespace Qt::StringLiterals;
using controls::TextField;

SaisieDate creerSaisieDate(QWidget* dialogue)
{
    auto* champ = new TextField(TextField::Kind::Date);
    champ->setBackspaceClears(true);
    viderDateRefusee(champ);
    auto* calendrier = controls::iconButton(u"calendrier", u"Calendrier"_s);
    QObject::connect(calendrier, &QToolButton::clicked, dialogue, [dialogue, champ] {
        choisirDate(dialogue, champ);
        champ->setFocus();
    });
    return {champ, calendrier};
}

void viserDateFautive(TextField* premiere, TextField* seconde)
{
    const auto juste = [](const TextField* date) { return dateComplete(date->text().trimmed()); };
    TextField* fautive = juste(premiere) && !juste(seconde) ? seconde : premiere;
    fautive->setFocus(Qt::TabFocusReason);
    fautive->selectAll();
}

QComboBox* creerComboMois()
{
    auto* combo = new QComboBox;
    for (const QString& nom : NomsMois)
        combo->addItem(nom);
    combo->setMaxVisibleItems(static_cast<int>(NomsMois.size()));
    combo->setCurrentIndex(services::clock::today().month() - 1);
    return combo;
}

} // namespace talor
