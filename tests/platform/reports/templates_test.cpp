#include "platform/reports/layout.h"
#include "platform/reports/paint.h"
#include "tests/platform/reports/page_text.h"
#include "tests/platform/reports/samples.h"
#include "tests/support/print.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

const QDir templates(QStringLiteral(TALOR_SOURCE_DIR "/reports"));

reports::Document print(const QString& file, MemorySource source)
{
    const reports::Document document =
        reports::layOut(reports::Template::load(templates.filePath(file)), source, reports::Request());
    // To look at what the templates give: TALOR_KEEP_PDF=<folder>
    if (const QString folder = qEnvironmentVariable("TALOR_KEEP_PDF"); !folder.isEmpty()) {
        static int number = 0;
        reports::writePdf(document, u"%1/%2_%3.pdf"_s.arg(folder, file).arg(++number));
    }
    return document;
}

reports::Document printInvoice(int lines, const SampleRow& texts)
{
    MemorySource source = samples::everything(lines);
    source.tables[u"textes"_s] = {texts};
    return print(u"Facture.RPT"_s, source);
}

TEST(Templates, Look)
{
    printInvoice(8, samples::invoiceTexts(12));
    printInvoice(8, samples::deliveryNoteTexts(12));
    printInvoice(80, samples::invoiceTexts(12));
    for (const QString& f : {u"L_CLIENT.RPT"_s, u"L_POISSN.RPT"_s, u"L_ARMATR.RPT"_s, u"L_CHALUT.RPT"_s})
        print(f, samples::everything(3));
}

} // namespace
