#include "platform/store/backup.h"

#include "platform/store/failure.h"
#include "platform/store/replacement.h"

#include <QFileInfo>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace store {

namespace {

void copyPages(Connection& source, Connection& copy, const QString& target)
{
    sqlite3_backup* const work = sqlite3_backup_init(copy.get(), "main", source.get(), "main");
    if (!work)
        failFile(copy.get(), target);
    const int result = sqlite3_backup_step(work, -1);
    sqlite3_backup_finish(work);
    if (result == SQLITE_DONE)
        return;
    const bool reading = (result & 0xff) == SQLITE_CORRUPT || (result & 0xff) == SQLITE_NOTADB ||
                         (result & 0xff) == SQLITE_BUSY || result == SQLITE_IOERR_READ;
    failFile(result, QString::fromUtf8(sqlite3_errstr(result)), reading ? source.path() : target);
}

} // namespace

void backup(Connection& source, const QString& target)
{
    if (QFileInfo(source.path()).canonicalFilePath() == QFileInfo(target).canonicalFilePath())
        throw Error(SQLITE_MISUSE, u"Le fichier « %1 » ne peut pas être copié sur lui-même"_s.arg(target));
    Replacement replacement(target);
    {
        Connection copy(replacement.path(), Connection::Create);
        copyPages(source, copy, target);
    }
    replacement.commit();
}

} // namespace store
