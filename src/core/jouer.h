#pragma once

#include <QString>

namespace talor {

class Exercice;

/// Plays a wave file to its end where the parameter `EffetSonore` is 1; does nothing elsewhere.
void Jouer(const Exercice& exercice, const QString& fichier);
/// The short sound of a key of the screen, under the same parameter.
void JouerTouche(const Exercice& exercice);

} // namespace talor
