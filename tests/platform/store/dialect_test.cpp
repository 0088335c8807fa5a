#include "store_test.h"

using namespace Qt::StringLiterals;
using store::Error;

namespace {

class DialectTest : public StoreTest
{
protected:
    DialectTest()
    {
        const qint64 obrien = addClient(u"O'Brien"_s, u"Sean"_s, u"Bouzedjar"_s, -1500);
        const qint64 emir = addClient(u"Émir"_s, u"Ali"_s, u"Béni-Saf"_s, 0);
        addClient(u"emir"_s, u"Zoubir"_s, u"Ghazaouet"_s, 25.5);
        addClient(u"Étoile"_s, u"L'"_s, {}, 12);
        addInvoice(obrien, u"15/11/2026"_s, 100, true);
        addInvoice(emir, u"16/11/2026"_s, 250.75);
        addInvoice(obrien, u"02/12/2026"_s, 50);
        base->execute(u"insert into L_Vente (Date, num_client, Casiers, Total) values (#11/15/2026#, 1, 4, 100)"_s);
        base->execute(u"insert into L_Vente (Date, num_client, Casiers, Total) values (?, ?, ?, ?)"_s,
                      {u"16/11/2026"_s, 2, 6, 250.75});
    }
};

struct Asked
{
    const char16_t* query;
    QVariantList values;
    QStringList found; ///< the first column of each row
};

TEST_F(DialectTest, FindsTheRowsThatAQueryOfTheProgramAsksFor)
{
    const Asked table[] = {
        // dates
        {u"select num from Factures where date =#11/15/2026#", {}, {u"1"_s}},
        {u"select num from Factures where date >=#11/16/2026# and date <= #12/2/2026# order by num",
         {},
         {u"2"_s, u"3"_s}},
        {u"select num from Factures where Date = ?", {u"02/12/2026"_s}, {u"3"_s}},
        {u"select num from Factures where Date between ? and ? and num > ?",
         {u"01/11/2026"_s, u"30/11/2026"_s, 1},
         {u"2"_s}},
        {u"select num from Factures where Date in (?, #12/02/2026#) order by num",
         {QDate(2026, 11, 15)},
         {u"1"_s, u"3"_s}},
        {u"select Date from Factures order by Date desc", {}, {u"02/12/2026"_s, u"16/11/2026"_s, u"15/11/2026"_s}},
        {u"select max(Date) as D from factures", {}, {u"02/12/2026"_s}},
        // flags, signs, blanks, names in any case, brackets
        {u"select num from FACTURES where flag_r = TRUE", {}, {u"1"_s}},
        {u"select num from Factures where Flag_R = False and total > 60.5", {}, {u"2"_s}},
        {u"SELECT  num  FROM clients WHERE  solde=-1500 ;", {}, {u"1"_s}},
        {u"select num from Clients where Solde <> 0 and Solde - 12 <> 0 order by num", {}, {u"1"_s, u"3"_s}},
        {u"select [num] from [Clients] where [Solde] > - 5 order by [ordre] desc", {}, {u"4"_s, u"3"_s, u"2"_s}},
        {u"Select Distinct num_client From L_Vente where Num_Facture = -1", {}, {u"1"_s, u"2"_s}},
        // sums
        {u"select sum(Casiers) as S1,sum(Total) as S2 from L_Vente  where Num_Facture = -1", {}, {u"10"_s}},
        {u"select sum(Total) as S1 from L_Vente where num_client = 99", {}, {QString()}},
        {u"select count(*) as n from Clients where ville is null or ville = ''", {}, {u"1"_s}},
        {u"select num_client, sum(Total) as S1 from Factures group by num_client having sum(Total) > 100 order by S1 "
         u"desc",
         {},
         {u"2"_s, u"1"_s}},
        // texts
        {u"select num from Clients where nom = 'EMIR' order by num", {}, {u"2"_s, u"3"_s}},
        {u"select num from Clients where nom = 'o''brien'", {}, {u"1"_s}},
        {u"select num from Clients where nom = ?", {u"O'Brien"_s}, {u"1"_s}},
        {u"select num from Clients where nom <> \"emir\" order by num", {}, {u"1"_s, u"4"_s}},
        {u"select num from Clients where nom like 'e*' order by num", {}, {u"2"_s, u"3"_s, u"4"_s}},
        {u"select num from Clients where nom not like 'e*'", {}, {u"1"_s}},
        {u"select num from Clients where ville like ?", {u"*saf"_s}, {u"2"_s}},
        {u"select nom & ' ' & prenom as entier from Clients where num = 1", {}, {u"O'Brien Sean"_s}},
        {u"select nom from Clients order by nom,prenom", {}, {u"Émir"_s, u"emir"_s, u"Étoile"_s, u"O'Brien"_s}},
        {u"select distinct nom from Clients order by nom", {}, {u"Émir"_s, u"Étoile"_s, u"O'Brien"_s}},
        {u"select max(nom) from Clients where nom < 'o'", {}, {u"Étoile"_s}},
        // several tables
        {u"select Factures!num as Num, Factures!ordre as ordre, date, Total, Nom from Factures, Clients where "
         u"num_client = Clients!num and date =#11/16/2026# order by nom, prenom",
         {},
         {u"2"_s}},
        {u"select Factures.num as Num from Factures, Clients where num_client = Clients!num order by Num desc",
         {},
         {u"3"_s, u"2"_s, u"1"_s}},
        {u"select F.num from Factures as F inner join Clients c on F.num_client = c.num where c.nom = 'emir'",
         {},
         {u"2"_s}},
        {u"select Clients.num from Clients left join Factures on Factures.num_client = Clients.num where Factures.num "
         u"is null",
         {},
         {u"3"_s, u"4"_s}},
        {u"select num from Clients where num in (select num_client from Factures where Total > 60) order by nom desc",
         {},
         {u"1"_s, u"2"_s}},
        {u"select num from Clients c where not exists (select num from Factures where num_client = c.num)",
         {},
         {u"3"_s, u"4"_s}},
        {u"select * from Clients c where c.nom = 'etoile' order by c.num", {}, {u"4"_s}},
    };
    for (const Asked& asked : table) {
        const QString query = QString::fromUtf16(asked.query);
        EXPECT_EQ(column(query, asked.values), asked.found) << query.toStdString();
    }
}

TEST_F(DialectTest, ActionsTellHowManyRowsTheyTouched)
{
    EXPECT_EQ(base->execute(u"Update  Factures  set Flag_R = False where num_client = 1"_s), 2);
    EXPECT_EQ(base->execute(u"Update Clients set Solde = 0, ville = 'Oran' where nom = 'émir'"_s), 2);
    EXPECT_EQ(base->execute(u"Update Factures set Date = ? where num = ?"_s, {u"29/02/2100"_s, 3}), 1);
    EXPECT_EQ(base->scalar(u"select Date from Factures where num = 3"_s), u"29/02/2100"_s);
    EXPECT_EQ(base->execute(u"Delete * from L_Vente where Num_Facture = -1 and Num_Client =  2"_s), 1);
    EXPECT_EQ(base->execute(u"insert into L_Vente (num_client, Total) select num_client, Total from Factures"_s), 3);
    EXPECT_EQ(base->execute(u"Delete * from l_vente"_s), 4);
    EXPECT_EQ(base->execute(u"Delete from Factures where num = 99"_s), 0);
}

TEST_F(DialectTest, ColumnsBearTheirOwnNameOrTheirField)
{
    const auto rows = base->openRecordset(
        u"select Factures!num as Facture, date, Clients.*, sum(Total) as S1 from Factures, Clients where num_client = Clients!num"_s);
    QStringList names;
    for (int i = 0; i < rows.fieldCount(); ++i)
        names += rows.fieldName(i);
    EXPECT_EQ(names, (QStringList{u"Facture"_s, u"Date"_s, u"num"_s, u"ordre"_s, u"nom"_s, u"prenom"_s, u"ville"_s,
                                  u"Solde"_s, u"S1"_s}));
    EXPECT_EQ(rows.real("s1"), 400.75);
    EXPECT_EQ(rows.value("facture").typeId(), QMetaType::LongLong);
}

TEST_F(DialectTest, ABadQueryIsToldByItsText)
{
    const char16_t* const table[] = {
        u"",
        u"select",
        u"select distinct",
        u"select num from",
        u"delete",
        u"delete *",
        u"delete from",
        u"update",
        u"update Clients set",
        u"insert into",
        u"insert into Clients values",
        u"selec num from Clients",
        u"select num from Nulle",
        u"select absent from Clients",
        u"select num from Factures, Clients where num_client = num",
        u"select num from Clients where num = ",
        u"select num from Clients where nom = 'ouvert",
        u"select num from Clients where (num = 1",
        u"select num from Clients where num = 1)",
        u"select num from Clients order by 1",
        u"select num from Clients order num",
        u"select num from Clients where num = ?",
        u"select num, from Clients",
        u"select nulle(num) from Clients",
        u"select num from Factures where Date = #15/11#",
        u"select num from Factures where Total = 1.2.3",
        u"select num where num = 1 from Clients",
        u"delete from Clients; delete from Factures",
        u"update Clients set nom where num = 1",
        u"update Clients set absent = 1",
        u"insert into Clients (nom, ville) values ('x')",
        u"create table t (a)",
    };
    for (const char16_t* each : table) {
        const QString query = QString::fromUtf16(each);
        QString text;
        EXPECT_EQ(faultOf([&] { base->openRecordset(query); }, &text), Error::BadQuery) << query.toStdString();
        EXPECT_TRUE(text.contains(query.simplified())) << text.toStdString();
    }
    EXPECT_EQ(faultOf([&] { base->execute(u"select num from Clients"_s); }), Error::BadQuery);
    EXPECT_EQ(faultOf([&] { base->openRecordset(u"Delete * from Clients"_s); }), Error::BadQuery);
    EXPECT_EQ(faultOf([&] { base->openRecordset(u"select * from Clients"_s, {1}); }), Error::BadQuery);
    EXPECT_EQ(base->scalar(u"select count(*) from Clients"_s), 4);
}

TEST_F(DialectTest, WhatAPersonTypesIsNeverPartOfTheQuery)
{
    for (const QString& typed :
         {u"'; delete from Clients --"_s, u"\" or 1=1"_s, u"a*b?c#d[e]f"_s, u"100%"_s, u"L'"_s}) {
        const qint64 client = addClient(typed);
        EXPECT_EQ(base->scalar(u"select num from Clients where nom = ? and num = ?"_s, {typed, client}), client);
        EXPECT_EQ(base->scalar(u"select num from Clients where nom like ?"_s, {store::likeLiteral(typed)}), client)
            << typed.toStdString();
    }
}

TEST_F(DialectTest, QueriesThatDifferByAConstantShareOneStatement)
{
    base->scalar(u"select nom from Clients where num = 1 and Solde > -5.5 and ville = 'x'"_s);
    const int before = base->preparedStatements();
    EXPECT_EQ(base->scalar(u"SELECT nom  from clients where num = 4 and solde > 10 and ville = 'yy'"_s), QVariant());
    EXPECT_EQ(base->preparedStatements(), before);

    // One that is in use is not handed out again: each loop keeps its own rows.
    auto outer = base->openRecordset(u"select num, nom from Clients where num > 0"_s);
    auto inner = base->openRecordset(u"select num, nom from Clients where num > 2"_s);
    EXPECT_EQ(base->preparedStatements(), before + 2);
    EXPECT_EQ(outer.integer("num"), 1);
    EXPECT_EQ(inner.integer("num"), 3);
    EXPECT_TRUE(outer.moveNext());
    EXPECT_EQ(outer.integer("num"), 2);
}

TEST_F(DialectTest, LookupsUseTheirIndex)
{
    const auto uses = [this](const QString& query, const QString& step) {
        return base->plan(query).join(u'\n').contains(step);
    };
    EXPECT_TRUE(uses(u"select * from L_Vente where Num_Facture = -1 and num_client = 1"_s,
                     u"USING INDEX ix_L_Vente_Num_Facture_num_client (Num_Facture=? AND num_client=?)"_s));
    EXPECT_TRUE(
        uses(u"select * from Factures where Date = #11/15/2026# order by num"_s, u"USING INDEX ix_Factures_Date"_s));
    EXPECT_TRUE(uses(u"select * from Clients where num = 3"_s, u"USING INTEGER PRIMARY KEY"_s));
    EXPECT_FALSE(uses(u"select * from L_Vente order by num"_s, u"TEMP B-TREE"_s));
}

} // namespace
