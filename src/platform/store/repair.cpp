#include "platform/store/connection.h"
#include "platform/store/failure.h"
#include "platform/store/maintenance.h"
#include "platform/store/replacement.h"
#include "platform/store/salvage.h"
#include "platform/store/schema.h"

#include <QFile>
#include <QHash>

#include <sqlite3.h>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace store {

namespace {

bool fits(FieldType type, const Value& value)
{
    const bool null = std::holds_alternative<std::monostate>(value);
    const auto* whole = std::get_if<qint64>(&value);
    switch (type) {
    case FieldType::Counter:
        return null; // the key stands in its place
    case FieldType::Long:
    case FieldType::Integer:
        return null || whole;
    case FieldType::YesNo:
        return whole && (*whole == 0 || *whole == 1);
    case FieldType::Single:
    case FieldType::Double:
        return null || whole || std::holds_alternative<double>(value);
    case FieldType::Text:
    case FieldType::Date:
        return null || std::holds_alternative<QByteArray>(value);
    }
    return false;
}

bool fits(const Table& table, const DamagedFile::Row& row)
{
    if (row.values.size() != std::size_t(table.fields.size()))
        return false;
    for (std::size_t i = 0; i < row.values.size(); ++i) {
        if (!fits(table.fields[qsizetype(i)].type, row.values[i]))
            return false;
    }
    return true;
}

/// Copies what can be read of a damaged file into an empty one of the catalogue.
class Salvage
{
public:
    Salvage(DamagedFile& from, Connection& into, const Catalogue& catalogue)
        : m_from(from)
        , m_into(into)
        , m_catalogue(catalogue)
    {}

    QStringList run()
    {
        m_into.run("begin");
        findRoots();
        keepSequence();
        for (const Table& table : m_catalogue.tables())
            m_results.push_back(readTable(table));
        readStrays();
        m_inserts.clear();
        m_into.run("commit");
        return told();
    }

    qint64 rowsTaken() const
    {
        qint64 taken = 0;
        for (const Result& result : m_results)
            taken += result.taken;
        return taken;
    }

private:
    struct Result
    {
        const Table* table;
        DamagedFile::Losses losses;
        qint64 taken = 0;
    };

    /// Where each table begins: as the damaged file says, or else as a file freshly made of the same catalogue has it.
    void findRoots()
    {
        Statement fresh = m_into.prepare("select lower(name), rootpage from sqlite_schema where type = 'table'");
        while (fresh.step())
            m_roots.insert(Cell(fresh.get(), 0).bytes.toByteArray(), quint32(integerOf(Cell(fresh.get(), 1))));
        m_from.readTable(1, [this](const DamagedFile::Row& row) {
            const bool entry = row.values.size() == 5 && std::holds_alternative<QByteArray>(row.values[0]) &&
                               std::holds_alternative<QByteArray>(row.values[1]) &&
                               std::holds_alternative<qint64>(row.values[3]);
            if (entry && std::get<QByteArray>(row.values[0]) == "table")
                m_roots.insert(std::get<QByteArray>(row.values[1]).toLower(), quint32(std::get<qint64>(row.values[3])));
            return entry;
        });
    }

    Result readTable(const Table& table)
    {
        Result result{&table, {}, 0};
        const quint32 root = m_roots.value(table.name.toUtf8().toLower());
        result.losses = m_from.readTable(root, [&](const DamagedFile::Row& row) {
            const bool taken = fits(table, row) && insert(table, row);
            result.taken += taken;
            return taken;
        });
        return result;
    }

    /// Rows that have lost their way go to the one damaged table which they fit, if there is one only.
    void readStrays()
    {
        m_from.readStrays([this](const std::vector<DamagedFile::Row>& rows) {
            Result* home = nullptr;
            int homes = 0;
            for (Result& result : m_results) {
                const auto inPlace = [&result](const DamagedFile::Row& row) { return fits(*result.table, row); };
                if (result.losses.pages > 0 && std::all_of(rows.cbegin(), rows.cend(), inPlace)) {
                    home = &result;
                    ++homes;
                }
            }
            for (const DamagedFile::Row& row : rows) {
                if (homes == 1 && insert(*home->table, row))
                    ++home->taken;
                else
                    ++m_homeless;
            }
        });
    }

    bool insert(const Table& table, const DamagedFile::Row& row)
    {
        Statement& statement = m_inserts[&table];
        if (!statement)
            statement = prepareInsert(table);
        statement.reset();
        int parameter = 1;
        bindValue(statement.get(), parameter, row.key);
        for (qsizetype i = 0; i < table.fields.size(); ++i) {
            if (table.fields[i].type != FieldType::Counter)
                bindValue(statement.get(), ++parameter, row.values[std::size_t(i)]);
        }
        statement.step();
        return sqlite3_changes64(m_into.get()) == 1;
    }

    /// The key first, then every field but the counter, which is the key.
    Statement prepareInsert(const Table& table)
    {
        QByteArray names = "rowid";
        QByteArray places = "?";
        for (const Field& field : table.fields) {
            if (field.type == FieldType::Counter)
                continue;
            names += ", " + quoted(field.name);
            places += ", ?";
        }
        return m_into.prepare("insert or ignore into " + quoted(table.name) + " (" + names + ") values (" + places +
                              ')');
    }

    /// A number once given is never given again, even when its row is lost.
    void keepSequence()
    {
        m_from.readTable(m_roots.value("sqlite_sequence"), [this](const DamagedFile::Row& row) {
            const bool entry = row.values.size() == 2 && std::holds_alternative<QByteArray>(row.values[0]) &&
                               std::holds_alternative<qint64>(row.values[1]);
            if (!entry || !m_catalogue.find(QString::fromUtf8(std::get<QByteArray>(row.values[0]))))
                return false;
            Statement missing = m_into.prepare("insert into sqlite_sequence (name, seq) select ?1, 0 "
                                               "where not exists (select 1 from sqlite_sequence where name = ?1)");
            missing.bind(row.values[0]);
            missing.step();
            Statement higher = m_into.prepare("update sqlite_sequence set seq = max(seq, ?) where name = ?");
            higher.bind(row.values[1]);
            higher.bind(row.values[0]);
            higher.step();
            return true;
        });
    }

    QStringList told() const
    {
        QStringList lines;
        for (const Result& result : m_results) {
            if (result.losses.any())
                lines += u"%1 : %2 page(s) et %3 ligne(s) illisibles, %4 ligne(s) reprises"_s.arg(result.table->name)
                             .arg(result.losses.pages)
                             .arg(result.losses.rows)
                             .arg(result.taken);
        }
        if (m_homeless > 0)
            lines += u"%1 ligne(s) dont la table n'a pu être reconnue"_s.arg(m_homeless);
        return lines;
    }

    DamagedFile& m_from;
    Connection& m_into;
    const Catalogue& m_catalogue;
    QHash<QByteArray, quint32> m_roots;
    std::map<const Table*, Statement> m_inserts;
    std::vector<Result> m_results;
    int m_homeless = 0;
};

} // namespace

QStringList repairFile(const QString& path, const Catalogue& catalogue)
{
    if (checkFile(path).isEmpty()) {
        Connection whole(path, Connection::ReadWrite);
        checkSchema(whole, catalogue);
        return {};
    }
    QStringList lost;
    Replacement replacement(path);
    {
        DamagedFile damaged(path);
        if (damaged.hasHeader() && damaged.applicationId() != catalogue.applicationId())
            throw Error(Error::ForeignFile, u"Le fichier « %1 » n'est pas une base de ce programme"_s.arg(path));
        Connection fresh(replacement.path(), Connection::Create);
        makeSchema(fresh, catalogue);
        Salvage salvage(damaged, fresh, catalogue);
        lost = salvage.run();
        if (!damaged.hasHeader() && salvage.rowsTaken() == 0)
            failFile(SQLITE_NOTADB, u"file is not a database"_s, path);
    }
    if (!lost.isEmpty()) {
        const QString kept = path + u".endommage"_s;
        QFile::remove(kept);
        QFile damaged(path);
        if (!damaged.copy(kept))
            failFile(SQLITE_IOERR_WRITE, damaged.errorString(), kept);
    }
    replacement.commit();
    return lost;
}

} // namespace store
