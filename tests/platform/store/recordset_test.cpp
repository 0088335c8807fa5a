#include "store_test.h"

#include <limits>

using namespace Qt::StringLiterals;
using store::Error;
using store::Recordset;

namespace {

class RecordsetTest : public StoreTest
{
protected:
    RecordsetTest()
    {
        for (const QString& name : {u"Zidane"_s, u"Émir"_s, u"abdi"_s, u"Dib"_s})
            addClient(name);
    }

    Recordset byName() { return base->openRecordset(u"select * from Clients order by nom"_s); }

    static QStringList rest(Recordset& rows)
    {
        QStringList names;
        for (; !rows.eof(); rows.moveNext())
            names += rows.text("nom");
        return names;
    }
};

TEST_F(RecordsetTest, StandsOnTheFirstRowAndStreamsInOrder)
{
    Recordset rows = byName();
    EXPECT_EQ(rows.text("NOM"), u"abdi"_s);
    EXPECT_EQ(rest(rows), (QStringList{u"abdi"_s, u"Dib"_s, u"Émir"_s, u"Zidane"_s}));
    EXPECT_FALSE(rows.moveNext());
    EXPECT_EQ(faultOf([&] { rows.text("nom"); }), Error::NoCurrentRow);
    EXPECT_TRUE(rows.moveFirst());
    EXPECT_EQ(faultOf([&] { rows.text("absent"); }), Error::UnknownField);
    EXPECT_EQ(faultOf([&] { rows.text(6); }), Error::UnknownField);
    EXPECT_EQ(rows.recordCount(), 4);
}

TEST_F(RecordsetTest, AnEmptySetHasNoCurrentRow)
{
    Recordset rows = base->openRecordset(u"select * from Clients where num > 99"_s);
    EXPECT_TRUE(rows.eof());
    EXPECT_FALSE(rows.moveFirst());
    EXPECT_FALSE(rows.moveLast());
    EXPECT_FALSE(rows.moveNext());
    EXPECT_EQ(rows.recordCount(), 0);
    EXPECT_EQ(faultOf([&] { rows.edit(); }), Error::NoCurrentRow);
    EXPECT_EQ(faultOf([&] { rows.remove(); }), Error::NoCurrentRow);
    EXPECT_EQ(faultOf([&] { rows.num(); }), Error::NoCurrentRow);
    EXPECT_FALSE(Recordset().isOpen());
}

TEST_F(RecordsetTest, AnAdditionTakesTheDefaultsAndLeavesTheCurrentRow)
{
    Recordset lines = base->openTable(u"L_Vente"_s);
    lines.addNew();
    EXPECT_EQ(lines.integer("Num_Facture"), -1);
    lines.set("Total", 12.5);
    EXPECT_EQ(lines.real("Total"), 12.5); // what is being written can be read
    EXPECT_EQ(lines.update(), 1);
    EXPECT_TRUE(lines.eof());
    ASSERT_TRUE(lines.moveLast());
    EXPECT_EQ(lines.integer("num_facture"), -1);
    EXPECT_TRUE(lines.isNull("Date"));

    Recordset invoices = base->openTable(u"Factures"_s);
    invoices.addNew();
    invoices.set(2, u"05/01/2026"_s); // by position, the counter standing second
    const qint64 num = invoices.update();
    ASSERT_TRUE(invoices.seek(num));
    EXPECT_EQ(invoices.text("Date"), u"05/01/2026"_s);
    EXPECT_FALSE(invoices.flag("Flag_R"));
    EXPECT_EQ(invoices.integer(1), num);

    Recordset parameters = base->openTable(u"Permn"_s); // a table without `num`
    parameters.addNew();
    parameters.set("Index", 3);
    const qint64 row = parameters.update();
    ASSERT_TRUE(parameters.seek(row));
    EXPECT_EQ(parameters.real("Commission"), 15);
    EXPECT_EQ(parameters.text("compte"), u"l'agence"_s);
}

TEST_F(RecordsetTest, TheLastRowAfterAnAdditionIsTheRowAdded)
{
    Recordset rows = byName();
    rows.addNew();
    rows.set("nom", u"Aït"_s);
    const qint64 added = rows.update();
    EXPECT_EQ(rows.text("nom"), u"abdi"_s);
    ASSERT_TRUE(rows.moveLast());
    EXPECT_EQ(rows.num(), added);
    EXPECT_FALSE(rows.moveNext());
    rows.moveFirst();
    ASSERT_TRUE(rows.moveLast());
    EXPECT_EQ(rows.num(), added);
    rows.remove();
    ASSERT_TRUE(rows.moveLast()); // the row added is gone
    EXPECT_EQ(rows.text("nom"), u"Zidane"_s);

    rows.addNew();
    rows.set("nom", u"Aït"_s);
    rows.update();
    ASSERT_TRUE(rows.requery());
    EXPECT_EQ(rest(rows), (QStringList{u"abdi"_s, u"Aït"_s, u"Dib"_s, u"Émir"_s, u"Zidane"_s}));
    ASSERT_TRUE(rows.moveLast()); // run again, the query has its own order
    EXPECT_EQ(rows.text("nom"), u"Zidane"_s);
}

TEST_F(RecordsetTest, AfterAnEditTheRowStaysCurrentWithItsNewValues)
{
    Recordset rows = byName();
    rows.edit();
    rows.set("nom", u"Yahia"_s);
    rows.set("Solde", 10.25);
    EXPECT_EQ(rows.text("nom"), u"Yahia"_s);
    EXPECT_EQ(rows.update(), 3);
    EXPECT_EQ(rows.text("nom"), u"Yahia"_s);
    EXPECT_EQ(rows.real("Solde"), 10.25);
    ASSERT_TRUE(rows.moveNext()); // the rows to come are those of the order in which the query ran
    EXPECT_EQ(rest(rows), (QStringList{u"Dib"_s, u"Émir"_s, u"Zidane"_s}));

    rows.moveFirst();
    rows.edit();
    rows.set("nom", u"perdu"_s);
    rows.cancelUpdate();
    EXPECT_EQ(rows.text("nom"), u"Dib"_s);
    rows.edit();
    rows.set("nom", u"perdu"_s);
    rows.moveFirst(); // a move gives up what was set
    EXPECT_EQ(rows.text("nom"), u"Dib"_s);
    EXPECT_EQ(faultOf([&] { rows.update(); }), Error::NoCurrentRow);
    EXPECT_EQ(faultOf([&] { rows.set("nom", u"x"_s); }), Error::NoCurrentRow);
}

TEST_F(RecordsetTest, FindFirstKeepsTheRowWhenNothingIsFound)
{
    Recordset rows = byName();
    EXPECT_FALSE(rows.findFirst(u"num = 99"_s));
    EXPECT_EQ(rows.text("nom"), u"abdi"_s);
    ASSERT_TRUE(rows.findFirst(u"Num = 2"_s));
    EXPECT_EQ(rows.text("nom"), u"Émir"_s);
    ASSERT_TRUE(rows.moveNext());
    EXPECT_EQ(rows.text("nom"), u"Zidane"_s);
    ASSERT_TRUE(
        rows.findFirst(u"nom like ? and ordre > 1"_s, {u"*i*"_s})); // the first of several, in the order of names
    EXPECT_EQ(rows.text("nom"), u"abdi"_s);
    EXPECT_FALSE(rows.seek(99));
    EXPECT_EQ(rows.text("nom"), u"abdi"_s);
    ASSERT_TRUE(rows.seek(4));
    EXPECT_EQ(rest(rows), (QStringList{u"Dib"_s, u"Émir"_s, u"Zidane"_s}));

    Recordset some = base->openRecordset(u"select * from Clients where ordre >= ? order by num"_s, {3});
    EXPECT_FALSE(some.findFirst(u"num = 1"_s)); // it is not one of these rows
    EXPECT_FALSE(some.seek(1));
    EXPECT_EQ(some.num(), 3);
    EXPECT_EQ(some.recordCount(), 2);
    ASSERT_TRUE(some.moveLast());
    EXPECT_EQ(some.num(), 4);

    Recordset table = base->openTable(u"clients"_s);
    ASSERT_TRUE(table.seek(3));
    ASSERT_TRUE(table.moveNext());
    EXPECT_EQ(table.num(), 4);
    EXPECT_FALSE(table.moveNext());
    EXPECT_TRUE(table.eof());
}

TEST_F(RecordsetTest, FindFirstSearchesTheRowsOfAJoinToo)
{
    addInvoice(2, u"01/02/2026"_s, 10);
    addInvoice(4, u"02/02/2026"_s, 20);
    addInvoice(1, u"03/02/2026"_s, 30);
    Recordset rows = base->openRecordset(u"select Factures!num as Facture, Date, nom from Factures, Clients "
                                         "where num_client = Clients!num and Total > ? order by nom"_s,
                                         {5});
    ASSERT_TRUE(rows.findFirst(u"nom = 'EMIR' and facture < 3"_s));
    EXPECT_EQ(rows.integer("Facture"), 1);
    ASSERT_TRUE(rows.moveNext());
    EXPECT_EQ(rows.text("nom"), u"Zidane"_s);
    EXPECT_FALSE(rows.findFirst(u"Facture = 99"_s));
    EXPECT_EQ(rows.text("nom"), u"Zidane"_s);
    EXPECT_EQ(rows.recordCount(), 3);
    ASSERT_TRUE(rows.moveFirst());
    ASSERT_TRUE(rows.moveLast());
    EXPECT_EQ(rows.text("nom"), u"Zidane"_s);
    EXPECT_EQ(rows.text("Date"), u"03/02/2026"_s);
    EXPECT_FALSE(rows.moveNext());
    EXPECT_EQ(faultOf([&] { rows.findFirst(u"absent = 1"_s); }), Error::BadQuery);
    EXPECT_EQ(faultOf([&] { rows.addNew(); }), Error::BadQuery);
    EXPECT_EQ(faultOf([&] { rows.seek(1); }), Error::BadQuery);
}

TEST_F(RecordsetTest, ADeletedRowIsGoneUntilTheNextMove)
{
    for (const bool found : {false, true}) { // streamed to, or found out of turn
        SCOPED_TRACE(found);
        Recordset rows = byName();
        if (found)
            ASSERT_TRUE(rows.findFirst(u"nom = 'dib'"_s));
        else
            ASSERT_TRUE(rows.moveNext());
        rows.remove();
        EXPECT_FALSE(rows.eof());
        EXPECT_EQ(faultOf([&] { rows.text("nom"); }), Error::NoCurrentRow);
        EXPECT_EQ(faultOf([&] { rows.remove(); }), Error::NoCurrentRow);
        ASSERT_TRUE(rows.moveNext());
        EXPECT_EQ(rest(rows), (QStringList{u"Émir"_s, u"Zidane"_s}));
        addClient(u"Dib"_s);
    }

    Recordset table = base->openTable(u"Clients"_s);
    while (!table.eof()) { // a whole table, emptied row by row
        table.remove();
        table.moveNext();
    }
    EXPECT_EQ(table.recordCount(), 0);
    EXPECT_EQ(addClient(u"Neuf"_s), 7); // a number once given is not given again
}

TEST_F(RecordsetTest, WritesMadeMeanwhileNeitherRepeatRowsNorPassThemOver)
{
    store::Transaction all(*base);
    for (int i = 0; i < 40; ++i)
        addInvoice(1 + i % 4, u"%1/03/2026"_s.arg(10 + i % 20), i);
    all.commit();

    int visited = 0;
    for (Recordset rows = base->openRecordset(u"select * from Factures where Flag_R = False order by Date, num"_s);
         !rows.eof(); rows.moveNext(), ++visited) {
        rows.edit(); // each leaves both the condition and its place in the order
        rows.set("Flag_R", true);
        rows.set("Date", u"31/12/2026"_s);
        rows.update();
    }
    EXPECT_EQ(visited, 40);

    QStringList clients;
    for (Recordset rows = base->openRecordset(u"select distinct num_client from Factures where Flag_R = True"_s);
         !rows.eof(); rows.moveNext()) {
        clients += rows.text(0);
        base->execute(u"update Factures set Flag_R = False where num_client = ?"_s, {rows.value(0)});
    }
    EXPECT_EQ(clients, (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));

    // A row shows what was written to it since the query ran; a row deleted since is passed over.
    Recordset rows = base->openRecordset(u"select * from Factures where num_client = 1 order by Total"_s);
    base->execute(u"update Factures set Total = Total + 1000 where num_client = 1"_s);
    EXPECT_EQ(rows.real("Total"), 1000);
    base->execute(u"delete from Factures where num = 5"_s);
    ASSERT_TRUE(rows.moveNext());
    EXPECT_EQ(rows.num(), 9);
    EXPECT_EQ(rows.real("Total"), 1008);
    base->execute(u"delete from Factures where num = 9"_s);
    EXPECT_EQ(faultOf([&] { rows.real("Total"); }), Error::NoCurrentRow);
    EXPECT_TRUE(rows.moveNext());
}

TEST_F(RecordsetTest, ValuesKeepTheirFieldsManner)
{
    Recordset rows = base->openTable(u"Factures"_s);
    rows.addNew();
    rows.set("Total", u"12.50"_s); // a number in a text
    rows.set("num_client", 2.5);   // rounds half to even
    rows.set("Date", QString());   // no date yet
    rows.set("Ref", 1e6);
    rows.set("Flag_R", -1);
    rows.update();
    rows.moveLast();
    EXPECT_EQ(rows.text("Total"), u"12.5"_s);
    EXPECT_EQ(rows.integer("num_client"), 2);
    EXPECT_TRUE(rows.isNull("Date"));
    EXPECT_EQ(rows.text("Date"), QString());
    EXPECT_FALSE(rows.value("Date").isValid());
    EXPECT_EQ(rows.text("Ref"), u"1000000"_s);
    EXPECT_EQ(rows.real("ref"), 1e6);
    EXPECT_EQ(rows.value("Flag_R"), QVariant(true));
    EXPECT_EQ(base->scalar(u"select Flag_R from Factures where Flag_R = True"_s), QVariant(true));

    const double nan = std::numeric_limits<double>::quiet_NaN();
    rows.edit();
    const std::pair<const char*, QVariant> refused[] = {{"Total", nan},
                                                        {"Total", std::numeric_limits<double>::infinity()},
                                                        {"Total", u"douze"_s},
                                                        {"Date", u"1/1/2026"_s},
                                                        {"num_client", u""_s},
                                                        {"Flag_R", u"oui"_s},
                                                        {"num", 77}};
    for (const auto& pair : refused)
        EXPECT_EQ(faultOf([&] { rows.set(pair.first, pair.second); }), Error::BadValue) << pair.first;
    rows.set("Total", 0.1 + 0.2);
    rows.set("Flag_R", QVariant());
    rows.update();
    EXPECT_EQ(rows.text("Total"), u"0.30000000000000004"_s);
    EXPECT_FALSE(rows.isNull("Flag_R"));
    EXPECT_EQ(faultOf([&] { base->scalar(u"select num from Factures where Total = ?"_s, {nan}); }), Error::BadValue);

    Recordset parameters = base->openTable(u"Permn"_s);
    parameters.addNew();
    parameters.set("Commission", 19.6f); // a single keeps the decimals that it shows
    parameters.update();
    parameters.moveLast();
    EXPECT_EQ(parameters.text("Commission"), u"19.6"_s);
}

TEST_F(RecordsetTest, NamesBuiltAtRunTimeFindTheirField)
{
    Recordset rows = base->openTable(u"Clients"_s);
    const QByteArray name = "no" + QByteArray("M");
    char buffer[16] = "ordre";
    const char* const town = "VILLE";
    EXPECT_EQ(rows.text(name), u"Zidane"_s);
    EXPECT_EQ(rows.integer(buffer), 1);
    EXPECT_EQ(rows.text(town), QString());
    EXPECT_EQ(rows.fieldName(2), u"nom"_s);
    EXPECT_EQ(rows.fieldCount(), 6);
}

TEST_F(RecordsetTest, ARecordsetLeftOpenDoesNotOutliveItsDatabase)
{
    Recordset rows = byName();
    Recordset moved = std::move(rows);
    EXPECT_EQ(moved.text("nom"), u"abdi"_s);
    reopen(); // would be refused by the lock if the first were still open
    EXPECT_FALSE(moved.isOpen());
    EXPECT_EQ(faultOf([&] { moved.text("nom"); }), Error::Interrupted);
    EXPECT_EQ(faultOf([&] { moved.moveNext(); }), Error::Interrupted);
    moved.close();
}

} // namespace
