#include "bench/table.h"

#include "bench/machine.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <map>

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr double secondsARepetition = 0.1;

struct Difference
{
    std::string caseName, counter, unit;
    double aim;
};

struct Growth
{
    std::string name, from, to;
    double aim;
};

/// What the rows of the table are made of, in their order.
struct Plan
{
    std::vector<Case> cases;
    std::vector<Difference> differences;
    std::vector<Growth> growths;
};

Plan& plan()
{
    static Plan all;
    return all;
}

/// Times in seconds and counters of all repetitions, by "case/side" and "case/side/counter".
class Collector : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const std::string name = run.run_name.function_name;
            if (run.error_occurred) {
                std::fprintf(stderr, "%s: %s\n", name.c_str(), run.error_message.c_str());
                failed = true;
                continue;
            }
            values[name].push_back(run.real_accumulated_time / double(run.iterations));
            for (const auto& [counter, value] : run.counters)
                values[name + '/' + counter].push_back(value.value);
        }
    }

    /// Median of what was measured; not a number where nothing was.
    double of(const std::string& name) const
    {
        const auto found = values.find(name);
        return found == values.end() ? std::nan("") : median(found->second);
    }

    std::map<std::string, std::vector<double>> values;
    bool failed = false;
};

QString inUnit(double seconds)
{
    const std::pair<double, const char*> units[] = {{1, "s"}, {1e-3, "ms"}, {1e-6, "µs"}, {1e-9, "ns"}};
    for (const auto& [unit, name] : units) {
        if (seconds >= unit || unit == 1e-9)
            return QString::number(seconds / unit, 'g', 3) + u' ' + QString::fromUtf8(name);
    }
    return {};
}

QString row(const std::string& name, const QString& program, const QString& raw, const QString& found,
            const QString& aim)
{
    return u"| "_s + QString::fromStdString(name).leftJustified(58) + u" | "_s + program.leftJustified(9) + u" | "_s +
           raw.leftJustified(9) + u" | "_s + found.leftJustified(9) + u" | "_s + aim.leftJustified(8) + u" |\n"_s;
}

QString aimed(double aim, const QString& unit = {})
{
    return aim > 0 ? u"≤ "_s + QString::number(aim) + unit : QString();
}

QString verdict(double found, double aim, const QString& text)
{
    return aim > 0 && found > aim ? u"**"_s + text + u"**"_s : text;
}

QString rowsOf(const Case& each, const Collector& measured)
{
    const auto rowOf = [&](const std::string& name, const std::string& counter, double aim) {
        const double program = measured.of(each.name + "/program" + counter);
        const double raw = measured.of(each.name + "/raw" + counter);
        if (std::isnan(program) || std::isnan(raw))
            return QString();
        const double ratio = program / raw;
        return row(name, inUnit(program), inUnit(raw), verdict(ratio, aim, QString::number(ratio, 'f', 2)), aimed(aim));
    };
    QString rows = rowOf(each.name, {}, each.aim);
    static const std::string percentile = "/99th percentile";
    rows += rowOf(each.name + ", 99th percentile", percentile, 0);
    for (const Difference& difference : plan().differences) {
        if (difference.caseName != each.name)
            continue;
        const double program = measured.of(each.name + "/program/" + difference.counter);
        const double raw = measured.of(each.name + "/raw/" + difference.counter);
        const QString unit = u' ' + QString::fromStdString(difference.unit);
        const auto text = [&unit](double value) { return QString::number(value, 'f', 1) + unit; };
        if (!std::isnan(program) && !std::isnan(raw))
            rows +=
                row(each.name + ", " + difference.counter, text(program), text(raw),
                    verdict(program - raw, difference.aim, u"+ "_s + text(program - raw)), aimed(difference.aim, unit));
    }
    return rows;
}

QString headOfTable()
{
    return row("work", u"program"_s, u"raw"_s, u"ratio"_s, u"aim"_s) + u"|---|---|---|---|---|\n"_s;
}

QString growthRows(const Collector& measured)
{
    QString text;
    for (const Growth& growth : plan().growths) {
        const double program = measured.of(growth.to + "/program") / measured.of(growth.from + "/program");
        const double raw = measured.of(growth.to + "/raw") / measured.of(growth.from + "/raw");
        if (!std::isnan(program))
            text += row(growth.name, u"× "_s + QString::number(program, 'f', 2), u"× "_s + QString::number(raw, 'f', 2),
                        verdict(program, growth.aim, QString::number(program, 'f', 2)), aimed(growth.aim));
    }
    return text;
}

void enrol(const Case& each, const std::string& side, const Work& work)
{
    auto* enrolled = benchmark::RegisterBenchmark((each.name + '/' + side).c_str(), [work](benchmark::State& state) {
        try {
            work(state);
        } catch (const std::exception& error) {
            state.SkipWithError(error.what());
        }
    });
    enrolled->Repetitions(each.repetitions)->Unit(benchmark::kMillisecond);
    if (each.once)
        enrolled->Iterations(1)->UseManualTime();
    else
        enrolled->MinTime(secondsARepetition)->UseRealTime();
}

bool write(const QString& results, const QString& machine, const QString& table)
{
    static constexpr const char* introduction = R"(# Measurements

Written by `build/release/bench/talor_bench --results=bench/RESULTS.md`; `make bench` runs the same and writes nothing.

Each case stands beside its raw counterpart in the same run: the same work written straight on SQLite's C interface, with prepared
statements, the same settings and the same commits, or straight on QPainter. Both must come to the same result. Medians of at least
five repetitions, those of the two sides mixed. The exercise is made from a fixed seed: 2,000 clients, 60 boats, 20,000 bordereaux,
300,000 sale lines, 50,000 receipts, 50,000 payments, 20,000 invoices, unless a case says otherwise. What misses its aim is in bold.

)";
    QFile file(results);
    return file.open(QIODevice::WriteOnly) && file.write(introduction + (machine + u'\n' + table).toUtf8()) > 0;
}

/// A filter is a regular expression to the library.
std::string exactly(const std::string& name)
{
    std::string escaped;
    for (const char c : name)
        escaped += std::strchr(".()[]+*?", c) ? std::string{'\\', c} : std::string{c};
    return '^' + escaped + "/(program|raw)/";
}

} // namespace

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void add(const Case& each)
{
    plan().cases.push_back(each);
}

void addDifference(const std::string& caseName, const std::string& counter, const std::string& unit, double aim)
{
    plan().differences.push_back({caseName, counter, unit, aim});
}

void addGrowth(const std::string& name, const std::string& from, const std::string& to, double aim)
{
    plan().growths.push_back({name, from, to, aim});
}

void holdSame(benchmark::State& state, const std::string& caseName, double result)
{
    static std::map<std::string, double> first;
    const auto [known, isNew] = first.emplace(caseName, result);
    if (!isNew && std::abs(known->second - result) > 1e-6 * std::max(1.0, std::abs(result)))
        state.SkipWithError(
            ("the two sides differ: " + std::to_string(known->second) + " and " + std::to_string(result)).c_str());
}

bool run(const std::string& filter, const QString& results)
{
    const QString machine = describeMachine();
    Collector measured;
    QString table;
    const auto tell = [&table](const QString& rows) {
        std::fputs(qUtf8Printable(rows), stdout);
        std::fflush(stdout);
        table += rows;
    };
    const Stopwatch all;
    std::printf("%s\n", qUtf8Printable(machine));
    tell(headOfTable());
    for (const Case& each : plan().cases) {
        if (each.name.find(filter) == std::string::npos)
            continue;
        benchmark::ClearRegisteredBenchmarks();
        enrol(each, "program", each.program);
        enrol(each, "raw", each.raw);
        benchmark::RunSpecifiedBenchmarks(&measured, exactly(each.name));
        tell(rowsOf(each, measured));
    }
    tell(growthRows(measured));
    std::printf("\nMedians of at least five repetitions; %.0f s in all.\n", all.seconds());
    return !measured.failed && (results.isEmpty() || write(results, machine, table));
}

} // namespace talor::bench
