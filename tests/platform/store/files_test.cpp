#include "platform/store/maintenance.h"

#include "store_test.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using store::Database;
using store::Error;
using store::Recordset;
using store::Transaction;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

/// Runs an action in a process of its own; returns how it ended.
template<class Action> int inChild(Action action)
{
    const pid_t child = fork();
    if (child == 0) {
        action();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

class FilesTest : public StoreTest
{
protected:
    /// Lines enough for a tree of two levels, written and closed.
    void fill(int lines)
    {
        {
            Transaction all(*base);
            Recordset rows = base->openTable(u"L_Vente"_s);
            for (int i = 1; i <= lines; ++i) {
                rows.addNew();
                rows.set("num_client", i % 50);
                rows.set("Date", u"01/02/2026"_s);
                rows.set("Total", i + 0.5);
                rows.update();
            }
            for (int i = 1; i <= 50; ++i)
                addClient(u"Client n° %1"_s.arg(i), u"p"_s.repeated(i == 25 ? 9000 : 30));
            all.commit();
        }
        base.reset();
    }

    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    quint32 pageOf(const QString& table) const
    {
        sqlite3* file = nullptr;
        sqlite3_open(path().toUtf8().constData(), &file);
        sqlite3_stmt* root = nullptr;
        sqlite3_prepare_v2(file, "select rootpage from sqlite_schema where name = ?", -1, &root, nullptr);
        const QByteArray name = table.toUtf8();
        sqlite3_bind_text(root, 1, name.constData(), -1, SQLITE_STATIC);
        sqlite3_step(root);
        const int page = sqlite3_column_int(root, 0);
        sqlite3_finalize(root);
        sqlite3_close(file);
        return quint32(page);
    }

    /// Overwrites bytes of the closed file.
    void damage(qint64 at, const QByteArray& bytes)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(at));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
};

TEST_F(FilesTest, TheFileExplainsItselfToAPlainTool)
{
    addInvoice(1, u"15/11/2026"_s, 12.5, true);
    base.reset();
    EXPECT_EQ(files(), QStringList{u"TAL2026.mdb"_s});

    sqlite3* file = nullptr; // a connection that knows none of the store's functions
    ASSERT_EQ(sqlite3_open(path().toUtf8().constData(), &file), SQLITE_OK);
    const auto first = [file](const char* sql) {
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(file, sql, -1, &statement, nullptr), SQLITE_OK) << sqlite3_errmsg(file);
        sqlite3_step(statement);
        const QString text = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
        sqlite3_finalize(statement);
        return text;
    };
    EXPECT_EQ(first("select sql from sqlite_schema where name = 'Factures'"), uR"(CREATE TABLE Factures (
    ordre integer,
    num integer primary key autoincrement,
    Date text, -- date: yyyy-MM-dd
    num_client integer,
    Total real,
    Flag_R integer not null default 0 check (Flag_R in (0, 1)), -- yes/no
    Ref text
) strict)"_s);
    EXPECT_TRUE(
        first("select sql from sqlite_schema where name = 'Permn'").contains(u"compte text default 'l''agence'"));
    EXPECT_EQ(first("select group_concat(name) from sqlite_schema where type = 'index'"),
              u"ix_Factures_num_client,ix_Factures_Date,ix_L_Vente_Num_Facture_num_client"_s);
    EXPECT_EQ(first("pragma application_id"), u"1413565524"_s);
    EXPECT_EQ(first("pragma user_version"), u"3"_s);
    EXPECT_EQ(first("select Date || Flag_R from Factures where Date >= '2026-11-15' order by Ref"), u"2026-11-151"_s);
    EXPECT_EQ(first("pragma integrity_check"), u"ok"_s);
    sqlite3_close(file);
}

TEST_F(FilesTest, AFileThatCannotBeUsedIsToldByNameAndLeftAsItIs)
{
    base.reset();
    const QByteArray whole = contentOf(path());
    const auto variant = [&](qsizetype at, char byte) {
        QByteArray changed = whole;
        changed[at] = byte;
        return changed;
    };
    put(path(u"vide.mdb"_s), {});
    put(path(u"texte.mdb"_s), QByteArray("Cher client, ").repeated(500));
    put(path(u"autre.mdb"_s), variant(68, 0));   // application_id
    put(path(u"version.mdb"_s), variant(63, 9)); // user_version
    put(path(u"coupe.mdb"_s), whole.left(whole.size() / 2));
    const store::Catalogue larger(smallCatalogue().applicationId(), smallCatalogue().version(),
                                  smallCatalogue().tables() + QList<store::Table>{{u"Agents"_s, {}, {}}});
    auto wider = smallCatalogue().tables();
    wider[0].fields.append({u"fax"_s, store::FieldType::Text, {}});
    const store::Catalogue withField(smallCatalogue().applicationId(), smallCatalogue().version(), wider);

    struct Case
    {
        QString name;
        const store::Catalogue& catalogue;
        int fault;
    };
    const Case table[] = {
        {u"absent.mdb"_s, smallCatalogue(), SQLITE_CANTOPEN},
        {u"vide.mdb"_s, smallCatalogue(), Error::NotADatabase},
        {u"texte.mdb"_s, smallCatalogue(), Error::NotADatabase},
        {u"autre.mdb"_s, smallCatalogue(), Error::ForeignFile},
        {u"version.mdb"_s, smallCatalogue(), Error::OtherVersion},
        {u"coupe.mdb"_s, smallCatalogue(), SQLITE_CORRUPT},
        {u"TAL2026.mdb"_s, larger, Error::MissingTable},
        {u"TAL2026.mdb"_s, withField, Error::UnknownField},
    };
    for (const Case& each : table) {
        const QByteArray before = contentOf(path(each.name));
        QString text;
        EXPECT_EQ(faultOf([&] { Database refused(path(each.name), each.catalogue); }, &text), each.fault)
            << text.toStdString();
        EXPECT_TRUE(text.contains(path(each.name))) << text.toStdString();
        EXPECT_EQ(contentOf(path(each.name)), before) << each.name.toStdString();
    }
    EXPECT_NE(faultOf([&] { Database::create(path(), smallCatalogue()); }), 0);
    EXPECT_EQ(contentOf(path()), whole);
    EXPECT_EQ(faultOf([&] { Database::create(path(u"nulle/part.mdb"_s), smallCatalogue()); }), SQLITE_CANTOPEN);
}

TEST_F(FilesTest, ASecondProgramIsRefusedAtTheDoor)
{
    addClient(u"A"_s);
    const int status = inChild([&] {
        QString text;
        const int fault = faultOf([&] { Database second(path(), smallCatalogue()); }, &text);
        _exit((fault & 0xff) == SQLITE_BUSY && text.contains(path()) && text.contains(u"autre programme") ? 7 : 1);
    });
    EXPECT_EQ(WEXITSTATUS(status), 7);
    EXPECT_EQ(faultOf([&] { store::repairFile(path(), smallCatalogue()); }) & 0xff, SQLITE_BUSY);
    EXPECT_EQ(base->scalar(u"select nom from Clients"_s), u"A"_s);
}

TEST_F(FilesTest, WhatWasAnnouncedSurvivesAKillAndTheRestIsUndone)
{
    base.reset();
    const int status = inChild([&] {
        Database open(path(), smallCatalogue());
        open.execute(u"insert into Clients (nom) values ('seul')"_s);
        Transaction announced(open);
        open.execute(u"insert into Clients (nom) values ('ensemble')"_s);
        open.execute(u"insert into Factures (Total) values (1)"_s);
        announced.commit();
        Transaction underWay(open);
        for (int i = 0; i < 2000; ++i)
            open.execute(u"insert into Clients (nom) values (?)"_s, {u"perdu"_s.repeated(50)});
        open.execute(u"update Factures set Total = 2"_s);
        kill(getpid(), SIGKILL);
    });
    EXPECT_TRUE(WIFSIGNALED(status));
    reopen();
    EXPECT_EQ(column(u"select nom from Clients order by num"_s), (QStringList{u"seul"_s, u"ensemble"_s}));
    EXPECT_EQ(base->scalar(u"select Total from Factures"_s), 1.0);
    base.reset();
    EXPECT_EQ(files(), QStringList{u"TAL2026.mdb"_s});
    EXPECT_EQ(store::checkFile(path()), QStringList());
}

TEST_F(FilesTest, AFullDiskUndoesTheWholeActionAndSaysSo)
{
    base.reset();
    const int status = inChild([&] {
        Database open(path(), smallCatalogue());
        open.execute(u"insert into Clients (nom) values ('avant')"_s);
        signal(SIGXFSZ, SIG_IGN);
        const rlimit most{100'000, 100'000};
        setrlimit(RLIMIT_FSIZE, &most);
        QString text;
        Recordset kept = open.openTable(u"Clients"_s);
        const int fault = faultOf(
            [&] {
                Transaction action(open);
                for (int i = 0; i < 100; ++i)
                    open.execute(u"insert into Clients (nom) values (?)"_s, {u"x"_s.repeated(5000)});
                action.commit();
            },
            &text);
        const bool told = fault != 0 && text.contains(open.path());
        const bool undone = open.scalar(u"select count(*) from Clients"_s) == 1 && kept.text("nom") == u"avant";
        open.execute(u"insert into Clients (nom) values ('après')"_s);
        _exit(told && undone ? 7 : 1);
    });
    EXPECT_EQ(WEXITSTATUS(status), 7);
    reopen();
    EXPECT_EQ(column(u"select nom from Clients order by num"_s), (QStringList{u"avant"_s, u"après"_s}));
}

TEST_F(FilesTest, AFileThatIsNoLongerInItsPlaceTakesNoMoreWrites)
{
    addClient(u"A"_s);
    const QString elsewhere = path(u"ailleurs.mdb"_s);
    const auto refused = [&](const std::function<void()>& write) {
        QString text;
        EXPECT_EQ(faultOf(write, &text), SQLITE_READONLY_DBMOVED) << text.toStdString();
        EXPECT_TRUE(text.contains(path()) && text.contains(u"déplacé ou effacé")) << text.toStdString();
    };
    ASSERT_TRUE(QFile::rename(path(), elsewhere));
    refused([&] { addClient(u"B"_s); });
    refused([&] { Transaction action(*base); });
    ASSERT_TRUE(QFile::copy(elsewhere, path())); // another file has taken the place
    refused([&] { base->execute(u"delete * from Clients"_s); });
    QFile::remove(path());
    ASSERT_TRUE(QFile::rename(elsewhere, path()));
    addClient(u"C"_s);
    refused([&] {
        Transaction action(*base);
        addClient(u"D"_s);
        QFile::rename(path(), elsewhere);
        action.commit();
    });
    QFile::rename(elsewhere, path());
    reopen();
    EXPECT_EQ(column(u"select nom from Clients order by num"_s), (QStringList{u"A"_s, u"C"_s}));
}

TEST_F(FilesTest, ACopyIsWholeAndReplacesAnOlderOne)
{
    addClient(u"A"_s);
    const QString copy = path(u"Archives.TAL"_s);
    put(copy, "ancienne");
    QFile::setPermissions(copy, QFile::ReadOwner);
    put(copy + u"-journal"_s, "le journal d'une autre base");
    put(copy + u".nouveau"_s, "reste d'une copie interrompue");

    Recordset underWay = base->openTable(u"Clients"_s); // the copy is taken while rows are being read
    base->copyTo(copy);
    EXPECT_EQ(underWay.text("nom"), u"A"_s);
    EXPECT_EQ(files(), (QStringList{u"Archives.TAL"_s, u"TAL2026.mdb"_s, u"TAL2026.mdb-journal"_s}));
    {
        Database copied(copy, smallCatalogue());
        EXPECT_EQ(copied.scalar(u"select nom from Clients"_s), u"A"_s);
    }
    Transaction action(*base);
    EXPECT_NE(faultOf([&] { base->copyTo(copy); }), 0); // half an action is not worth keeping
}

TEST_F(FilesTest, AFailedCopyLeavesTheOldOne)
{
    fill(2000);
    const QString copy = path(u"copie.TAL"_s);
    put(copy, "ancienne");
    put(path(u"texte.mdb"_s), QByteArray("Cher client, ").repeated(500));
    QString text;
    EXPECT_EQ(faultOf([&] { store::copyFile(path(), path(u"nulle/part.TAL"_s)); }, &text), SQLITE_CANTOPEN);
    EXPECT_TRUE(text.contains(path(u"nulle/part.TAL"_s))) << text.toStdString();
    EXPECT_NE(faultOf([&] { store::copyFile(path(), folder.path()); }), 0);
    EXPECT_NE(faultOf([&] { store::copyFile(path(), path()); }), 0);
    EXPECT_EQ(faultOf([&] { store::copyFile(path(u"absent.mdb"_s), copy); }), SQLITE_CANTOPEN);
    EXPECT_EQ(faultOf([&] { store::copyFile(path(u"texte.mdb"_s), copy); }), Error::NotADatabase);

    const int status = inChild([&] { // the disk fills up on the way
        signal(SIGXFSZ, SIG_IGN);
        const rlimit most{20'000, 20'000};
        setrlimit(RLIMIT_FSIZE, &most);
        const int fault = faultOf([&] { store::copyFile(path(), copy); }, &text);
        _exit(fault != 0 && text.contains(copy) ? 7 : 1);
    });
    EXPECT_EQ(WEXITSTATUS(status), 7);

    damage(4096LL * (pageOf(u"L_Vente"_s) - 1), QByteArray(200, '\x5a'));
    EXPECT_EQ(faultOf([&] { store::copyFile(path(), copy); }) & 0xff, SQLITE_CORRUPT);
    EXPECT_EQ(contentOf(copy), "ancienne");
    EXPECT_EQ(files(), (QStringList{u"TAL2026.mdb"_s, u"copie.TAL"_s, u"texte.mdb"_s}));
}

TEST_F(FilesTest, CompactionDropsFreeSpaceAndKeepsTheNumbers)
{
    fill(5000);
    reopen();
    base->execute(u"Delete * from L_Vente where num > 10"_s);
    base.reset();
    const QString compact = path(u"prov.mdb"_s);
    put(compact, "reste");
    store::compactFile(path(), compact);
    EXPECT_LT(QFile(compact).size(), QFile(path()).size() / 2);
    Database open(compact, smallCatalogue());
    EXPECT_EQ(open.scalar(u"select count(*) from L_Vente"_s), 10);
    Recordset lines = open.openTable(u"L_Vente"_s);
    lines.addNew();
    EXPECT_EQ(lines.update(), 5001);
}

TEST_F(FilesTest, AWholeFileIsNotRepaired)
{
    fill(100);
    const QByteArray before = contentOf(path());
    EXPECT_EQ(store::checkFile(path()), QStringList());
    EXPECT_EQ(store::repairFile(path(), smallCatalogue()), QStringList());
    EXPECT_EQ(contentOf(path()), before);
    EXPECT_EQ(faultOf([&] { store::repairFile(path(u"absent.mdb"_s), smallCatalogue()); }), SQLITE_CANTOPEN);
    put(path(u"texte.mdb"_s), QByteArray("Cher client, ").repeated(500));
    EXPECT_EQ(faultOf([&] { store::repairFile(path(u"texte.mdb"_s), smallCatalogue()); }), Error::NotADatabase);
    EXPECT_TRUE(contentOf(path(u"texte.mdb"_s)).startsWith("Cher client"));
}

TEST_F(FilesTest, RepairSavesWhatTheDamageLeft)
{
    constexpr int lines = 12'000;
    fill(lines);
    const QByteArray sound = contentOf(path());
    const qint64 size = sound.size();
    const qint64 root = 4096LL * (pageOf(u"L_Vente"_s) - 1);
    const qint64 index = 4096LL * (pageOf(u"ix_L_Vente_Num_Facture_num_client"_s) - 1);
    struct Case
    {
        const char* what;
        std::function<void()> harm;
        qint64 atLeast; ///< lines saved
        bool lossless;
    };
    const Case table[] = {
        {"200 bytes in the middle", [&] { damage(size / 2 + 1000, QByteArray(200, '\x5a')); }, lines - 10, false},
        {"a page of zeros in the middle", [&] { damage(size / 2 / 4096 * 4096, QByteArray(4096, 0)); }, lines - 300,
         false},
        {"the root of the lines", [&] { damage(root, QByteArray(4096, '\xff')); }, lines, false},
        {"the root of an index", [&] { damage(index, QByteArray(4096, 0)); }, lines, true},
        {"the file's first page", [&] { damage(0, QByteArray(4096, 0)); }, lines, true},
        {"cut short by a tenth", [&] { QFile::resize(path(), size / 10 * 9); }, lines * 8 / 10, false},
        {"cut within a page", [&] { QFile::resize(path(), size / 2 + 77); }, lines / 4, false},
    };
    for (const Case& each : table) {
        SCOPED_TRACE(each.what);
        put(path(), sound);
        each.harm();
        ASSERT_FALSE(store::checkFile(path()).isEmpty());
        const QStringList lost = store::repairFile(path(), smallCatalogue());
        EXPECT_EQ(store::checkFile(path()), QStringList());
        EXPECT_EQ(lost.isEmpty(), each.lossless) << lost.join(u'\n').toStdString();
        EXPECT_EQ(QFile::exists(path(u"TAL2026.mdb.endommage"_s)), !each.lossless);
        QFile::remove(path(u"TAL2026.mdb.endommage"_s));

        Database saved(path(), smallCatalogue());
        EXPECT_GE(saved.scalar(u"select count(*) from L_Vente"_s).toLongLong(), each.atLeast)
            << lost.join(u'\n').toStdString();
        EXPECT_EQ(saved.scalar(u"select count(*) from L_Vente where Total <> num + 0.5 or Date <> #02/01/2026#"_s), 0);
        Recordset rows = saved.openTable(u"L_Vente"_s);
        rows.addNew();
        EXPECT_GE(rows.update(), saved.scalar(u"select max(num) from L_Vente"_s).toLongLong());
    }
}

TEST_F(FilesTest, RepairKeepsLongTextsAndTheCounters)
{
    fill(10);
    reopen();
    base->execute(u"Delete * from L_Vente where num = 10"_s);
    base.reset();
    damage(4096LL * (pageOf(u"ix_Factures_Date"_s) - 1), QByteArray(4096, 0));
    EXPECT_EQ(store::repairFile(path(), smallCatalogue()), QStringList());
    reopen();
    EXPECT_EQ(base->scalar(u"select prenom from Clients where num = 25"_s), u"p"_s.repeated(9000));
    EXPECT_EQ(base->scalar(u"select count(*) from Clients"_s), 50);
    Recordset lines = base->openTable(u"L_Vente"_s);
    lines.addNew();
    EXPECT_EQ(lines.update(), 11);
}

TEST_F(FilesTest, NoDamageWhateverMakesARepairFail)
{
    fill(300);
    const QByteArray sound = contentOf(path());
    quint32 seed = 7;
    const auto random = [&seed](qsizetype below) {
        seed = seed * 1664525 + 1013904223;
        return qsizetype((seed >> 8) % quint32(below));
    };
    int repaired = 0;
    for (int round = 0; round < 60; ++round) {
        QByteArray harmed = sound;
        for (qsizetype bytes = 1 + random(40); bytes > 0; --bytes)
            harmed[random(harmed.size())] = char(random(256));
        put(path(), harmed);
        try {
            store::repairFile(path(), smallCatalogue());
            EXPECT_EQ(store::checkFile(path()), QStringList()) << round;
            Database(path(), smallCatalogue()).scalar(u"select count(*) from L_Vente"_s);
            ++repaired;
        } catch (const Error& error) { // the mark or the version is hit: another program's, and left as it is
            EXPECT_TRUE(error.number() == Error::ForeignFile || error.number() == Error::OtherVersion)
                << error.text().toStdString();
            EXPECT_EQ(contentOf(path()), harmed);
        }
    }
    EXPECT_GT(repaired, 50);
}

TEST_F(FilesTest, BytesAreWrittenWholeOrNotAtAll)
{
    const QString file = path(u"A12.INI"_s);
    store::writeFileSafely(file, QByteArray("\xea\x07\0\0", 4));
    store::writeFileSafely(file, QByteArray("\xea\x07\1\0", 4));
    EXPECT_EQ(contentOf(file), QByteArray("\xea\x07\1\0", 4));
    QString text;
    EXPECT_NE(faultOf([&] { store::writeFileSafely(path(u"nulle/part"_s), "x"); }, &text), 0);
    EXPECT_TRUE(text.contains(path(u"nulle/part"_s)));
    base.reset();
    EXPECT_EQ(files(), (QStringList{u"A12.INI"_s, u"TAL2026.mdb"_s}));
}

} // namespace
