#include "platform/store/database_impl.h"

#include "platform/store/backup.h"
#include "platform/store/failure.h"
#include "platform/store/recordset_impl.h"
#include "platform/store/replacement.h"
#include "platform/store/schema.h"

#include <QFileInfo>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace store {

namespace {

/// Durability was measured with these; see also the locking in `Database::Impl`. The large cache keeps a long
/// transaction from reaching the file before its commit.
constexpr const char* settings = "pragma journal_mode = delete; pragma synchronous = extra;"
                                 "pragma cache_size = -65536; pragma temp_store = memory;"
                                 "pragma foreign_keys = off; pragma cell_size_check = on;"
                                 "pragma secure_delete = on;";

const QString& existing(const QString& path)
{
    requireDatabase(path);
    return path;
}

} // namespace

Database::Impl::Impl(const QString& path, const Catalogue& known)
    : catalogue(known)
    , connection(existing(path), Connection::ReadWrite)
    , m_writes(std::size_t(known.tables().size()))
{
    connection.run("pragma locking_mode = exclusive");
    checkSchema(connection, catalogue);
    connection.run(settings);
    // Takes the lock now, so that a second program is refused at the door and not at its first write.
    connection.run("begin exclusive; commit");
    // A journal that a crash left behind, of use no more, goes at the close only when it has been written to.
    if (QFileInfo::exists(path + u"-journal"_s) && !sqlite3_db_readonly(connection.get(), "main"))
        connection.run("pragma user_version = " + QByteArray::number(known.version()));
}

Database::Impl::~Impl()
{
    for (Recordset::Impl* recordset : recordsets)
        recordset->detach();
}

std::shared_ptr<const Query> Database::Impl::translated(const QString& query, const Lexed& lexed)
{
    if (const auto* known = m_translations.object(lexed.shape))
        return *known;
    auto fresh = std::make_shared<const Query>(translate(catalogue, query, lexed));
    prepare(fresh->sql, query); // what only SQLite finds wrong comes out here
    m_translations.insert(lexed.shape, new std::shared_ptr<const Query>(fresh));
    return fresh;
}

/// Prepares what was made of a query; a fault that only SQLite sees in it is told as the query's.
Statement Database::Impl::prepare(const QByteArray& sql, const QString& query)
{
    try {
        return connection.prepare(sql);
    } catch (const Error& error) {
        if ((error.number() & 0xff) != SQLITE_ERROR)
            throw;
        failQuery(
            query,
            u"%1 (erreur SQLite %2)"_s.arg(QString::fromUtf8(sqlite3_errmsg(connection.get()))).arg(error.number()));
    }
}

qint64 Database::Impl::write(const Table& table, const QByteArray& sql, const Values& values)
{
    checkStanding();
    aboutToWrite(tableBit(catalogue, &table));
    Statement statement = connection.prepare(sql);
    statement.bind(values);
    try {
        while (statement.step()) {
        }
    } catch (const Error&) {
        for (quint64& count : m_writes)
            ++count; // a full disk can have undone the whole transaction
        throw;
    }
    return sqlite3_changes64(connection.get());
}

/// Undoes a transaction or a part of one.
void Database::Impl::undo(const QByteArray& sql)
{
    aboutToWrite(~quint64(0));
    connection.run(sql);
}

void Database::Impl::aboutToWrite(quint64 tables)
{
    for (Recordset::Impl* recordset : recordsets) {
        if (recordset->query->tables & tables)
            recordset->putByRowsAhead();
    }
    for (std::size_t i = 0; i < m_writes.size(); ++i)
        m_writes[i] += tables >> (i % 64) & 1;
}

/// What is about to be written must come to stand where it belongs. A file that was moved or deleted would take it and
/// be found nowhere. SQLite gives a transaction up by itself when the disk is full or fails: what follows must not
/// stand alone.
void Database::Impl::checkStanding() const
{
    int moved = 0;
    sqlite3_file_control(connection.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    if (moved)
        failFile(SQLITE_READONLY_DBMOVED, QString::fromUtf8(sqlite3_errstr(SQLITE_READONLY_DBMOVED)),
                 connection.path());
    if (transactions > 0 && sqlite3_get_autocommit(connection.get()))
        throw Error(Error::Interrupted, u"L'opération a été annulée dans le fichier « %1 »"_s.arg(connection.path()));
}

Values parameterValues(const std::vector<Parameter>& parameters, const Lexed& lexed, const QVariantList& values,
                       const QString& query)
{
    Values filled;
    filled.reserve(parameters.size());
    qsizetype given = 0;
    std::size_t constant = 0;
    auto token = lexed.tokens.cbegin();
    for (const Parameter& parameter : parameters) {
        if (parameter.column >= 0) {
            filled.emplace_back();
            continue;
        }
        while (token->kind != Token::Constant && token->kind != Token::Parameter)
            ++token;
        if (token->kind == Token::Parameter) {
            if (given >= values.size())
                failQuery(query, u"il y manque une valeur"_s);
            filled.push_back(queryValue(values[given++], parameter.nextToDate));
        } else {
            filled.push_back(lexed.constants[constant++]);
            if (const auto* text = std::get_if<QByteArray>(&filled.back()); text && parameter.nextToDate)
                filled.back() = queryValue(QString::fromUtf8(*text), true);
        }
        ++token;
    }
    if (given != values.size())
        failQuery(query, u"elle a reçu trop de valeurs"_s);
    return filled;
}

Database::Database(const QString& path, const Catalogue& catalogue)
    : m_impl(std::make_unique<Impl>(path, catalogue))
{}

Database::~Database() = default;

void Database::create(const QString& path, const Catalogue& catalogue)
{
    if (QFileInfo::exists(path))
        throw Error(SQLITE_CANTOPEN, u"Le fichier « %1 » existe déjà"_s.arg(path));
    Replacement replacement(path);
    {
        Connection empty(replacement.path(), Connection::Create);
        makeSchema(empty, catalogue);
    }
    replacement.commit();
}

void Database::copyTo(const QString& target)
{
    if (m_impl->transactions > 0)
        throw Error(SQLITE_BUSY,
                    u"Le fichier « %1 » ne peut pas être copié : une opération y est en cours"_s.arg(path()));
    backup(m_impl->connection, target);
}

const QString& Database::path() const
{
    return m_impl->connection.path();
}

const Catalogue& Database::catalogue() const
{
    return m_impl->catalogue;
}

Recordset Database::openTable(const QString& table)
{
    if (!m_impl->catalogue.find(table))
        throw Error(Error::MissingTable, u"La table « %1 » n'existe pas"_s.arg(table));
    return openRecordset(u"select * from ["_s + table + u']');
}

Recordset Database::openRecordset(const QString& query, const QVariantList& values)
{
    const Lexed lexed = lex(query);
    auto translated = m_impl->translated(query, lexed);
    if (!translated->reads)
        failQuery(query, u"elle ne montre pas de lignes"_s);
    auto rows = std::make_unique<Recordset::Impl>(*m_impl, translated,
                                                  parameterValues(translated->parameters, lexed, values, query));
    rows->start();
    return Recordset(std::move(rows));
}

qint64 Database::execute(const QString& query, const QVariantList& values)
{
    const Lexed lexed = lex(query);
    const auto translated = m_impl->translated(query, lexed);
    if (translated->reads)
        failQuery(query, u"elle ne change rien"_s);
    return m_impl->write(*translated->table, translated->sql,
                         parameterValues(translated->parameters, lexed, values, query));
}

QVariant Database::scalar(const QString& query, const QVariantList& values)
{
    const Recordset rows = openRecordset(query, values);
    return rows.eof() ? QVariant() : rows.value(0);
}

bool Database::exists(const QString& query, const QVariantList& values)
{
    return !openRecordset(query, values).eof();
}

int Database::preparedStatements() const
{
    return m_impl->connection.preparedSoFar();
}

QStringList Database::plan(const QString& query, const QVariantList& values)
{
    const Lexed lexed = lex(query);
    const auto translated = m_impl->translated(query, lexed);
    Statement explained = m_impl->prepare("explain query plan " + translated->sql, query);
    explained.bind(parameterValues(translated->parameters, lexed, values, query));
    QStringList steps;
    while (explained.step())
        steps += QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(explained.get(), 3)));
    return steps;
}

} // namespace store
