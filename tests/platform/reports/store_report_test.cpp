#include "platform/reports/error.h"
#include "platform/reports/layout.h"
#include "platform/reports/store_source.h"
#include "platform/store/recordset.h"
#include "tests/platform/reports/page_text.h"
#include "tests/support/print.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace reports;

namespace {

const store::Catalogue& catalogue()
{
    using enum store::FieldType;
    static const store::Catalogue tables(0x54414c55, 1,
                                         {{u"Factures"_s,
                                           {{u"num"_s, Counter, {}},
                                            {u"Date"_s, Date, {}},
                                            {u"num_client"_s, Long, {}},
                                            {u"Total"_s, Double, {}},
                                            {u"Flag_R"_s, YesNo, {}}},
                                           {}},
                                          {u"Clients"_s, {{u"num"_s, Counter, {}}, {u"nom"_s, Text, {}}}, {}},
                                          {u"textes"_s, {{u"num"_s, Counter, {}}, {u"ch1"_s, Text, {}}}, {}}});
    return tables;
}

/// Reports over an exercise file of three invoices, the last to a client who is gone.
class StoreReport : public testing::Test
{
protected:
    StoreReport()
    {
        const QString path = m_folder.filePath(u"essai.mdb"_s);
        store::Database::create(path, catalogue());
        m_database = std::make_unique<store::Database>(path, catalogue());
        for (const QString& name : {u"Zaïd"_s, u"ÉLOUARD"_s})
            m_database->execute(u"insert into Clients (nom) values (?)"_s, {name});
        m_database->execute(u"insert into textes (ch1) values (?)"_s, {u"Le mandataire"_s});
        addInvoice(u"2026-11-14"_s, 1, 100.5, 0);
        addInvoice(u"2026-11-15"_s, 2, 20, 1);
        addInvoice(u"2026-11-15"_s, 9, 3, 0);
    }

    void addInvoice(const QString& date, int client, double total, int paid)
    {
        m_database->execute(u"insert into Factures ([Date], num_client, Total, Flag_R) values (?, ?, ?, ?)"_s,
                            {date, client, total, paid});
    }

    QStringList print(const QString& formula, const QStringList& sortFields = {}, const QString& field = u"Total"_s)
    {
        const QString xml =
            u"<report><page/><row table=\"textes\"/><page-head height=\"5\"><text>{textes.ch1}</text></page-head>"
            "<section><source table=\"Factures\" order=\"{Factures.num}\">"
            "<join table=\"Clients\" on=\"{Clients.num} = {Factures.num_client}\"/></source>"
            "<detail height=\"5\"><text>{Factures.Date} {Clients.nom} {Factures.%1:0.00}"
            "</text></detail></section></report>"_s.arg(field);
        QStringList lines =
            linesOf(layOut(Template::read(xml.toUtf8(), u"Essai.RPT"_s), *m_database, {{}, formula, sortFields}), 0);
        EXPECT_EQ(lines.takeFirst(), u"Le mandataire"_s);
        return lines;
    }

    QTemporaryDir m_folder;
    std::unique_ptr<store::Database> m_database;
};

TEST_F(StoreReport, KeepsRowsWithoutAPartnerAndShowsDatesAsTheProgramDoes)
{
    EXPECT_EQ(print({}),
              (QStringList{u"14/11/2026 Zaïd 100.50"_s, u"15/11/2026 ÉLOUARD 20.00"_s, u"15/11/2026  3.00"_s}));
}

TEST_F(StoreReport, SelectsByNumberDateFlagAndText)
{
    const QList<QPair<QString, QStringList>> cases = {
        {u"{Factures.num} = 2"_s, {u"15/11/2026 ÉLOUARD 20.00"_s}},
        {u"{Factures.date} = date(2026,11,14)"_s, {u"14/11/2026 Zaïd 100.50"_s}},
        {u"{Factures.Date} >= date(2026,11,15) and {Factures.Flag_R} = True"_s, {u"15/11/2026 ÉLOUARD 20.00"_s}},
        {u"{Clients.nom} = 'elouard'"_s, {u"15/11/2026 ÉLOUARD 20.00"_s}},
        {u"{Factures.Total} < 50 and {Factures.Flag_R} = False"_s, {u"15/11/2026  3.00"_s}},
        {u"{Factures.num} = 99"_s, {}},
    };
    for (const auto& [formula, expected] : cases)
        EXPECT_EQ(print(formula), expected) << formula.toStdString();
}

TEST_F(StoreReport, SortsAsAFrenchReaderExpects)
{
    EXPECT_EQ(print({}, {u"+ {Clients.nom} "_s}).last(), u"14/11/2026 Zaïd 100.50"_s);
    EXPECT_EQ(print({}, {u"- {Clients.nom} "_s}).first(), u"14/11/2026 Zaïd 100.50"_s);
}

TEST_F(StoreReport, AFieldThatTheSchemaLacksIsNamed)
{
    for (const auto& [formula, field] : {std::pair{QString(), u"Totla"_s}, {u"{Factures.nmu} = 2"_s, u"Total"_s}}) {
        try {
            print(formula, {}, field);
            ADD_FAILURE();
        } catch (const Error& error) {
            EXPECT_TRUE(error.text().startsWith(u"Champ inconnu : {Factures."_s)) << error.what();
            EXPECT_TRUE(error.text().endsWith(u" dans Essai.RPT"_s)) << error.what();
        }
    }
    EXPECT_EQ(unknownFields({u"Factures.num"_s, u"Factures.x"_s, u"Nulle.num"_s}, catalogue()),
              (QStringList{u"Factures.x"_s, u"Nulle.num"_s}));
}

} // namespace
