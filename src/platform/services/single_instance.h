#pragma once

#include <QLockFile>
#include <QString>

namespace services {

/// Holds the program's place in a folder while it lives, through a lock file there. What a process that died has left
/// behind is taken over.
class SingleInstance
{
public:
    explicit SingleInstance(const QString& folder);

    /// False when another living process holds the place. A folder that cannot be written to keeps nobody out.
    bool isAlone() const { return m_alone; }

private:
    QLockFile m_lock;
    bool m_alone;
};

} // namespace services
