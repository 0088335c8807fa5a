#pragma once

#include "platform/store/error.h"

struct sqlite3;

/// How SQLite's result codes become `Error`s: a French sentence that names the file or the query, then the code.
namespace store {

[[noreturn]] void failFile(int code, const QString& detail, const QString& path);
/// The same, with the extended code and the message that the connection holds.
[[noreturn]] void failFile(sqlite3* connection, const QString& path);

[[noreturn]] void failQuery(const QString& query, const QString& why);

} // namespace store
