// The C library's own headers must not turn these calls into others.
#undef _FORTIFY_SOURCE

#include "system_calls.h"

#include <QDataStream>
#include <QFile>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace torture {

namespace {

/// The C library's function behind one of ours.
template<class Function> Function* real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}
using OpenFunction = int(const char*, int, ...);
using WriteFunction = ssize_t(int, const void*, size_t);

/// What this process watches, and what it knows of the files that it has open there.
struct Watch
{
    QByteArray folder; ///< with a slash behind it; empty: nothing is watched
    int log = -1;
    int openings = 0;
    std::array<qint32, 1024> files{}; ///< by descriptor: number of the opening, 0 for files elsewhere
    PlannedFault fault{};
    int faultsLeft = 0; ///< calls up to the one that fails; 0: none does
    bool struck = false;

    bool within(const char* path) const { return !folder.isEmpty() && (QByteArray(path) + '/').startsWith(folder); }
    QString inside(const char* path) const { return QFile::decodeName(QByteArray(path).mid(folder.size())); }
    qint32 file(int descriptor) const
    {
        return descriptor >= 0 && size_t(descriptor) < files.size() ? files[size_t(descriptor)] : 0;
    }

    /// True when this call is to fail; errno is set.
    bool fails(Call call)
    {
        if (faultsLeft == 0 || call != fault.call)
            return false;
        if (faultsLeft > 1) {
            --faultsLeft;
            return false;
        }
        struck = true;
        faultsLeft = fault.lasts ? 1 : 0;
        errno = fault.error;
        return true;
    }

    void append(const CallRecord& record)
    {
        if (log < 0)
            return;
        const int before = errno;
        QByteArray bytes;
        QDataStream out(&bytes, QDataStream::WriteOnly);
        out << quint32(0) << qint32(record.call) << record.file << record.offset << record.path << record.target
            << record.isFolder << record.creates << record.truncates << record.bytes;
        out.device()->seek(0);
        out << quint32(bytes.size());
        if (real<WriteFunction>("write")(log, bytes.constData(), size_t(bytes.size())) != bytes.size())
            qFatal("the log of calls cannot be written");
        errno = before;
    }
};

Watch watch;

QByteArray folderName(const QString& folder)
{
    return QFile::encodeName(folder) + '/';
}

int openFile(OpenFunction* open, const char* path, int flags, mode_t mode)
{
    const bool watched = watch.within(path);
    const bool writes = (flags & O_ACCMODE) != O_RDONLY;
    if (watched && writes && watch.fails(Call::Open))
        return -1;
    const int descriptor = open(path, flags, mode);
    if (!watched || descriptor < 0 || size_t(descriptor) >= watch.files.size())
        return descriptor;
    struct stat about
    {};
    fstat(descriptor, &about);
    const bool nameless = (flags & O_TMPFILE) == O_TMPFILE;
    const bool isFolder = S_ISDIR(about.st_mode);
    watch.files[size_t(descriptor)] = ++watch.openings;
    CallRecord record{Call::Open, watch.openings};
    record.path = nameless ? QString() : watch.inside(path);
    record.isFolder = isFolder;
    record.creates = !isFolder && (flags & O_CREAT || nameless);
    record.truncates = !isFolder && flags & O_TRUNC;
    watch.append(record);
    return descriptor;
}

/// Does the call, and records it when the whole of it succeeded.
template<class Do> int onFile(Call call, int descriptor, qint64 offset, Do call_)
{
    const qint32 file = watch.file(descriptor);
    if (file != 0 && watch.fails(call))
        return -1;
    const int result = call_();
    if (file != 0 && result == 0)
        watch.append({call, file, offset});
    return result;
}

/// `offset` below 0: where the file stands.
template<class Do> ssize_t writeFile(int descriptor, const void* bytes, size_t size, qint64 offset, Do call)
{
    const qint32 file = watch.file(descriptor);
    const bool struckBefore = watch.struck;
    const bool fails = file != 0 && watch.fails(Call::Write);
    if (fails && (errno != ENOSPC || struckBefore || size < 2))
        return -1;
    const ssize_t written = call(fails ? size / 2 : size);
    if (file != 0 && written > 0) {
        const qint64 at = offset >= 0 ? offset : lseek(descriptor, 0, SEEK_CUR) - written;
        CallRecord record{Call::Write, file, at};
        record.bytes = QByteArray(static_cast<const char*>(bytes), written);
        watch.append(record);
    }
    return written;
}

template<class Do> int onName(Call call, qint32 file, const char* path, const char* target, Do call_)
{
    const bool watched = watch.within(target ? target : path);
    if (watched && watch.fails(call))
        return -1;
    const int result = call_();
    if (watched && result == 0) {
        CallRecord record{call, file};
        record.path = watch.inside(path);
        record.target = target ? watch.inside(target) : QString();
        watch.append(record);
    }
    return result;
}

} // namespace

void recordCalls(const QString& folder, const QString& log)
{
    watch.log = real<OpenFunction>("open")(QFile::encodeName(log).constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    watch.folder = folderName(folder);
}

void recordNote(const QByteArray& note)
{
    CallRecord record{Call::Note};
    record.bytes = note;
    watch.append(record);
}

void failCalls(const QString& folder, const PlannedFault& fault)
{
    watch.folder = folderName(folder);
    watch.fault = fault;
    watch.faultsLeft = fault.nth;
    watch.struck = false;
}

void stopFailing()
{
    watch.faultsLeft = 0;
}

bool faultStruck()
{
    return watch.struck;
}

QList<CallRecord> readCalls(const QString& log)
{
    QFile file(log);
    QList<CallRecord> records;
    if (!file.open(QFile::ReadOnly))
        return records;
    QDataStream in(&file);
    while (true) {
        quint32 size = 0;
        qint32 call = 0;
        CallRecord r{};
        in >> size >> call >> r.file >> r.offset >> r.path >> r.target >> r.isFolder >> r.creates >> r.truncates >>
            r.bytes;
        if (in.status() != QDataStream::Ok)
            return records;
        r.call = Call(call);
        records.append(r);
    }
}

} // namespace torture

// --- In the place of the C library's ---------------------------------------------------------------------------------

using torture::Call;
using torture::real;
using torture::watch;

extern "C" {

static mode_t modeOf(int flags, va_list& arguments)
{
    return flags & O_CREAT || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(arguments, mode_t) : 0;
}

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return torture::openFile(real<torture::OpenFunction>("open"), path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return torture::openFile(real<torture::OpenFunction>("open64"), path, flags, mode);
}

int close(int descriptor)
{
    if (watch.file(descriptor) != 0)
        watch.files[size_t(descriptor)] = 0;
    return real<int(int)>("close")(descriptor);
}

ssize_t write(int descriptor, const void* bytes, size_t size)
{
    return torture::writeFile(descriptor, bytes, size, -1, [&](size_t count) {
        return real<torture::WriteFunction>("write")(descriptor, bytes, count);
    });
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t size, off64_t offset)
{
    return torture::writeFile(descriptor, bytes, size, offset, [&](size_t count) {
        return real<ssize_t(int, const void*, size_t, off64_t)>("pwrite64")(descriptor, bytes, count, offset);
    });
}

int ftruncate64(int descriptor, off64_t size) noexcept
{
    return torture::onFile(Call::Truncate, descriptor, size,
                           [&] { return real<int(int, off64_t)>("ftruncate64")(descriptor, size); });
}

int fsync(int descriptor)
{
    return torture::onFile(Call::Sync, descriptor, 0, [&] { return real<int(int)>("fsync")(descriptor); });
}

int fdatasync(int descriptor)
{
    return torture::onFile(Call::Sync, descriptor, 0, [&] { return real<int(int)>("fdatasync")(descriptor); });
}

int unlink(const char* path) noexcept
{
    return torture::onName(Call::Unlink, 0, path, nullptr, [&] { return real<int(const char*)>("unlink")(path); });
}

int rename(const char* from, const char* to) noexcept
{
    return torture::onName(Call::Rename, 0, from, to,
                           [&] { return real<int(const char*, const char*)>("rename")(from, to); });
}

/// Qt gives a nameless temporary file its name so.
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    static constexpr char own[] = "/proc/self/fd/";
    const qint32 file = std::strncmp(from, own, sizeof own - 1) == 0 ? watch.file(std::atoi(from + sizeof own - 1)) : 0;
    return torture::onName(Call::Link, file, to, nullptr, [&] {
        return real<int(int, const char*, int, const char*, int)>("linkat")(fromFolder, from, toFolder, to, flags);
    });
}

} // extern "C"
