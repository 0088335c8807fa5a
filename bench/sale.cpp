#include "bench/cases.h"
#include "bench/exercise.h"
#include "bench/raw.h"
#include "bench/table.h"
#include "sales/bordereau_entry.h"

#include <algorithm>
#include <thread>

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int linesOfABordereau = 20;
constexpr int recorded = 6 * linesOfABordereau;
constexpr int unmeasured = linesOfABordereau; ///< until the pages that a line touches are in memory

/// Before each line, on both sides. At an auction lines come seconds apart, and a disk answers a write that treads on
/// the heels of the last sooner than one that comes after a rest: without it the side that does more between two lines
/// would seem slower by what the disk takes to wake.
void rest()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(3));
}

SaisieLigne someLine(Dice& dice)
{
    SaisieLigne line;
    line.num_client = 1 + dice.below(clients);
    line.Num_Poisson = 1 + dice.below(fish);
    line.client = QString::number(line.num_client);
    line.poisson = QString::number(line.Num_Poisson);
    line.cageots = QString::number(1 + dice.below(12));
    line.poids = QString::number(dice.between(2, 90, 0.5));
    line.pu = QString::number(dice.between(80, 2400, 10));
    return line;
}

void report(benchmark::State& state, std::vector<double> times)
{
    times.erase(times.begin(), times.begin() + unmeasured);
    std::sort(times.begin(), times.end());
    state.SetIterationTime(median(times));
    state.counters["99th percentile"] = times[times.size() * 99 / 100];
}

/// Takes away what a repetition has added; the sums must be those of a file that was never written to.
template<class Execute> void takeBack(const Execute& execute, const Size& size)
{
    execute(u"delete from L_Vente where num_bordereau > %1"_s.arg(size.bordereaux));
    execute(u"delete from Bordereaux where num > %1"_s.arg(size.bordereaux));
}

void recordLines(benchmark::State& state, const Size& size)
{
    const auto exercise = open(folderOf(size));
    Dice dice(11);
    std::vector<double> times;
    for (auto _ : state) {
        while (times.size() < recorded) {
            SaisieBordereau entry(*exercise, {.mode = ModeBordereau::Nouveau,
                                              .date = u"31/12/2026"_s,
                                              .numero = QString::number(size.bordereaux + 1),
                                              .num = 0,
                                              .Num_Chalutier = 1,
                                              .nomChalutier = {}});
            entry.ouvrir();
            entry.nouvelleLigne();
            for (int i = 0; i < linesOfABordereau; ++i) {
                const SaisieLigne line = someLine(dice);
                rest();
                const Stopwatch watch;
                const auto outcome = entry.SaveLine(line);
                times.push_back(watch.seconds());
                if (!outcome)
                    throw std::runtime_error(outcome.refus().texte.toStdString());
                entry.nouvelleLigne();
            }
        }
        report(state, times);
    }
    if (exercise->Base().scalar(u"select count(*) from L_Vente"_s).toInt() != size.lines + recorded)
        state.SkipWithError("a line is missing");
    takeBack([&](const QString& sql) { exercise->Base().execute(sql); }, size);
}

void recordLinesRaw(benchmark::State& state, const Size& size)
{
    Raw file(fileIn(folderOf(size)));
    sqlite3_stmt* bordereau =
        file.prepare("insert into Bordereaux (ordre, Date, MM, Num_Chalutier) values (?, ?, ?, 1)");
    sqlite3_stmt* insert =
        file.prepare("insert into L_Vente (num_bordereau, Num_Chalutier, num_client, Num_Poisson, Date, "
                     "MM, Casiers, poids, PU, Total, Num_Facture) values (?, 1, ?, ?, ?, 12, ?, ?, ?, ?, -1)");
    const QByteArray date = "2026-12-31";
    Dice dice(11);
    std::vector<double> times;
    for (auto _ : state) {
        while (times.size() < recorded) {
            bindAll(bordereau, size.bordereaux + 1, date, 12);
            file.execute(bordereau);
            const qint64 num = sqlite3_last_insert_rowid(file.get());
            for (int i = 0; i < linesOfABordereau; ++i) {
                const SaisieLigne line = someLine(dice);
                rest();
                const Stopwatch watch;
                const double weight = line.poids.toDouble();
                const double price = line.pu.toDouble();
                bindAll(insert, num, line.num_client, line.Num_Poisson, date, line.cageots.toInt(), weight, price,
                        weight * price);
                file.execute(insert);
                times.push_back(watch.seconds());
            }
        }
        report(state, times);
    }
    takeBack([&](const QString& sql) { file.run(sql.toUtf8().constData()); }, size);
}

} // namespace

void addSale()
{
    static const std::pair<const Size*, std::string> sizes[] = {
        {&small, "one sale line recorded, 10,000 in the file"},
        {&medium, "one sale line recorded, 300,000 in the file"},
        {&large, "one sale line recorded, 3,000,000 in the file"}};
    for (const auto& [size, name] : sizes) {
        add({.name = name,
             .program = [size = size](benchmark::State& state) { recordLines(state, *size); },
             .raw = [size = size](benchmark::State& state) { recordLinesRaw(state, *size); },
             .aim = 1.2,
             .once = true,
             .repetitions = 15});
    }
    addGrowth("growth of one sale line from 10,000 to 3,000,000", sizes[0].second, sizes[2].second, 1.3);
}

} // namespace talor::bench
