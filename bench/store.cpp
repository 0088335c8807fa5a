#include "bench/cases.h"
#include "bench/exercise.h"
#include "bench/raw.h"
#include "bench/table.h"

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int lookups = 1000; ///< different rows that are looked for, over and over

/// What the register of bordereaux reads of each row.
double readAll(Exercice& exercise)
{
    double sum = 0;
    store::Recordset rows = exercise.Base().openRecordset(u"select * from Bordereaux order by Date, num"_s);
    for (; !rows.eof(); rows.moveNext()) {
        const QString date = rows.text("Date");
        sum += double(rows.num() + rows.integer("ordre") + rows.integer("Num_Chalutier") + rows.integer("Casiers") +
                      rows.integer("ordre_decompte") + date.size()) +
               rows.real("brut") + rows.real("primes") + rows.real("Commission") + rows.real("frais") +
               rows.real("net") + rows.flag("flag_f");
    }
    return sum;
}

/// The same fields of the same query, by their places in the table.
double readAll(sqlite3_stmt* rows)
{
    enum
    {
        Num,
        Ordre,
        Date,
        Boat = 4,
        Crates,
        Gross,
        Commission,
        Premiums = 9,
        Expenses,
        Net,
        Invoiced = 33,
        Settled = 35
    };
    double sum = 0;
    while (sqlite3_step(rows) == SQLITE_ROW) {
        const QString date = dateOf(rows, Date);
        sum += double(date.size());
        for (const int column : {Num, Ordre, Boat, Crates, Settled})
            sum += double(sqlite3_column_int64(rows, column));
        for (const int column : {Gross, Commission, Premiums, Expenses, Net})
            sum += sqlite3_column_double(rows, column);
        sum += sqlite3_column_int(rows, Invoiced) != 0;
    }
    sqlite3_reset(rows);
    return sum;
}

void addForwardRead()
{
    const std::string name = "all 20,000 bordereaux read forward";
    const auto program = [name](benchmark::State& state) {
        const auto exercise = open(folderOf(medium));
        double sum = readAll(*exercise); // the pages are in memory from here on
        for (auto _ : state)
            benchmark::DoNotOptimize(sum = readAll(*exercise));
        holdSame(state, name, sum);
    };
    const auto raw = [name](benchmark::State& state) {
        Raw file(fileIn(folderOf(medium)));
        sqlite3_stmt* rows = file.prepare("select * from Bordereaux order by Date, num");
        double sum = readAll(rows);
        for (auto _ : state)
            benchmark::DoNotOptimize(sum = readAll(rows));
        holdSame(state, name, sum);
    };
    add({.name = name, .program = program, .raw = raw, .aim = 1.5});
}

std::vector<qint64> someLines()
{
    Dice dice(7);
    std::vector<qint64> nums(lookups);
    for (qint64& num : nums)
        num = 1 + dice.below(medium.lines);
    return nums;
}

/// The two ways of finding a sale line by its `num` have one raw counterpart.
void addLookup(const std::string& name, const std::function<bool(store::Recordset&, qint64)>& find)
{
    const auto program = [name, find](benchmark::State& state) {
        const auto exercise = open(folderOf(medium));
        store::Recordset& lines = exercise->L_Vente;
        double sum = 0;
        const auto pass = [&, nums = someLines()] {
            sum = 0;
            for (const qint64 num : nums)
                sum += find(lines, num) ? lines.real("Total") : 0;
        };
        pass();
        for (auto _ : state)
            pass();
        state.SetItemsProcessed(state.iterations() * lookups);
        holdSame(state, name, sum);
    };
    const auto raw = [name](benchmark::State& state) {
        Raw file(fileIn(folderOf(medium)));
        sqlite3_stmt* line = file.prepare("select * from L_Vente where num = ?");
        double sum = 0;
        const auto pass = [&, nums = someLines()] {
            sum = 0;
            for (const qint64 num : nums) {
                bind(line, 1, num);
                if (sqlite3_step(line) == SQLITE_ROW)
                    sum += sqlite3_column_double(line, 10);
                sqlite3_reset(line);
            }
        };
        pass();
        for (auto _ : state)
            pass();
        state.SetItemsProcessed(state.iterations() * lookups);
        holdSame(state, name, sum);
    };
    add({.name = name, .program = program, .raw = raw});
}

} // namespace

void addStore()
{
    addForwardRead();
    addLookup("1,000 sale lines found by seek on num",
              [](store::Recordset& lines, qint64 num) { return lines.seek(num); });
    addLookup("1,000 sale lines found by find-first on num",
              [](store::Recordset& lines, qint64 num) { return lines.findFirst(u"num = "_s + QString::number(num)); });
}

} // namespace talor::bench
