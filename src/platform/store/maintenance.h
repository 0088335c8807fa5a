#pragma once

#include "platform/store/catalogue.h"

#include <QStringList>

/// Care of database files that are not open. All throw `Error`.
namespace store {

/// Faults found by a full integrity check; empty when the file is whole.
QStringList checkFile(const QString& path);

/// Makes a damaged file whole again, in place: what can still be read is copied, table by table, into a fresh file of
/// the catalogue that takes the old one's place. A whole file is left alone. Returns what was lost, a line a table;
/// where something was, the damaged file stays beside the new one under its name and ".endommage".
/// A file of another program, or one in which nothing can be recognised, is refused and stays.
QStringList repairFile(const QString& path, const Catalogue& catalogue);

/// Writes the content of `source`, without its free space, to the file `target`, replacing it.
void compactFile(const QString& source, const QString& target);

/// Puts a whole copy of the database `source` at `target`: written beside it, synced, checked, renamed over it. A
/// read-only target is replaced too. A damaged source is refused and the target stays.
void copyFile(const QString& source, const QString& target);

/// Writes bytes to a file so that after a power cut it holds the old content or the new, never a part.
void writeFileSafely(const QString& path, const QByteArray& content);

} // namespace store
