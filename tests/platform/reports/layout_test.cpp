#include "platform/reports/error.h"
#include "platform/reports/layout.h"
#include "platform/reports/units.h"
#include "platform/services/clock.h"
#include "tests/platform/reports/memory_source.h"
#include "tests/platform/reports/page_text.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace reports;

namespace {

/// A sheet with a body 100 mm high and 100 mm wide, so that ten bands of 10 mm fill it.
QString reportOf(const QString& content)
{
    return u"<report><page left=\"55\" right=\"55\" top=\"98.5\" bottom=\"98.5\" font-size=\"10\"/>%1</report>"_s.arg(
        content);
}

QList<SampleRow> rows(int count, const QString& group = u"A"_s)
{
    QList<SampleRow> result;
    for (int i = 1; i <= count; ++i)
        result.append({{u"T.n"_s, i}, {u"T.g"_s, group}, {u"T.x"_s, 10.25}, {u"T.y"_s, 0.25}, {u"T.t"_s, QString()}});
    return result;
}

Document lay(const QString& content, const QList<SampleRow>& data, const Request& request = {})
{
    MemorySource source;
    source.tables[u"T"_s] = data;
    return layOut(Template::read(reportOf(content).toUtf8(), u"Essai.RPT"_s), source, request);
}

const QString detail = u"<detail height=\"10\"><text>ligne {T.n}</text></detail>"_s;
const QString source = u"<source table=\"T\"/>"_s;

QString joined(const Document& document)
{
    return linesOf(document).join(u'\n');
}

// --- page breaks -----------------------------------------------------------------------------------------------------

TEST(Layout, ColumnHeadingsComeBackOnEachPageAndPagesAreCounted)
{
    const Document document =
        lay(u"<page-head height=\"10\"><text>Liste</text></page-head>"
            "<page-foot height=\"10\"><text>Page {page} / {pages}</text></page-foot>"
            "<section>%1<columns height=\"10\"><text>Colonne</text></columns>%2</section>"_s.arg(source, detail),
            rows(9));
    EXPECT_EQ(linesOf(document),
              (QStringList{u"--- 1/2"_s, u"Liste"_s, u"Colonne"_s, u"ligne 1"_s, u"ligne 2"_s, u"ligne 3"_s,
                           u"ligne 4"_s, u"ligne 5"_s, u"ligne 6"_s, u"ligne 7"_s, u"Page 1 / 2"_s, u"--- 2/2"_s,
                           u"Liste"_s, u"Colonne"_s, u"ligne 8"_s, u"ligne 9"_s, u"Page 2 / 2"_s}));
    // The foot stands at the bottom of the sheet, not behind the last row.
    EXPECT_EQ(document.pages()[0].texts.last().baseline, document.pages()[1].texts.last().baseline);
}

TEST(Layout, TotalsTakeTheLastRowAlongToANewPage)
{
    const QString content = u"<section>%1<columns height=\"10\"><text>Colonne</text></columns>%2"
                            "<foot height=\"10\"><text>Total</text></foot><foot height=\"10\"><text>En lettres</text>"
                            "</foot></section>"_s.arg(source, detail);
    EXPECT_EQ(lay(content, rows(7)).pageCount(), 1); // 1 + 7 + 2 bands fill the page exactly
    for (const int count : {8, 9}) {
        const Document document = lay(content, rows(count));
        ASSERT_EQ(document.pageCount(), 2) << count;
        EXPECT_EQ(linesOf(document, 1),
                  (QStringList{u"Colonne"_s, u"ligne %1"_s.arg(count), u"Total"_s, u"En lettres"_s}));
    }
}

TEST(Layout, AFootThatNeedNotBeKeptMayStandOnTheNextPage)
{
    const Document document =
        lay(u"<section>%1%2<foot height=\"10\"><text>Total</text></foot>"
            "<foot height=\"10\" keep=\"no\"><text>Conditions</text></foot></section>"_s.arg(source, detail),
            rows(9));
    ASSERT_EQ(document.pageCount(), 2);
    EXPECT_EQ(linesOf(document, 0).last(), u"Total"_s);
    EXPECT_EQ(linesOf(document, 1), QStringList{u"Conditions"_s});
}

TEST(Layout, AGroupHeadIsNeverTheLastThingOnAPage)
{
    const Document document =
        lay(u"<section>%1<group name=\"g\" by=\"{T.g}\">"
            "<head height=\"10\"><text>Groupe {T.g}</text></head>%2</group></section>"_s.arg(source, detail),
            rows(8) + rows(2, u"B"_s)); // 1 + 8 bands: there is room for the head alone
    ASSERT_EQ(document.pageCount(), 2);
    EXPECT_EQ(linesOf(document, 0).last(), u"ligne 8"_s);
    EXPECT_EQ(linesOf(document, 1), (QStringList{u"Groupe B"_s, u"ligne 1"_s, u"ligne 2"_s}));
}

TEST(Layout, ARepeatedGroupHeadStandsAgainAboveTheColumnsOfItsPage)
{
    const Document document = lay(
        u"<section>%1<group name=\"g\" by=\"{T.g}\"><head height=\"10\" repeat=\"yes\"><text>Groupe {T.g}</text></head>"
        "<columns height=\"10\"><text>Colonne</text></columns>%2</group></section>"_s.arg(source, detail),
        rows(9));
    EXPECT_EQ(linesOf(document, 1), (QStringList{u"Groupe A"_s, u"Colonne"_s, u"ligne 9"_s}));
}

TEST(Layout, WhatNoPageHoldsInOnePieceIsPartedWithoutLosingAnything)
{
    QString foots;
    for (int i = 1; i <= 14; ++i)
        foots += u"<foot height=\"10\"><text>pied %1</text></foot>"_s.arg(i);
    const Document document = lay(u"<section>%1%2%3</section>"_s.arg(source, detail, foots), rows(1));
    EXPECT_EQ(document.pageCount(), 2);
    EXPECT_EQ(linesOf(document, 0).size(), 10);
    EXPECT_EQ(linesOf(document, 1).last(), u"pied 14"_s);
}

TEST(Layout, AHeadOfTheFirstPageOnlyLeavesNoHoleOnTheOthers)
{
    const Document document = lay(u"<page-head height=\"50\" when=\"{page} = 1\"><text>Adresse</text></page-head>"
                                  "<page-head height=\"10\" when=\"{page} > 1\"><text>Suite</text></page-head>"
                                  "<section>%1%2</section>"_s.arg(source, detail),
                                  rows(14));
    ASSERT_EQ(document.pageCount(), 2);
    EXPECT_EQ(linesOf(document, 0).size(), 1 + 5);
    EXPECT_EQ(linesOf(document, 1).size(), 1 + 9);
    EXPECT_EQ(linesOf(document, 1).first(), u"Suite"_s);
}

// --- documents in one ------------------------------------------------------------------------------------------------

const QString invoices = u"<page-foot height=\"10\"><text>{T.g} : page {page} / {pages}</text></page-foot>"
                         "<section><source table=\"T\"/><group name=\"g\" by=\"{T.g}\" new-document=\"yes\">"
                         "<detail height=\"10\"><text>ligne {T.n}</text></detail></group></section>"_s;

TEST(Layout, EachInvoiceOfABatchCountsItsOwnPages)
{
    const Document document = lay(invoices, rows(2, u"12"_s) + rows(10, u"13"_s));
    QStringList foots;
    for (int page = 0; page < document.pageCount(); ++page)
        foots.append(linesOf(document, page).last());
    EXPECT_EQ(foots, (QStringList{u"12 : page 1 / 1"_s, u"13 : page 1 / 2"_s, u"13 : page 2 / 2"_s}));
}

TEST(Document, AppendedDocumentsKeepTheirOwnNumbering)
{
    Document all;
    all.append(lay(invoices, rows(10, u"12"_s)));
    all.append(lay(invoices, rows(1, u"13"_s)));
    EXPECT_EQ(all.partCount(), 2);
    EXPECT_TRUE(all.hasRows());
    EXPECT_EQ(linesOf(all, 1).last(), u"12 : page 2 / 2"_s);
    EXPECT_EQ(linesOf(all, 2).last(), u"13 : page 1 / 1"_s);
}

TEST(Layout, WithNoRowItSaysSoOnOnePage)
{
    const Document document =
        lay(u"<page-foot height=\"10\"><text>Page {page} / {pages}</text></page-foot><section>%1"
            "<head height=\"10\"><text>Titre</text></head>%2"
            "<empty height=\"10\"><text>Rien à imprimer</text></empty></section>"_s.arg(source, detail),
            {});
    EXPECT_FALSE(document.hasRows());
    EXPECT_EQ(linesOf(document), (QStringList{u"--- 1/1"_s, u"Rien à imprimer"_s, u"Page 1 / 1"_s}));
}

// --- sums ------------------------------------------------------------------------------------------------------------

TEST(Layout, SumsBeginAnewWithTheirGroupAndGoOnOverTheReport)
{
    const Document document =
        lay(u"<sum name=\"groupe\" of=\"{T.x}\" reset=\"g\"/><sum name=\"tout\" of=\"{T.x}\"/>"
            "<sum name=\"reste\" of=\"{T.x} - {T.y}\" reset=\"row\"/><count name=\"nombre\" reset=\"g\"/>"
            "<count name=\"remplis\" of=\"{T.z}\"/>"
            "<section>%1<group name=\"g\" by=\"{T.g}\"><detail height=\"5\"><text>{reste:0.00}</text></detail>"
            "<foot height=\"5\"><text>{T.g} : {nombre} = {groupe:0.00}</text></foot></group>"
            "<foot height=\"5\"><text>{tout:# ##0.00} dont {remplis}</text></foot></section>"_s.arg(source),
            rows(2) + rows(1, u"B"_s) + QList<SampleRow>{{{u"T.g"_s, u"B"_s}, {u"T.x"_s, -3.0}, {u"T.z"_s, 1}}});
    EXPECT_EQ(joined(document), u"--- 1/1\n10.00\n10.00\nA : 2 = 20.50\n10.00\n-3.00\nB : 2 = 7.25\n27.75 dont 1"_s);
}

TEST(Layout, CentsDoNotDriftInLongSums)
{
    QList<SampleRow> data;
    for (int i = 0; i < 1000; ++i)
        data.append({{u"T.x"_s, 0.001}});
    data.append({{u"T.x"_s, 0.005}});
    const Document document = lay(u"<sum name=\"s\" of=\"{T.x}\"/><section>%1<detail/>"
                                  "<foot height=\"5\"><text>{s:0.00}</text></foot></section>"_s.arg(source),
                                  data);
    EXPECT_EQ(linesOf(document, 0), QStringList{u"1.01"_s}); // 1.005, which drifting would round down
}

TEST(Layout, APageSumCountsTheRowsOfItsPageOnly)
{
    const Document document =
        lay(u"<sum name=\"page1\" of=\"{T.x}\" reset=\"page\"/><sum name=\"cumul\" of=\"{T.x}\"/>"
            "<page-head height=\"10\" when=\"{page} > 1\"><text>Report {cumul:0.00}</text></page-head>"
            "<page-foot height=\"10\"><text>Page {page1:0.00}, à reporter {cumul:0.00}</text></page-foot>"
            "<section>%1%2<foot height=\"20\"><text>Total {cumul:0.00}</text></foot></section>"_s.arg(source, detail),
            rows(9)); // the last row fits by itself, and moves with the total
    ASSERT_EQ(document.pageCount(), 2);
    EXPECT_EQ(linesOf(document, 0).last(), u"Page 82.00, à reporter 82.00"_s);
    EXPECT_EQ(linesOf(document, 1),
              (QStringList{u"Report 82.00"_s, u"ligne 9"_s, u"Total 92.25"_s, u"Page 10.25, à reporter 92.25"_s}));
}

// --- texts and their places ------------------------------------------------------------------------------------------

QList<TextRun> textsOf(const QString& fields, const SampleRow& row)
{
    return lay(u"<section>%1<detail height=\"10\">%2</detail></section>"_s.arg(source, fields), {row}).pages()[0].texts;
}

const SampleRow longRow = {{u"T.t"_s, u"SOCIÉTÉ DES PÊCHERIES ET CONSERVERIES DE L'OUEST RÉUNIES"_s},
                           {u"T.x"_s, -123456789012.5},
                           {u"T.n"_s, 7}};

TEST(Layout, NoTextRunsOverItsPlace)
{
    const QStringList fits = {u"shrink"_s, u"elide"_s, u"wrap"_s};
    for (const QString& fit : fits) {
        for (const QString& align : {u"left"_s, u"center"_s, u"right"_s}) {
            for (const TextRun& run :
                 textsOf(u"<text x=\"10\" w=\"30\" fit=\"%1\" align=\"%2\">{T.t}</text>"_s.arg(fit, align), longRow)) {
                const double left = (55 + 10) * unitsPerMillimetre;
                EXPECT_GE(run.x, left - 0.1) << fit.toStdString();
                EXPECT_LE(run.x + textWidth(run.font, run.text), left + 30 * unitsPerMillimetre + 0.1);
            }
        }
    }
}

TEST(Layout, ATextTooLongShrinksAndIsThenCutWithDots)
{
    const auto shrunk = textsOf(u"<text w=\"95\">{T.t}</text>"_s, longRow).first();
    EXPECT_EQ(shrunk.text, longRow[u"T.t"_s].toString());
    EXPECT_LT(shrunk.font.size, 100);
    EXPECT_GE(shrunk.font.size, 70);

    const auto cut = textsOf(u"<text w=\"30\">{T.t}</text>"_s, longRow).first();
    EXPECT_TRUE(cut.text.startsWith(u"SOCIÉTÉ DES"_s) && cut.text.endsWith(u'…')) << cut.text.toStdString();

    const auto whole = textsOf(u"<text w=\"30\">N° {T.n}</text>"_s, longRow).first();
    EXPECT_EQ(whole.text, u"N° 7"_s);
    EXPECT_EQ(whole.font.size, 100);
}

TEST(Layout, FiguresAreNeverCut)
{
    const auto run = textsOf(u"<text w=\"9\" align=\"right\">{T.x:### ### ### ##0.00}</text>"_s, longRow).first();
    EXPECT_EQ(run.text, u"-123 456 789 012.50"_s);
    EXPECT_LE(textWidth(run.font, run.text), 9 * unitsPerMillimetre + 0.1);
}

TEST(Layout, AFigureEndsAtTheRightOfItsPlaceAndTheNumberOfPagesToo)
{
    const auto runs = textsOf(u"<text w=\"40\" align=\"right\">{T.n:##0.00}</text>"
                              "<text y=\"5\" w=\"40\" align=\"right\">{page} / {pages}</text>"_s,
                              longRow);
    const double right = (55 + 40) * unitsPerMillimetre;
    EXPECT_NEAR(runs[0].x + textWidth(runs[0].font, runs[0].text), right, 0.1);
    EXPECT_EQ(runs[1].align, Align::Right); // painted leftwards from there, once the number is known
    EXPECT_NEAR(runs[1].x, right, 0.1);
}

TEST(Layout, AWrappedTextPushesTheNextBandDown)
{
    QList<SampleRow> data = rows(3);
    data[1][u"T.t"_s] = longRow[u"T.t"_s];
    const Document document =
        lay(u"<section>%1<detail height=\"6\"><text y=\"1.5\" w=\"12\">n° {T.n}</text>"
            "<text x=\"15\" y=\"1.5\" w=\"45\" fit=\"wrap\">{T.t}</text></detail></section>"_s.arg(source),
            data);
    EXPECT_EQ(linesOf(document, 0), (QStringList{u"n° 1"_s, u"n° 2 | SOCIÉTÉ DES"_s, u"PÊCHERIES ET"_s,
                                                 u"CONSERVERIES DE"_s, u"L'OUEST RÉUNIES"_s, u"n° 3"_s}));
    const auto& texts = document.pages()[0].texts;
    const double oneLine = texts[1].baseline - texts[0].baseline, grown = texts.last().baseline - texts[1].baseline;
    EXPECT_NEAR(oneLine, 6 * unitsPerMillimetre, 0.1);
    EXPECT_NEAR(grown, 6 * unitsPerMillimetre + 3 * lineHeight(texts[0].font), 0.1);
}

TEST(Layout, AWrappedTextThatNoPageHoldsIsCutInsideThePage)
{
    SampleRow row = longRow;
    row[u"T.t"_s] = QString(u"mot "_s).repeated(5000);
    const Document document = lay(
        u"<section>%1<detail height=\"6\"><text w=\"30\" fit=\"wrap\">{T.t}</text></detail></section>"_s.arg(source),
        {row});
    ASSERT_EQ(document.pageCount(), 1);
    EXPECT_LT(document.pages()[0].texts.last().baseline, (297 - 98.5) * unitsPerMillimetre);
    EXPECT_TRUE(document.pages()[0].texts.last().text.endsWith(u'…'));
}

TEST(Layout, BlankLinesOfAnAddressCloseUp)
{
    const QString address = u"<stack><text>{T.t}</text><text>{T.a}</text><text>R.C. : {T.rc}</text>"
                            "<text>{T.ville}</text></stack>"_s;
    const SampleRow row = {{u"T.t"_s, u"Nom"_s}, {u"T.a"_s, u" "_s}, {u"T.ville"_s, u"Oran"_s}};
    const auto runs = textsOf(address, row);
    ASSERT_EQ(runs.size(), 2);
    EXPECT_NEAR(runs[1].baseline - runs[0].baseline, lineHeight(runs[0].font), 0.1);
}

TEST(Layout, FieldsAndBandsShowOnTheirCondition)
{
    QList<SampleRow> data = rows(2);
    data[1][u"T.t"_s] = u"x"_s;
    const Document document = lay(u"<section>%1<detail height=\"5\" when=\"{T.n} &lt; 2\"><text>premier</text></detail>"
                                  "<detail height=\"5\"><text when=\"{T.t}\">plein</text>"
                                  "<text when=\"not {T.t}\">vide</text></detail></section>"_s.arg(source),
                                  data);
    EXPECT_EQ(linesOf(document, 0), (QStringList{u"premier"_s, u"vide"_s, u"plein"_s}));
}

TEST(Layout, TodayIsTheClocksDay)
{
    services::clock::setToday(QDate(2026, 3, 9));
    EXPECT_EQ(textsOf(u"<text>Le {today}</text>"_s, longRow).first().text, u"Le 09/03/2026"_s);
    services::clock::followSystem();
}

// --- what is asked of the data ---------------------------------------------------------------------------------------

TEST(Layout, GroupsOrderBeforeTheSortFieldsAndTheseBeforeTheTemplate)
{
    const Template report = Template::read(
        "<report><page/><row table=\"textes\"/><page-head><text>{textes.ch1}</text></page-head>"
        "<section><source table=\"F\" order=\"{F.d}\"><join table=\"C\" on=\"{C.num} = {F.c}\"/></source>"
        "<group name=\"g\" by=\"{F.num}\" "
        "order=\"{F.ordre}\"><detail><text>{C.nom}</text></detail></group></section></report>",
        u"Essai.RPT"_s);
    EXPECT_EQ(report.fields(),
              (QStringList{u"textes.ch1"_s, u"F.num"_s, u"C.nom"_s, u"C.num"_s, u"F.c"_s, u"F.d"_s, u"F.ordre"_s}));

    MemorySource data;
    layOut(report, data, {{}, u"{F.num} = 4"_s, {u"+ {C.nom} "_s, u"- {C.prenom}"_s}});
    layOut(report, data, {});
    ASSERT_EQ(data.asked.size(), 4); // the row of texts, then the rows, each time
    EXPECT_EQ(data.asked[0].fields, QStringList{u"textes.ch1"_s});
    EXPECT_EQ(data.asked[0].selection, QString());
    EXPECT_EQ(data.asked[1].fields, (QStringList{u"F.num"_s, u"C.nom"_s}));
    EXPECT_EQ(data.asked[1].selection, u"F!num = ?"_s);
    EXPECT_EQ(data.asked[1].order, (QStringList{u"F.ordre"_s, u"F.num"_s, u"C.nom"_s, u"-C.prenom"_s}));
    EXPECT_EQ(data.asked[3].order, (QStringList{u"F.ordre"_s, u"F.num"_s, u"F.d"_s}));
}

TEST(Layout, FormulasAndSortFieldsThatTheReportCannotAnswerAreRefused)
{
    const QString content = u"<section>%1%2</section>"_s.arg(source, detail);
    const QList<Request> requests = {{{}, u"{U.n} = 1"_s, {}},
                                     {{}, u"{T.n} ="_s, {}},
                                     {{}, {}, {u"+ {U.n}"_s}},
                                     {{}, {}, {u"T.n"_s}},
                                     {{}, {}, {u"+ {T.n} {T.g}"_s}}};
    for (const Request& request : requests)
        EXPECT_THROW(lay(content, rows(1), request), Error) << request.selectionFormula.toStdString();
}

} // namespace
