#include "platform/services/single_instance.h"

#include <QDir>

namespace services {

SingleInstance::SingleInstance(const QString& folder)
    : m_lock(QDir(folder).filePath(QStringLiteral("TALOR.lock")))
{
    // However old a lock is, only the death of its process makes it stale.
    m_lock.setStaleLockTime(0);
    m_alone = m_lock.tryLock() || m_lock.error() != QLockFile::LockFailedError;
}

} // namespace services
