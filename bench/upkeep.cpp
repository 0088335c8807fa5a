#include "bench/cases.h"
#include "bench/exercise.h"
#include "bench/raw.h"
#include "bench/table.h"
#include "platform/store/maintenance.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

QString source()
{
    return fileIn(folderOf(medium));
}

QString target()
{
    return fileIn(workingFolder(u"entretien"_s));
}

void sync(const QString& path)
{
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY);
    ::fsync(file);
    ::close(file);
}

/// A finished file checked, flushed and put in its place.
void putInPlace(const QString& made)
{
    if (Raw(made).number("select count(*) from pragma_quick_check(1) where quick_check = 'ok'") != 1)
        throw std::runtime_error("the file written is damaged");
    sync(made);
    std::rename(QFile::encodeName(made).constData(), QFile::encodeName(target()).constData());
    sync(QFileInfo(target()).path());
}

void copyRaw()
{
    const QString made = target() + u".brut"_s;
    QFile::remove(made);
    sqlite3* copy = nullptr;
    sqlite3_open(made.toUtf8().constData(), &copy);
    sqlite3_exec(copy, "pragma journal_mode = off; pragma synchronous = off; pragma cache_size = -65536", nullptr,
                 nullptr, nullptr);
    {
        Raw file(source());
        sqlite3_backup* work = sqlite3_backup_init(copy, "main", file.get(), "main");
        sqlite3_backup_step(work, -1);
        sqlite3_backup_finish(work);
    }
    sqlite3_close(copy);
    putInPlace(made);
}

void compactRaw()
{
    const QString made = target() + u".brut"_s;
    QFile::remove(made);
    {
        Raw file(source());
        sqlite3_stmt* vacuum = file.prepare("vacuum into ?");
        bind(vacuum, 1, made.toUtf8());
        file.execute(vacuum);
    }
    putInPlace(made);
}

bool checkRaw()
{
    return Raw(source()).number("select count(*) from pragma_integrity_check where integrity_check = 'ok'") == 1;
}

/// Runs the work once a repetition; afterwards the file in place must hold every line.
Work timed(const std::function<void()>& work, bool writes)
{
    return [work, writes](benchmark::State& state) {
        source();
        target();
        for (auto _ : state) {
            const Stopwatch watch;
            work();
            state.SetIterationTime(watch.seconds());
        }
        if (writes && Raw(target()).number("select count(*) from L_Vente") != medium.lines)
            state.SkipWithError("the file written is not whole");
    };
}

} // namespace

void addUpkeep()
{
    add({.name = "copy of the exercise at exit",
         .program = timed([] { store::copyFile(source(), target()); }, true),
         .raw = timed(copyRaw, true),
         .once = true});
    add({.name = "integrity check",
         .program = timed(
             [] {
                 if (!store::checkFile(source()).isEmpty())
                     throw std::runtime_error("a fault was found");
             },
             false),
         .raw = timed(
             [] {
                 if (!checkRaw())
                     throw std::runtime_error("a fault was found");
             },
             false),
         .once = true});
    add({.name = "compaction",
         .program = timed([] { store::compactFile(source(), target()); }, true),
         .raw = timed(compactRaw, true),
         .once = true});
}

} // namespace talor::bench
