#pragma once

#include "core/state.h"

#include <memory>

namespace talor::bench {

/// How much an exercise holds, beside 2,000 clients, 60 boats and 30 fish.
struct Size
{
    const char* name; ///< of its folder
    int bordereaux;
    int lines;
    int movements; ///< of each of Recettes and Depenses
    int invoices;  ///< as they come; the lines behind the last of them are open
};

inline constexpr Size small{"petit", 625, 10'000, 1'600, 625};
inline constexpr Size medium{"moyen", 20'000, 300'000, 50'000, 20'000};
inline constexpr Size large{"grand", 200'000, 3'000'000, 500'000, 200'000};

inline constexpr int clients = 2'000;
inline constexpr int boats = 60;
inline constexpr int fish = 30;
inline constexpr int year = 2026;

/// Folder of an exercise of this size, with the delivered files beside it. It is made from a fixed seed, the same on
/// every machine, and kept for the next run; what has not the rows that it should have is made anew.
QString folderOf(const Size& size);
/// File of the exercise in a folder.
QString fileIn(const QString& folder);

/// Folder with a copy of the medium exercise that the cases of one subject may change.
QString workingFolder(const QString& subject);
/// The same with all its lines open: no invoice, no mark, no debit.
QString folderOfOpenLines();
/// A fresh copy of the file of one folder in another.
void copyExercise(const QString& from, const QString& to);

/// Opens the exercise of a folder as the program does.
std::unique_ptr<Exercice> open(const QString& folder);

/// Numbers that are the same in every run and on every machine.
class Dice
{
public:
    explicit Dice(quint64 seed)
        : m_state(seed)
    {}
    /// From 0 to below `limit`.
    int below(int limit);
    /// From `low` to `high`, in steps.
    double between(double low, double high, double step);

private:
    quint64 m_state;
};

} // namespace talor::bench
