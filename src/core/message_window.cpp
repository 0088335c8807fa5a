#include "core/message_window.h"

#include "platform/controls/message.h"

namespace talor {

namespace {

controls::MessageIcon iconeDe(Icone icone)
{
    switch (icone) {
    case Icone::Arret:
        return controls::MessageIcon::Stop;
    case Icone::Avertissement:
        return controls::MessageIcon::Warning;
    case Icone::Information:
        return controls::MessageIcon::Information;
    case Icone::Question:
        return controls::MessageIcon::Question;
    case Icone::Aucune:
        break;
    }
    return controls::MessageIcon::None;
}

} // namespace

void montrer(QWidget* parent, const Refus& refus)
{
    controls::Message::show(parent, refus.texte, refus.titre, iconeDe(refus.icone));
}

} // namespace talor
