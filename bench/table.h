#pragma once

#include <benchmark/benchmark.h>

#include <QString>

#include <chrono>
#include <functional>
#include <string>

namespace talor::bench {

using Work = std::function<void(benchmark::State&)>;

/// One row of the table, or several: the program's way and the same work written straight. A counter that both sides
/// set ("99th percentile") makes a further row, in seconds.
struct Case
{
    std::string name;
    Work program;
    Work raw;
    double aim = 0;      ///< ratio of the medians to stay below; 0: none is set
    bool once = false;   ///< heavy work that times itself with `SetIterationTime`, once a repetition
    int repetitions = 5; ///< of each side
};

/// Taken up in the order in which they stand in the table.
void add(const Case& each);

/// A row that is not a ratio of times: what the program takes beyond the raw side, in the unit of the counter.
void addDifference(const std::string& caseName, const std::string& counter, const std::string& unit, double aim);
/// A row that compares one side of two cases: how the program's time grows from one to the other.
void addGrowth(const std::string& name, const std::string& from, const std::string& to, double aim);

/// Runs the cases whose name holds `filter`, each pair at a time and its repetitions in a mixed order. Prints the
/// table, and writes it with the machine's description to `results` where one is given. False when a case failed.
bool run(const std::string& filter, const QString& results);

/// Measures a stretch of a case that times itself.
class Stopwatch
{
public:
    double seconds() const { return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count(); }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

/// Both sides of a case must come to the same: the first result of a case is kept and the others held against it.
void holdSame(benchmark::State& state, const std::string& caseName, double result);

double median(std::vector<double> values);

} // namespace talor::bench
