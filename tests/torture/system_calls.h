#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// The calls by which a process changes files, as this program makes them: SQLite's, Qt's and its own all pass through
/// here (this program's definitions take the place of the C library's). They can be recorded, and made to fail.
/// Only what happens in one folder and below counts; other files are left alone.
namespace torture {

enum class Call : qint32
{
    Open, ///< fails only where it is to write
    Write,
    Truncate,
    Sync, ///< of a file or of a folder
    Link, ///< a name for a file that has none
    Rename,
    Unlink,
    Note ///< no call: something to remember at this place among them
};

/// From now on, in this process: every call that succeeds on the folder's files is appended to the log.
void recordCalls(const QString& folder, const QString& log);
/// Puts something of the caller's among the recorded calls.
void recordNote(const QByteArray& note);

/// From now on, in this process: the n-th of these calls (from 1) on the folder's files fails with this error number
/// of the system; all that come after it too where the fault `lasts`. A write that fails for want of space has written
/// half of its bytes before.
struct PlannedFault
{
    Call call;
    int nth;
    int error;
    bool lasts;
};
void failCalls(const QString& folder, const PlannedFault& fault);
void stopFailing();
/// True when the fault has struck.
bool faultStruck();

/// One recorded call, as it stands in the log.
struct CallRecord
{
    Call call;
    qint32 file = 0;   ///< number of an opening, each its own
    qint64 offset = 0; ///< Write; Truncate: the new size
    QString path;      ///< Open, Link, Rename, Unlink: in the folder, from it on. Empty: the folder, or no name
    QString target;    ///< Rename
    bool isFolder = false;
    bool creates = false;   ///< Open: makes the file where it is not there
    bool truncates = false; ///< Open: empties it
    QByteArray bytes;       ///< Write, Note
};

/// The calls in a log, in their order; one that is cut off at the end is left out.
QList<CallRecord> readCalls(const QString& log);

} // namespace torture
