#include "platform/reports/layout.h"
#include "platform/reports/paint.h"
#include "platform/reports/units.h"
#include "platform/services/clock.h"
#include "tests/platform/reports/page_text.h"
#include "tests/platform/reports/samples.h"
#include "tests/support/print.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

const QDir templates(QStringLiteral(TALOR_SOURCE_DIR "/reports"));
const QDir kept(QStringLiteral(TALOR_SOURCE_DIR "/tests/platform/reports/kept"));

reports::Document print(const QString& file, MemorySource source)
{
    services::clock::setToday(QDate(2026, 11, 22));
    const reports::Document document =
        reports::layOut(reports::Template::load(templates.filePath(file)), source, reports::Request());
    services::clock::followSystem();
    return document;
}

reports::Document printInvoice(int lines, const SampleRow& texts)
{
    MemorySource source = samples::everything(lines);
    source.tables[u"textes"_s] = {texts};
    return print(u"Facture.RPT"_s, source);
}

reports::Document printSlip(int lines, int expenses)
{
    MemorySource source;
    SampleRow texts = samples::listTexts();
    texts[u"textes.ch4"_s] = u"Facture reprise"_s; // left by the last print
    texts[u"textes.ch6"_s] = u"153 695.94"_s;
    source.tables[u"textes"_s] = {texts};
    source.tables[u"L_Vente"_s] = samples::slipRows(lines, expenses);
    return print(u"BORDERO.RPT"_s, source);
}

/// Holds the texts and places of a document against a kept file. After a change that is meant, run with
/// TALOR_KEEP=<folder>: the new files and a PDF of each to look at are written there.
void compareWithKept(const reports::Document& document, const QString& name)
{
    const QString now = placesOf(document).join(u'\n') + u'\n';
    if (const QString folder = qEnvironmentVariable("TALOR_KEEP"); !folder.isEmpty()) {
        QFile file(QDir(folder).filePath(name + u".txt"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(now.toUtf8());
        reports::writePdf(document, QDir(folder).filePath(name + u".pdf"_s));
    }
    QFile file(kept.filePath(name + u".txt"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    const QStringList expected = QString::fromUtf8(file.readAll()).split(u'\n');
    const QStringList lines = now.split(u'\n');
    for (qsizetype i = 0; i < std::max(lines.size(), expected.size()); ++i)
        ASSERT_EQ(lines.value(i), expected.value(i)) << name.toStdString() << ", line " << i + 1;
}

TEST(Templates, PrintWhatTheyPrintedBefore)
{
    compareWithKept(printInvoice(4, samples::invoiceTexts(12)), u"facture"_s);
    compareWithKept(printInvoice(4, samples::deliveryNoteTexts(12)), u"bon_de_livraison"_s);
    compareWithKept(printInvoice(80, samples::invoiceTexts(12)), u"facture_80_lignes"_s);
    compareWithKept(printSlip(12, 4), u"bordereau"_s);
    MemorySource source = samples::everything(1);
    source.tables[u"Clients"_s] = samples::clients(24);
    source.tables[u"Csse"_s] = samples::listedInvoices(60);
    compareWithKept(print(u"List_fct.RPT"_s, source), u"liste_factures"_s);
    compareWithKept(print(u"L_CLIENT.RPT"_s, source), u"liste_clients"_s);
    compareWithKept(print(u"L_POISSN.RPT"_s, source), u"liste_poissons"_s);
    compareWithKept(print(u"L_ARMATR.RPT"_s, source), u"liste_armateurs"_s);
    compareWithKept(print(u"L_CHALUT.RPT"_s, source), u"liste_embarcations"_s);
}

TEST(Invoice, OfTwentyFiveLinesTakesOneSheet)
{
    EXPECT_EQ(printInvoice(25, samples::invoiceTexts(12)).pageCount(), 1);
}

TEST(Invoice, OfEightyLinesRepeatsItsHeadingsAndKeepsItsEndTogether)
{
    const reports::Document document = printInvoice(80, samples::invoiceTexts(12));
    ASSERT_EQ(document.pageCount(), 3);
    int lines = 0;
    for (int page = 0; page < 3; ++page) {
        const QStringList text = linesOf(document, page);
        EXPECT_TRUE(text.contains(u"Poisson | Casiers | Poids (kg) | P.U. (DA) | Montant (DA)"_s)) << page;
        EXPECT_EQ(text.last(), u"Téléphone  :  043 64 12 07 | Page %1 / 3"_s.arg(page + 1));
        EXPECT_EQ(text.filter(u"Report :"_s).size(), page > 0);
        EXPECT_EQ(text.filter(u"(suite)"_s).size(), page > 0);
        EXPECT_EQ(text.filter(u"Total"_s).isEmpty(), page < 2);
        for (const QString& line : text)
            lines += line.count(u'|') == 4 && !line.startsWith(u"Poisson");
    }
    EXPECT_EQ(lines, 80);
    const QString end = linesOf(document, 2).join(u'\n');
    for (const QString& part : {u"Total poisson"_s, u"Consigne | 12 300.00"_s, u"Total (DA) | 999 777.99"_s,
                                u"Arrêtée la présente facture"_s, u"*** NEUF CENT"_s, u"*** DIX SEPT DINARS"_s})
        EXPECT_TRUE(end.contains(part)) << part.toStdString();
}

/// However many lines there are, the last page has one at least, and all of the end.
TEST(Invoice, NeverLeavesItsTotalsAlone)
{
    for (int lines = 18; lines <= 36; ++lines) {
        const reports::Document document = printInvoice(lines, samples::invoiceTexts(12));
        const QStringList last = linesOf(document, document.pageCount() - 1);
        int rows = 0;
        for (const QString& line : last)
            rows += line.count(u'|') == 4 && !line.startsWith(u"Poisson");
        EXPECT_GE(rows, 1) << lines;
        EXPECT_EQ(last.filter(u"Total poisson"_s).size(), 1) << lines;
        EXPECT_EQ(last.filter(u"***"_s).size(), 2) << lines;
    }
}

TEST(Invoice, PutsEachLineOfWordsOnOneLineInsideItsFrame)
{
    SampleRow texts = samples::invoiceTexts(12);
    for (int i = 11; i <= 13; ++i)
        texts[u"textes.ch%1"_s.arg(i)] = u"*** "_s + QString(60, u'W') + u" ***"_s;
    const reports::Document document = printInvoice(1, texts);
    ASSERT_EQ(document.pageCount(), 1);
    int words = 0;
    for (const reports::TextRun& run : document.pages()[0].texts) {
        if (!run.text.startsWith(u"***"))
            continue;
        ++words;
        EXPECT_EQ(run.text.size(), 68);
        EXPECT_EQ(run.font.size, 105); // at its full size
        EXPECT_LT(run.x + reports::textWidth(run.font, run.text), (15 + 178) * reports::unitsPerMillimetre);
        const auto& shapes = document.pages()[0].shapes;
        EXPECT_TRUE(std::any_of(shapes.begin(), shapes.end(), [&](const reports::Shape& shape) {
            return shape.width > 0 && !shape.isRule && shape.rect.contains(run.x, run.baseline);
        })) << "in a frame";
    }
    EXPECT_EQ(words, 3);
}

TEST(Invoice, AsADeliveryNoteHasNoWordsAndNoFrameForThem)
{
    const reports::Document note = printInvoice(3, samples::deliveryNoteTexts(12));
    const QString text = linesOf(note, 0).join(u'\n');
    EXPECT_TRUE(text.contains(u"Bon de Livraison N° 12 / 2026"_s));
    EXPECT_FALSE(text.contains(u"***"_s));
    EXPECT_TRUE(text.contains(u"Total (DA) | 999 777.99"_s));
    const auto outlined = [](const reports::Shape& shape) { return shape.width > 0 && !shape.isRule; };
    const auto& shapes = note.pages()[0].shapes;
    EXPECT_TRUE(std::none_of(shapes.begin(), shapes.end(), outlined));
}

TEST(Invoice, BearsTheRegistrationOfTheTraderAsFarAsItIsKnown)
{
    const QStringList text = linesOf(printInvoice(80, samples::invoiceTexts(12)));
    EXPECT_EQ(text.filter(u"R.C. : 46 A 0119999"_s).size(), 1) << "on the first page";
    EXPECT_EQ(text.filter(u"Id. Fiscale : 196302010011223"_s).size(), 1);
    EXPECT_EQ(text.filter(u"Compte bancaire"_s).size(), 0);
}

TEST(Invoice, ShowsNoWeightWhereAllWasSoldByTheCrate)
{
    MemorySource source = samples::everything(3);
    for (SampleRow& row : source.tables[u"Factures"_s])
        row[u"L_Vente.poids"_s] = 0.0;
    source.tables[u"textes"_s] = {samples::invoiceTexts(12)};
    const QString text = linesOf(print(u"Facture.RPT"_s, source), 0).join(u'\n');
    EXPECT_TRUE(text.contains(u"Total poisson | 6 | "_s)) << text.toStdString();
    EXPECT_FALSE(text.contains(u"| 0.00"_s)) << text.toStdString();
}

TEST(Invoice, WithoutLinesPrintsAllTheSame)
{
    const QString text = linesOf(printInvoice(0, samples::invoiceTexts(12)), 0).join(u'\n');
    EXPECT_TRUE(text.contains(u"HADJ-SADOK  Aïcha"_s) && text.contains(u"Total poisson"_s)) << text.toStdString();
}

TEST(Slip, OfTwentyFiveLinesTakesOneSheetWhateverItsExpenses)
{
    EXPECT_EQ(printSlip(25, 10).pageCount(), 1);
}

TEST(Slip, ListsTheExpensesThatHaveAnAmountEachBesideItsLabel)
{
    QStringList text = linesOf(printSlip(3, 4), 0);
    EXPECT_EQ(text.filter(u"Dépense"_s).size(), 3);
    EXPECT_EQ(text.filter(u" 1 250.00"_s).size(), 4) << "the one without a label too";
    const QString all = text.join(u'\n');
    for (const QString& part :
         {u"Brut | 1 234 567.50"_s, u"Primes | 5 000.00"_s, u"Commission  (12.50 %) | 153 695.94"_s,
          u"Frais | 5 000.00"_s, u"Net (DA) | 1 070 871.56"_s})
        EXPECT_TRUE(all.contains(part)) << part.toStdString() << all.toStdString();
    EXPECT_FALSE(all.contains(u"Facture reprise"_s)) << "no text of another print";
}

TEST(Slip, OverSeveralPagesRepeatsItsHeadingsAndKeepsItsEndTogether)
{
    for (int lines = 20; lines <= 80; lines += 3) {
        const reports::Document document = printSlip(lines, 10);
        int rows = 0;
        for (int page = 0; page < document.pageCount(); ++page) {
            const QStringList text = linesOf(document, page);
            const bool last = page == document.pageCount() - 1;
            EXPECT_EQ(text.filter(u"N° | Client | Poisson"_s).size(), 1) << lines;
            EXPECT_EQ(text.filter(u"Report :"_s).size(), page > 0) << lines;
            EXPECT_EQ(text.filter(u"Total des ventes"_s).size(), last) << lines;
            EXPECT_EQ(text.filter(u"Net (DA)"_s).size(), last) << lines;
            int here = 0;
            for (const QString& line : text)
                here += line.front().isDigit() && line.contains(u" | "_s);
            EXPECT_GT(here, 0) << "totals alone, " << lines;
            rows += here;
        }
        EXPECT_EQ(rows, lines);
    }
}

} // namespace
