#include "store_test.h"

using namespace Qt::StringLiterals;
using store::Error;
using store::Recordset;
using store::Transaction;

namespace {

class TransactionTest : public StoreTest
{
protected:
    QStringList names() { return column(u"select nom from Clients order by num"_s); }
};

TEST_F(TransactionTest, StandsWholeAfterItsCommitAndNotAtAllWithout)
{
    {
        Transaction kept(*base);
        addClient(u"A"_s);
        addClient(u"B"_s);
        kept.commit();
    }
    {
        Transaction dropped(*base);
        addClient(u"C"_s);
        EXPECT_EQ(names().size(), 3);
    }
    EXPECT_EQ(names(), (QStringList{u"A"_s, u"B"_s}));
    reopen();
    EXPECT_EQ(names(), (QStringList{u"A"_s, u"B"_s}));
}

TEST_F(TransactionTest, OneInsideAnotherIsUndoneAloneAndKeptOnlyWithTheOuter)
{
    {
        Transaction outer(*base);
        addClient(u"A"_s);
        {
            Transaction inner(*base);
            addClient(u"B"_s);
            {
                Transaction innermost(*base);
                addClient(u"C"_s);
                innermost.commit();
            }
        }
        {
            Transaction inner(*base);
            addClient(u"D"_s);
            inner.commit();
        }
        outer.commit();
    }
    EXPECT_EQ(names(), (QStringList{u"A"_s, u"D"_s}));
    {
        Transaction outer(*base);
        Transaction inner(*base);
        addClient(u"E"_s);
        inner.commit();
    }
    EXPECT_EQ(names(), (QStringList{u"A"_s, u"D"_s}));
}

TEST_F(TransactionTest, RecordsetsGoOnReadingAcrossACommitAndAnUndoing)
{
    Transaction all(*base);
    for (int i = 0; i < 500; ++i)
        addClient(u"Client %1"_s.arg(1000 + i), u"x"_s.repeated(50));
    all.commit();
    for (const bool kept : {true, false}) {
        SCOPED_TRACE(kept);
        Recordset table = base->openTable(u"Clients"_s);
        Recordset sorted = base->openRecordset(u"select * from Clients order by nom desc"_s);
        Recordset shown = base->openRecordset(u"select nom as n from Clients where ordre > 0 order by nom"_s);
        {
            Transaction action(*base);
            EXPECT_TRUE(table.moveNext() && sorted.moveNext() && shown.moveNext());
            base->execute(u"update Clients set prenom = 'y' where num > 3"_s);
            const qint64 added = addClient(u"Zzz"_s);
            ASSERT_TRUE(table.seek(added));
            if (kept) {
                base->execute(u"delete from Clients where num = ?"_s, {added});
                ASSERT_TRUE(table.seek(2));
                action.commit();
            }
        }
        if (!kept) {
            EXPECT_EQ(faultOf([&] { table.text("nom"); }), Error::NoCurrentRow); // it was never there
            ASSERT_TRUE(table.moveFirst() && table.moveNext());
        }
        int rows = 1;
        for (; !table.eof() && !sorted.eof() && !shown.eof(); ++rows) {
            ASSERT_EQ(table.text("nom"), u"Client %1"_s.arg(1000 + rows));
            ASSERT_EQ(table.text("prenom"), rows > 2 && kept ? u"y"_s : u"x"_s.repeated(50)) << rows;
            ASSERT_EQ(sorted.text("nom"), u"Client %1"_s.arg(1000 + 499 - rows));
            ASSERT_EQ(shown.text("n"), u"Client %1"_s.arg(1000 + rows));
            table.moveNext(), sorted.moveNext(), shown.moveNext();
        }
        EXPECT_EQ(rows, 500);
        EXPECT_TRUE(table.eof() && sorted.eof() && shown.eof());
        base->execute(u"update Clients set prenom = ?"_s, {u"x"_s.repeated(50)});
    }
}

TEST_F(TransactionTest, ARefusedValueUndoesOnlyItsOwnStatement)
{
    Transaction action(*base);
    addClient(u"A"_s);
    QString text;
    EXPECT_EQ(faultOf([&] { base->execute(u"insert into Factures (Flag_R) values (2)"_s); }, &text) & 0xff,
              19); // SQLITE_CONSTRAINT
    EXPECT_TRUE(text.contains(path())) << text.toStdString();
    action.commit();
    EXPECT_EQ(names(), QStringList{u"A"_s});
}

} // namespace
