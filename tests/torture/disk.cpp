#include "disk.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace torture {

namespace {

constexpr qint64 sector = 512;
constexpr int deleted = -1;

QString folderOf(const QString& path)
{
    return path.left(qMax<qsizetype>(0, path.lastIndexOf(u'/')));
}

void put(QByteArray& content, qint64 offset, QByteArrayView bytes)
{
    if (content.size() < offset + bytes.size())
        content.append(offset + bytes.size() - content.size(), '\0');
    std::copy(bytes.begin(), bytes.end(), content.begin() + offset);
}

void setSize(QByteArray& content, qint64 size)
{
    if (content.size() < size)
        content.append(size - content.size(), '\0');
    else
        content.truncate(size);
}

/// What may become of bytes that were written and not synced.
enum class Fate
{
    AllLost,
    AllKept,
    Writes,  ///< each write is kept or not
    Sectors, ///< each sector of each write is kept or not
    Garbage  ///< and some hold anything
};

bool coin(std::mt19937& chance)
{
    return chance() & 1;
}

void putSectors(QByteArray& content, qint64 offset, const QByteArray& bytes, bool garbage, std::mt19937& chance)
{
    for (qint64 from = 0; from < bytes.size();) {
        const qint64 end = qMin<qint64>(bytes.size(), (offset + from) / sector * sector + sector - offset);
        QByteArray piece = bytes.mid(from, end - from);
        if (garbage && chance() % 4 == 0)
            std::generate(piece.begin(), piece.end(), [&] { return char(chance()); });
        if (coin(chance))
            put(content, offset + from, piece);
        from = end;
    }
}

} // namespace

FolderContent readFolder(const QString& folder)
{
    FolderContent content;
    for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();) {
        QFile file(it.next());
        if (!file.open(QFile::ReadOnly))
            qFatal("a file of the folder cannot be read");
        content[file.fileName().mid(folder.size() + 1)] = file.readAll();
    }
    return content;
}

void writeFolder(const QString& folder, const FolderContent& content)
{
    for (const auto& [path, bytes] : content) {
        QFile file(folder + u'/' + path);
        QDir().mkpath(QFileInfo(file).path());
        if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("a file of the folder cannot be written");
    }
}

Disk::Disk(const FolderContent& durable, Obeys obeys)
    : m_obeys(obeys)
{
    for (const auto& [path, bytes] : durable) {
        m_names[path] = int(m_files.size());
        m_files.push_back({bytes, {}});
    }
    m_durableNames = m_names;
}

void Disk::replay(const CallRecord& record)
{
    switch (record.call) {
    case Call::Open:
        open(record);
        break;
    case Call::Write:
        m_files[size_t(m_openings.at(record.file))].pending.append({record.offset, record.bytes, false});
        break;
    case Call::Truncate:
        m_files[size_t(m_openings.at(record.file))].pending.append({record.offset, {}, true});
        break;
    case Call::Sync:
        sync(record);
        break;
    case Call::Link:
        m_pending.append({{record.path, m_openings.at(record.file)}});
        m_names[record.path] = m_openings.at(record.file);
        break;
    case Call::Rename: {
        const int file = m_names.at(record.path);
        m_pending.append({{record.path, deleted}, {record.target, file}});
        m_names.erase(record.path);
        m_names[record.target] = file;
        break;
    }
    case Call::Unlink:
        m_pending.append({{record.path, deleted}});
        m_names.erase(record.path);
        break;
    case Call::Note:
        break;
    }
}

void Disk::open(const CallRecord& record)
{
    if (record.isFolder) {
        m_folders[record.file] = record.path;
        return;
    }
    const auto known = m_names.find(record.path);
    if (!record.path.isEmpty() && known != m_names.end()) {
        m_openings[record.file] = known->second;
        if (record.truncates)
            m_files[size_t(known->second)].pending.append({0, {}, true});
        return;
    }
    const int file = int(m_files.size());
    m_files.emplace_back();
    m_openings[record.file] = file;
    if (record.path.isEmpty())
        return;
    m_names[record.path] = file;
    m_pending.append({{record.path, file}});
}

void Disk::sync(const CallRecord& record)
{
    if (m_obeys == Obeys::Nothing)
        return;
    if (const auto folder = m_folders.find(record.file); folder != m_folders.end()) {
        if (m_obeys == Obeys::FileSyncs)
            return;
        for (const QList<NameChange>& call : std::exchange(m_pending, {})) {
            if (folderOf(call.first().path) != folder->second) {
                m_pending.append(call);
                continue;
            }
            for (const NameChange& change : call) {
                if (change.file == deleted)
                    m_durableNames.erase(change.path);
                else
                    m_durableNames[change.path] = change.file;
            }
        }
        return;
    }
    File& file = m_files[size_t(m_openings.at(record.file))];
    for (const Change& change : std::exchange(file.pending, {})) {
        if (change.truncates)
            setSize(file.durable, change.offset);
        else
            put(file.durable, change.offset, change.bytes);
    }
}

FolderContent Disk::asItStands() const
{
    FolderContent content;
    for (const auto& [path, number] : m_names) {
        const File& file = m_files[size_t(number)];
        QByteArray& bytes = content[path] = file.durable;
        for (const Change& change : file.pending) {
            if (change.truncates)
                setSize(bytes, change.offset);
            else
                put(bytes, change.offset, change.bytes);
        }
    }
    return content;
}

FolderContent Disk::afterPowerCut(std::mt19937& chance) const
{
    const auto fate = Fate(chance() % 5);
    Names names = m_durableNames;
    const bool inOrder = coin(chance);
    const qsizetype kept = m_pending.isEmpty() ? 0 : chance() % (m_pending.size() + 1);
    for (qsizetype i = 0; i < m_pending.size(); ++i) {
        const bool stands = fate == Fate::AllKept || (fate != Fate::AllLost && (inOrder ? i < kept : coin(chance)));
        for (const NameChange& change : stands ? m_pending[i] : QList<NameChange>()) {
            if (change.file == deleted)
                names.erase(change.path);
            else
                names[change.path] = change.file;
        }
    }
    FolderContent content;
    for (const auto& [path, number] : names) {
        const File& file = m_files[size_t(number)];
        QByteArray& bytes = content[path] = file.durable;
        for (const Change& change : file.pending) {
            const bool whole = fate == Fate::AllKept || ((fate == Fate::Writes || change.truncates) && coin(chance));
            if (fate == Fate::AllLost)
                continue;
            if (change.truncates && whole)
                setSize(bytes, change.offset);
            else if (!change.truncates && whole)
                put(bytes, change.offset, change.bytes);
            else if (fate == Fate::Sectors || fate == Fate::Garbage)
                putSectors(bytes, change.offset, change.bytes, fate == Fate::Garbage, chance);
        }
    }
    return content;
}

} // namespace torture
