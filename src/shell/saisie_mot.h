#pragma once

#include "core/configuration.h"
#include "platform/controls/named.h"
#include "platform/controls/text_field.h"

namespace talor {

/// Meaning of the indexes of `Image1` in the dialogs of the lock.
enum ActionMot
{
    EffacerDernier = 1,
    Valider,
    Quitter
};

/// A box whose word shows as dots.
inline controls::TextField* creerSaisieMot(int index)
{
    auto* champ = new controls::TextField(controls::TextField::Kind::Free, Configuration::motLongueurMax);
    champ->setEchoMode(QLineEdit::Password);
    return controls::named(champ, u"Text1", index);
}

} // namespace talor
