#include "store_test.h"

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

} // namespace
