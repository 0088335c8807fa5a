#pragma once

#include "system_calls.h"

#include <QList>

#include <map>
#include <random>

namespace torture {

/// The files of a folder, from it on, with their content.
using FolderContent = std::map<QString, QByteArray>;
FolderContent readFolder(const QString& folder);
/// What a journal of SQLite's begins with, as long as its transaction stands undecided.
inline constexpr QByteArrayView journalStart("\xd9\xd5\x05\xf9");
void writeFolder(const QString& folder, const FolderContent& content);

/// A folder as the disk holds it, brought along by recorded calls. What has been synced stands whatever happens; what
/// was only written may stand, or not, or in parts, when the current goes. The name of a file is its folder's: that it
/// was made, renamed or deleted stands once the folder is synced.
class Disk
{
public:
    /// Which syncs count. A disk that lies shows what the others are good for.
    enum class Obeys
    {
        Everything,
        FileSyncs, ///< but those of folders do nothing
        Nothing
    };

    explicit Disk(const FolderContent& durable, Obeys obeys = Obeys::Everything);

    void replay(const CallRecord& record);

    /// As a program would read it now.
    FolderContent asItStands() const;
    /// As it could be found after a power cut at this moment.
    FolderContent afterPowerCut(std::mt19937& chance) const;

private:
    struct Change ///< of a file's content: bytes written, or another size
    {
        qint64 offset;
        QByteArray bytes;
        bool truncates;
    };
    struct File
    {
        QByteArray durable;
        QList<Change> pending;
    };
    struct NameChange ///< of `path`; a deletion without a file
    {
        QString path;
        int file;
    };
    using Names = std::map<QString, int>;

    void open(const CallRecord& record);
    void sync(const CallRecord& record);

    Obeys m_obeys;
    std::vector<File> m_files;
    Names m_names; ///< as they stand
    Names m_durableNames;
    QList<QList<NameChange>> m_pending; ///< those of one call stand or fall together
    std::map<qint32, int> m_openings;   ///< file of each opening; -1 for a folder
    std::map<qint32, QString> m_folders;
};

} // namespace torture
