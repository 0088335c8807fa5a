#pragma once

#include "platform/store/value.h"

#include <QFile>

#include <functional>

namespace store {

/// Reads rows out of a database file that SQLite refuses, page by page in the file's documented format: what stands on
/// a page is read whatever has become of the others. Everything read is checked, as the bytes may be anything.
///
/// The store has freed pages wiped, so that a page which still holds rows is one of a table's.
class DamagedFile
{
public:
    /// Throws `Error` when the file cannot be read at all.
    explicit DamagedFile(const QString& path);

    struct Row
    {
        qint64 key;
        Values values; ///< a text in a blob's guise, or a number that is none, has made the row unreadable
    };
    struct Losses
    {
        int pages = 0;
        int rows = 0;
        bool any() const { return pages > 0 || rows > 0; }
    };
    using Take = std::function<bool(const Row&)>; ///< false: the row makes no sense there

    bool hasHeader() const; ///< the first bytes say that it is a database
    quint32 applicationId() const;

    /// Hands over the rows of the table whose tree begins on page `root`.
    Losses readTable(quint32 root, const Take& take);

    /// Hands over, page by page, the rows that no table led to.
    void readStrays(const std::function<void(const std::vector<Row>&)>& take);

private:
    struct Page
    {
        const uchar* bytes = nullptr; ///< null: not in the file
        quint32 size = 0;
        quint32 start = 0; ///< of the page's own header: the first page has the file's before it
        bool within(quint64 at, quint64 length) const { return at + length <= size; }
    };
    class Reader;

    Page page(quint32 number) const;
    void readTree(quint32 number, int depth, const Take& take, Losses& losses);
    void readInterior(const Page& page, int depth, const Take& take, Losses& losses);
    void readLeaf(const Page& page, const Take& take, Losses& losses) const;
    std::optional<Row> readCell(const Page& page, quint32 at) const;
    std::optional<QByteArray> readPayload(const Page& page, quint64 at, quint64 size) const;

    QFile m_file;
    const uchar* m_bytes = nullptr;
    quint64 m_size = 0;
    quint32 m_pageSize = 0;
    quint32 m_usable = 0; ///< bytes of a page that the format uses
    std::vector<bool> m_seen;
};

} // namespace store
