#include "platform/store/maintenance.h"

#include "platform/store/backup.h"
#include "platform/store/failure.h"
#include "platform/store/replacement.h"

#include <QSaveFile>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace store {

QStringList checkFile(const QString& path)
{
    requireDatabase(path);
    try {
        Connection connection(path, Connection::ReadWrite);
        const QStringList faults = connection.texts("pragma integrity_check");
        return faults == QStringList{u"ok"_s} ? QStringList() : faults;
    } catch (const Error& error) {
        if (error.number() != Error::NotADatabase && (error.number() & 0xff) != SQLITE_CORRUPT)
            throw;
        return {error.text()};
    }
}

void compactFile(const QString& source, const QString& target)
{
    requireDatabase(source);
    Replacement replacement(target);
    {
        Connection connection(source, Connection::ReadWrite);
        Statement vacuum = connection.prepare("vacuum into ?");
        vacuum.bind(replacement.path().toUtf8());
        vacuum.step();
    }
    replacement.commit();
}

void copyFile(const QString& source, const QString& target)
{
    requireDatabase(source);
    Connection connection(source, Connection::ReadWrite);
    backup(connection, target);
}

void writeFileSafely(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    if (!written)
        failFile(SQLITE_IOERR_WRITE, file.errorString(), path);
    syncFolderOf(path);
}

} // namespace store
