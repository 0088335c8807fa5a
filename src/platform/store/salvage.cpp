#include "platform/store/salvage.h"

#include "platform/store/failure.h"

#include <sqlite3.h>

#include <bit>
#include <cmath>
#include <cstring>

using namespace Qt::StringLiterals;

namespace store {

namespace {

constexpr quint32 fileHeader = 100;
constexpr quint32 ownPageSize = 4096; ///< of the files that this program makes
constexpr uchar interiorPage = 0x05;
constexpr uchar leafPage = 0x0d;
constexpr int deepest = 20; ///< levels of a tree; a sound one has far fewer
constexpr quint64 largestRow = 64 << 20;

quint64 bigEndian(const uchar* bytes, int count)
{
    quint64 number = 0;
    for (int i = 0; i < count; ++i)
        number = number << 8 | bytes[i];
    return number;
}

} // namespace

/// Reads the format's numbers one after the other; once past the end it stays invalid.
class DamagedFile::Reader
{
public:
    Reader(const uchar* bytes, quint64 size, quint64 at)
        : m_bytes(bytes)
        , m_size(size)
        , m_at(at)
    {}

    bool isValid() const { return m_valid; }
    quint64 at() const { return m_at; }

    /// One to nine bytes, seven bits in each but the ninth.
    quint64 variable()
    {
        quint64 number = 0;
        for (int i = 0; i < 9; ++i) {
            const uchar* byte = take(1);
            if (!byte)
                return 0;
            if (i == 8)
                return number << 8 | *byte;
            number = number << 7 | (*byte & 0x7f);
            if (*byte < 0x80)
                break;
        }
        return number;
    }

    const uchar* take(quint64 count)
    {
        m_valid = m_valid && count <= m_size && m_at <= m_size - count;
        if (!m_valid)
            return nullptr;
        m_at += count;
        return m_bytes + m_at - count;
    }

    /// A column's value of one of the format's types.
    Value value(quint64 type)
    {
        static constexpr int wholeSizes[] = {0, 1, 2, 3, 4, 6, 8};
        if (type == 0)
            return {};
        if (type == 8 || type == 9)
            return qint64(type - 8);
        if (type <= 6) {
            const int size = wholeSizes[type];
            const uchar* bytes = take(quint64(size));
            // The sign is that of the first byte.
            return bytes ? Value(qint64(bigEndian(bytes, size) << (64 - 8 * size)) >> (64 - 8 * size)) : Value();
        }
        if (type == 7) {
            const uchar* bytes = take(8);
            const double number = bytes ? std::bit_cast<double>(bigEndian(bytes, 8)) : 0;
            m_valid = m_valid && std::isfinite(number);
            return number;
        }
        const bool text = type >= 13 && type % 2 == 1;
        const quint64 size = text ? (type - 13) / 2 : 0;
        const uchar* bytes = text ? take(size) : nullptr;
        const QByteArrayView view(bytes, bytes ? qsizetype(size) : 0);
        m_valid = m_valid && text && view.isValidUtf8();
        return m_valid ? Value(view.toByteArray()) : Value();
    }

private:
    const uchar* m_bytes;
    quint64 m_size;
    quint64 m_at;
    bool m_valid = true;
};

DamagedFile::DamagedFile(const QString& path)
    : m_file(path)
{
    if (!m_file.open(QIODevice::ReadOnly))
        failFile(SQLITE_CANTOPEN, m_file.errorString(), path);
    m_size = quint64(m_file.size());
    m_bytes = m_size > 0 ? m_file.map(0, m_file.size()) : nullptr;
    if (!m_bytes)
        failFile(SQLITE_IOERR_READ, m_file.errorString(), path);

    m_pageSize = m_size >= fileHeader ? quint32(bigEndian(m_bytes + 16, 2)) : 0;
    m_pageSize = m_pageSize == 1 ? 65536 : m_pageSize;
    if (!hasHeader() || m_pageSize < 512 || !std::has_single_bit(m_pageSize))
        m_pageSize = ownPageSize;
    const quint32 reserved = hasHeader() ? m_bytes[20] : 0;
    m_usable = m_pageSize - (m_pageSize - reserved >= 480 ? reserved : 0);
    m_seen.resize(m_size / m_pageSize + 2);
}

bool DamagedFile::hasHeader() const
{
    return m_size >= fileHeader && std::memcmp(m_bytes, "SQLite format 3", 16) == 0;
}

quint32 DamagedFile::applicationId() const
{
    return quint32(bigEndian(m_bytes + 68, 4));
}

DamagedFile::Page DamagedFile::page(quint32 number) const
{
    const quint64 at = quint64(number - 1) * m_pageSize;
    if (number == 0 || at + m_pageSize > m_size)
        return {};
    return {m_bytes + at, m_usable, number == 1 ? fileHeader : 0};
}

DamagedFile::Losses DamagedFile::readTable(quint32 root, const Take& take)
{
    Losses losses;
    readTree(root, 0, take, losses);
    return losses;
}

void DamagedFile::readTree(quint32 number, int depth, const Take& take, Losses& losses)
{
    const Page here = page(number);
    const uchar type = here.bytes ? here.bytes[here.start] : 0;
    if (depth > deepest || (type != interiorPage && type != leafPage) || m_seen[number]) {
        ++losses.pages;
        return;
    }
    m_seen[number] = true;
    if (type == interiorPage)
        return readInterior(here, depth, take, losses);
    Losses onPage;
    int taken = 0;
    readLeaf(
        here, [&](const Row& row) { return take(row) && ++taken > 0; }, onPage);
    const bool strange = taken == 0 && onPage.any();
    m_seen[number] = !strange; // a wrong way may have led here: the page is still there for its own table
    losses.pages += strange ? 1 : onPage.pages;
    losses.rows += strange ? 0 : onPage.rows;
}

void DamagedFile::readInterior(const Page& here, int depth, const Take& take, Losses& losses)
{
    const uchar* header = here.bytes + here.start;
    const quint32 cells = quint32(bigEndian(header + 3, 2));
    for (quint32 i = 0; i < cells; ++i) {
        const quint32 pointer = here.start + 12 + 2 * i;
        const quint64 cell = here.within(pointer, 2) ? bigEndian(here.bytes + pointer, 2) : here.size;
        if (here.within(cell, 4))
            readTree(quint32(bigEndian(here.bytes + cell, 4)), depth + 1, take, losses);
        else
            ++losses.pages;
        if (pointer >= here.size)
            break;
    }
    readTree(quint32(bigEndian(header + 8, 4)), depth + 1, take, losses);
}

void DamagedFile::readLeaf(const Page& here, const Take& take, Losses& losses) const
{
    const quint32 cells = quint32(bigEndian(here.bytes + here.start + 3, 2));
    for (quint32 i = 0; i < cells; ++i) {
        const quint32 pointer = here.start + 8 + 2 * i;
        if (!here.within(pointer, 2)) {
            ++losses.pages; // the count itself is damaged
            return;
        }
        const auto row = readCell(here, quint32(bigEndian(here.bytes + pointer, 2)));
        if (!row || !take(*row))
            ++losses.rows;
    }
}

std::optional<DamagedFile::Row> DamagedFile::readCell(const Page& here, quint32 at) const
{
    Reader cell(here.bytes, here.size, at);
    const quint64 size = cell.variable();
    const auto key = qint64(cell.variable());
    if (!cell.isValid() || size > largestRow)
        return {};
    const auto payload = readPayload(here, cell.at(), size);
    if (!payload)
        return {};

    const auto* bytes = reinterpret_cast<const uchar*>(payload->constData());
    Reader types(bytes, quint64(payload->size()), 0);
    const quint64 headerSize = types.variable();
    Reader body(bytes, quint64(payload->size()), headerSize);
    Row row{key, {}};
    while (types.isValid() && body.isValid() && types.at() < headerSize)
        row.values.push_back(body.value(types.variable()));
    const bool whole = types.isValid() && body.isValid() && types.at() == headerSize && body.at() == size;
    return whole ? std::optional(row) : std::nullopt;
}

/// A row's bytes: those on its page, then those on the pages that it runs over to.
std::optional<QByteArray> DamagedFile::readPayload(const Page& here, quint64 at, quint64 size) const
{
    const quint64 most = m_usable - 35;
    const quint64 least = (m_usable - 12) * 32 / 255 - 23;
    const quint64 fitting = least + (size - least) % (m_usable - 4);
    const quint64 local = size <= most ? size : fitting <= most ? fitting : least;
    if (!here.within(at, local + (local < size ? 4 : 0)))
        return {};
    QByteArray payload(reinterpret_cast<const char*>(here.bytes + at), qsizetype(local));
    auto next = local < size ? quint32(bigEndian(here.bytes + at + local, 4)) : 0;
    while (quint64(payload.size()) < size) {
        const Page over = page(next);
        if (!over.bytes)
            return {};
        const quint64 part = qMin<quint64>(size - quint64(payload.size()), m_usable - 4);
        payload.append(reinterpret_cast<const char*>(over.bytes + 4), qsizetype(part));
        next = quint32(bigEndian(over.bytes, 4));
    }
    return payload;
}

void DamagedFile::readStrays(const std::function<void(const std::vector<Row>&)>& take)
{
    for (quint32 number = 2; number <= m_size / m_pageSize; ++number) {
        const Page here = page(number);
        if (m_seen[number] || !here.bytes || here.bytes[0] != leafPage)
            continue;
        std::vector<Row> rows;
        Losses unreadable;
        const auto collect = [&rows](const Row& row) {
            rows.push_back(row);
            return true;
        };
        readLeaf(here, collect, unreadable);
        if (!rows.empty())
            take(rows);
    }
}

} // namespace store
