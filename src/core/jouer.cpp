#include "core/jouer.h"

#include "core/state.h"
#include "platform/services/sound.h"

namespace talor {

namespace {
constexpr qint64 sonsVoulus = 1;
}

void Jouer(const Exercice& exercice, const QString& fichier)
{
    if (exercice.EffetSonore == sonsVoulus)
        services::sound::play(fichier);
}

void JouerTouche(const Exercice& exercice)
{
    if (exercice.EffetSonore == sonsVoulus)
        services::sound::beep();
}

} // namespace talor
