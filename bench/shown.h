#pragma once

#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>

namespace talor::bench {

/// The clock that all processes share.
inline qint64 nanoseconds()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// Resident memory of this process, in MiB.
inline double residentMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray content = status.readAll();
    const qsizetype place = content.indexOf("VmRSS:") + 6;
    return content.mid(place, content.indexOf("kB", place) - place).trimmed().toDouble() / 1024;
}

/// Waits until a window has been painted and the events behind that are done, prints the moment and the resident
/// memory in MiB, and ends the process.
class TellsWhenShown : public QObject
{
public:
    explicit TellsWhenShown(QWidget& window) { window.installEventFilter(this); }

protected:
    bool eventFilter(QObject* window, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            QTimer::singleShot(0, this, [] {
                std::printf("%lld %.2f\n", static_cast<long long>(nanoseconds()), residentMemory());
                std::fflush(stdout);
                std::_Exit(EXIT_SUCCESS);
            });
        }
        return false;
    }
};

} // namespace talor::bench
