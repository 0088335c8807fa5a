#pragma once

#include <QString>

#include <functional>

/// The sounds of the program. Nothing of the sound system is touched before the first sound, and a machine without one
/// stays silent.
namespace services::sound {

/// Plays a wave file and returns when it has ended. Keys typed meanwhile wait. A file that is absent or unreadable is
/// passed over.
void play(const QString& path);
/// The short beep of a refused key.
void beep();

/// Takes the sounds in place of the machine: the path of the file played, empty for a beep. An empty recorder gives
/// them back to the machine.
using Recorder = std::function<void(const QString& path)>;
Recorder setRecorder(Recorder recorder);

} // namespace services::sound
