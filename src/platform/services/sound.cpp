#include "platform/services/sound.h"

#include <QApplication>
#include <QAudioDevice>
#include <QEventLoop>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace services::sound {

namespace {

/// A sound that the machine never ends must not hold the program.
constexpr int longestMilliseconds = 5000;

Recorder& recorder()
{
    static Recorder current;
    return current;
}

void playToTheEnd(const QString& path)
{
    QSoundEffect effect;
    QEventLoop wait;
    QTimer::singleShot(longestMilliseconds, &wait, &QEventLoop::quit);
    const auto quitAtEnd = [&] {
        if (effect.status() == QSoundEffect::Error || (effect.isLoaded() && !effect.isPlaying()))
            wait.quit();
    };
    QObject::connect(&effect, &QSoundEffect::statusChanged, &wait, [&] {
        if (effect.status() == QSoundEffect::Error)
            wait.quit();
    });
    QObject::connect(&effect, &QSoundEffect::playingChanged, &wait, quitAtEnd);
    effect.setSource(QUrl::fromLocalFile(path));
    effect.play();
    if (effect.status() != QSoundEffect::Error)
        wait.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

void play(const QString& path)
{
    if (recorder())
        recorder()(path);
    else if (QFileInfo(path).isReadable() && !QMediaDevices::defaultAudioOutput().isNull())
        playToTheEnd(path);
}

void beep()
{
    if (recorder())
        recorder()({});
    else
        QApplication::beep();
}

Recorder setRecorder(Recorder next)
{
    return std::exchange(recorder(), std::move(next));
}

} // namespace services::sound
