#pragma once

#include "core/state.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

namespace talor {

/// Makes the exercise's file refuse a write, as a failing disk would: `action` is "update on Clients", `condition`
/// tells which rows. The exercise is closed and opened again around it.
inline void provoquerPanne(Exercice& exercice, const char* action, const char* condition)
{
    exercice.FermerBase();
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open(exercice.CheminBase.toUtf8().constData(), &base), SQLITE_OK);
    const QByteArray requete = QByteArray("create trigger panne before ") + action + " when " + condition +
                               " begin select raise(abort, 'panne'); end";
    EXPECT_EQ(sqlite3_exec(base, requete.constData(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(base);
    sqlite3_close(base);
    exercice.OuvrirBase();
}

} // namespace talor
