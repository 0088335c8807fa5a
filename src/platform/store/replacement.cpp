#include "platform/store/replacement.h"

#include "platform/store/connection.h"
#include "platform/store/failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace store {

namespace {

[[noreturn]] void failSystem(int code, const QString& path)
{
    failFile(errno == ENOSPC || errno == EDQUOT ? SQLITE_FULL : code, QString::fromLocal8Bit(std::strerror(errno)),
             path);
}

/// Has the system write a file or a folder to the disk; false when it cannot.
bool sync(const QString& path)
{
#ifdef Q_OS_UNIX
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY);
    if (file < 0)
        return false;
    const bool done = ::fsync(file) == 0;
    ::close(file);
    return done;
#else
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.flush();
#endif
}

QString journalOf(const QString& path)
{
    return path + u"-journal"_s;
}

/// A file that a crash left with its journal must not pass that journal on to the file that takes its place.
void settleJournal(const QString& path)
{
    if (!QFile::exists(journalOf(path)))
        return;
    try {
        Connection(path, Connection::ReadWrite).number("select count(*) from sqlite_schema");
    } catch (const Error&) {
        // Nothing of the old file is wanted any more.
    }
    QFile::remove(journalOf(path));
}

} // namespace

void syncFolderOf(const QString& path)
{
    sync(QFileInfo(path).absolutePath());
}

void requireDatabase(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        throw Error(SQLITE_CANTOPEN,
                    u"Le fichier « %1 » est introuvable (erreur SQLite %2)"_s.arg(path).arg(SQLITE_CANTOPEN));
    if (!file.isFile() || file.size() == 0)
        failFile(SQLITE_NOTADB, u"file is not a database"_s, path);
}

Replacement::Replacement(const QString& target)
    : m_target(target)
    , m_path(target + u".nouveau"_s)
{
    const QFileInfo folder(QFileInfo(target).absolutePath());
    if (!folder.isDir())
        throw Error(SQLITE_CANTOPEN,
                    u"Le dossier « %1 » est introuvable : « %2 » n'a pas été écrit (erreur SQLite %3)"_s
                        .arg(folder.filePath(), target)
                        .arg(SQLITE_CANTOPEN));
    if (QFileInfo(target).isDir())
        throw Error(SQLITE_CANTOPEN, u"« %1 » est un dossier (erreur SQLite %2)"_s.arg(target).arg(SQLITE_CANTOPEN));
    discard();
}

Replacement::~Replacement()
{
    discard();
}

void Replacement::discard() const
{
    QFile::remove(m_path);
    QFile::remove(journalOf(m_path));
}

void Replacement::commit()
{
    {
        Connection written(m_path, Connection::ReadOnly);
        const QStringList faults = written.texts("pragma quick_check(1)");
        if (faults != QStringList{u"ok"_s})
            failFile(SQLITE_CORRUPT, faults.join(u", "_s), m_target);
    }
    if (!sync(m_path))
        failSystem(SQLITE_IOERR_FSYNC, m_target);
    settleJournal(m_target);
#ifndef Q_OS_UNIX
    QFile::setPermissions(m_target, QFile::permissions(m_path));
    QFile::remove(m_target);
#endif
    if (std::rename(QFile::encodeName(m_path).constData(), QFile::encodeName(m_target).constData()) != 0)
        failSystem(SQLITE_IOERR, m_target);
    syncFolderOf(m_target);
}

} // namespace store
