#include "core/montrer.h"

#include "platform/controls/message.h"

namespace talor {

namespace {

controls::MessageIcon iconeMessage(Icone icone)
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

void montrer(QWidget* parent, const Refus& message)
{
    controls::Message::show(parent, message.texte, message.titre, iconeMessage(message.icone));
}

bool montrerSi(QWidget* parent, const std::optional<Refus>& message)
{
    if (message)
        montrer(parent, *message);
    return message.has_value();
}

bool confirmer(QWidget* parent, const Refus& question)
{
    return controls::Message::show(parent, question.texte, question.titre, iconeMessage(question.icone),
                                   controls::Buttons::YesNo) == controls::Answer::Yes;
}

} // namespace talor
