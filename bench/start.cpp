#include "bench/cases.h"
#include "bench/exercise.h"
#include "bench/shown.h"
#include "bench/table.h"

#include <QProcess>

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

/// A screen of the X server's own, in memory; none where there is no such server on this machine.
class OwnScreen
{
public:
    OwnScreen()
    {
        m_server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1366x768x24"_s});
        if (m_server.waitForReadyRead(5000))
            m_display = u':' + QString::fromLatin1(m_server.readLine().trimmed());
    }
    ~OwnScreen()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }

    const QString& display() const { return m_display; }

private:
    QProcess m_server;
    QString m_display;
};

/// Where the window is shown.
QProcessEnvironment offscreen()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    return environment;
}

QProcessEnvironment onScreen(const OwnScreen& screen)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    environment.insert(u"DISPLAY"_s, screen.display());
    return environment;
}

/// Starts a program that tells when its window has been painted, and how much memory it then has.
void start(benchmark::State& state, const QProcessEnvironment& where, const QString& program,
           const QStringList& arguments)
{
    for (auto _ : state) {
        QProcess process;
        process.setProcessEnvironment(where);
        const qint64 begun = nanoseconds();
        process.start(program, arguments);
        if (!process.waitForFinished() || process.exitCode() != 0)
            throw std::runtime_error("the window was not shown");
        const QList<QByteArray> told = process.readAllStandardOutput().trimmed().split(' ');
        if (told.size() != 2)
            throw std::runtime_error("the window told nothing");
        state.SetIterationTime(double(told[0].toLongLong() - begun) * 1e-9);
        state.counters["resident memory"] = told[1].toDouble();
    }
}

} // namespace

/// Beside an empty window, and beside one with a single word: loading the first font is no work of ours to spare.
static void add(const std::string& name, const QProcessEnvironment& where)
{
    const Work program = [where](benchmark::State& state) {
        start(state, where, u"" BENCH_PROGRAM_WINDOW ""_s, {folderOf(medium)});
    };
    const auto window = [where](const QStringList& texts) -> Work {
        return [where, texts](benchmark::State& state) { start(state, where, u"" BENCH_EMPTY_WINDOW ""_s, texts); };
    };
    constexpr int repetitions = 11;
    add({.name = name, .program = program, .raw = window({}), .aim = 1.6, .once = true, .repetitions = repetitions});
    addDifference(name, "resident memory", "MiB", 40);
    add({.name = name + ", beside a window with one word",
         .program = program,
         .raw = window({u"Port"_s}),
         .once = true,
         .repetitions = repetitions});
}

void addStart()
{
    add("start to the main window shown, without a screen", offscreen());
    static const OwnScreen screen;
    if (!screen.display().isEmpty())
        add("start to the main window shown, on an X server", onScreen(screen));
}

} // namespace talor::bench
