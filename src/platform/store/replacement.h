#pragma once

#include "platform/store/error.h"

namespace store {

/// A database file made beside the one whose place it takes. Until `commit` the one in place is untouched; without it
/// nothing stays behind.
class Replacement
{
public:
    /// Throws `Error` when the folder is not there.
    explicit Replacement(const QString& target);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    /// Where to write the new file; nothing is there yet.
    const QString& path() const { return m_path; }

    /// Checks the new file, makes it durable and renames it over the target, writable or not. Throws `Error`.
    void commit();

private:
    void discard() const;

    QString m_target;
    QString m_path;
};

/// Throws the `Error` for a file that is absent or empty, hence no database.
void requireDatabase(const QString& path);

/// Makes what a folder lists durable. What a file system refuses here cannot be helped and is passed over.
void syncFolderOf(const QString& path);

} // namespace store
