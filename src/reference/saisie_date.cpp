#include "reference/saisie_date.h"

#include "platform/controls/command_bar.h"
#include "platform/controls/text_field.h"
#include "reference/q_date_2.h"

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

} // namespace talor
