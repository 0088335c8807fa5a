#include "bench/machine.h"

#include "bench/table.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QSysInfo>
#include <QThread>

#include <sqlite3.h>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

/// What follows the colon in the line of a file of /proc that begins so.
QString lineOf(const QString& path, QByteArrayView start)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return u"unknown"_s;
    const QByteArray content = file.readAll();
    for (const QByteArray& line : content.split('\n')) {
        if (line.startsWith(start))
            return QString::fromLatin1(line.mid(line.indexOf(':') + 1)).simplified();
    }
    return u"unknown"_s;
}

/// Seconds that a small write takes to reach the disk on which the exercises lie.
double flushTime()
{
#ifdef Q_OS_UNIX
    QDir().mkpath(QStringLiteral(BENCH_FOLDER));
    QFile file(QStringLiteral(BENCH_FOLDER "/flush"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return 0;
    std::vector<double> times;
    for (int i = 0; i < 100; ++i) {
        file.write(QByteArray(4096, 'x'));
        const Stopwatch watch;
        ::fsync(file.handle());
        times.push_back(watch.seconds());
    }
    file.remove();
    return median(times);
#else
    return 0;
#endif
}

} // namespace

QString describeMachine()
{
    QFile load(u"/proc/loadavg"_s);
    const QString busy =
        load.open(QIODevice::ReadOnly) ? QString::fromLatin1(load.readAll()).section(u' ', 0, 0) : u"unknown"_s;
    const QString memory = lineOf(u"/proc/meminfo"_s, "MemTotal").section(u' ', 0, 0);
    const std::pair<QString, QString> facts[] = {
        {u"run"_s, QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm"_s)},
        {u"processor"_s,
         u"%1, %2 cores"_s.arg(lineOf(u"/proc/cpuinfo"_s, "model name")).arg(QThread::idealThreadCount())},
        {u"memory"_s, u"%1 GiB"_s.arg(memory.toDouble() / 1024 / 1024, 0, 'f', 0)},
        {u"system"_s, u"%1, kernel %2"_s.arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion())},
        {u"built with"_s,
         u"%1 %2, Qt %3, SQLite %4"_s.arg(QStringLiteral(BENCH_COMPILER), QStringLiteral(BENCH_TYPE),
                                          QString::fromLatin1(qVersion()), QString::fromLatin1(sqlite3_libversion()))},
        {u"windows"_s, u"Qt platform \"%1\""_s.arg(QGuiApplication::platformName())},
        {u"a flush to the disk"_s, u"%1 ms (median of 100)"_s.arg(flushTime() * 1000, 0, 'f', 2)},
        {u"load at the start"_s, busy},
    };
    QString text;
    for (const auto& [name, value] : facts)
        text += u"- %1: %2\n"_s.arg(name, value);
    return text;
}

} // namespace talor::bench
