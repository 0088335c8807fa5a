#include "platform/reports/error.h"
#include "platform/reports/layout.h"
#include "platform/reports/paint.h"
#include "platform/reports/units.h"
#include "tests/platform/reports/samples.h"
#include "tests/support/print.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace reports;

namespace {

Document clientList(int count)
{
    MemorySource source = samples::everything(1);
    source.tables[u"Clients"_s] = samples::clients(count);
    return layOut(Template::load(QStringLiteral(TALOR_SOURCE_DIR "/reports/L_CLIENT.RPT")), source, Request());
}

QString textOfPdf(const QString& path)
{
    QProcess process;
    process.start(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s});
    EXPECT_TRUE(process.waitForFinished()) << "pdftotext is needed (poppler-utils)";
    return QString::fromUtf8(process.readAllStandardOutput());
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(Fonts, TheMachineHasThoseOfTheReports)
{
    EXPECT_EQ(missingFonts(), QStringList());
}

TEST(Pdf, KeepsAccentsArabicAndTheOrderOfTheFigures)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"liste.pdf"_s);
    ASSERT_TRUE(writePdf(clientList(6), path));
    // Joined letters come out as the shapes that they were drawn with: folded back to the letters.
    const QString text = textOfPdf(path).simplified().normalized(QString::NormalizationForm_KC);
    for (const QString& expected : {u"SOCIÉTÉ DES PÊCHERIES ET"_s, u"Aïn Témouchent"_s, u"Sidi Bel Abbès"_s,
                                    u"Téléphone"_s, u"Noël"_s, u"محمد"_s, u"-1 250.50"_s, u"Page 1 / 1"_s})
        EXPECT_TRUE(text.contains(expected)) << expected.toStdString() << " in\n" << text.toStdString();
}

TEST(Pdf, ShowsTheNumberOfPagesOnEach)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"liste.pdf"_s);
    const Document document = clientList(70);
    ASSERT_GT(document.pageCount(), 2);
    ASSERT_TRUE(writePdf(document, path));
    const QStringList pages = textOfPdf(path).split(u'\f', Qt::SkipEmptyParts);
    ASSERT_EQ(pages.size(), document.pageCount());
    for (qsizetype i = 0; i < pages.size(); ++i)
        EXPECT_TRUE(pages[i].contains(u"Page %1 / %2"_s.arg(i + 1).arg(pages.size())));
}

TEST(Pdf, AFullDiskIsAnErrorAndLeavesWhatStoodThere)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"liste.pdf"_s);
    QFile(path).open(QIODevice::WriteOnly); // an older document
    const Document document = clientList(70);

    rlimit old;
    getrlimit(RLIMIT_FSIZE, &old);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small = {8 * 1024, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    QString said;
    try {
        writePdf(document, path);
    } catch (const Error& error) {
        said = error.text();
    }
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, handler);

    EXPECT_TRUE(said.contains(u"liste.pdf"_s)) << said.toStdString();
    EXPECT_EQ(contentOf(path), QByteArray());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"liste.pdf"_s});
}

TEST(Pdf, AFolderThatIsNotThereIsAnErrorThatNamesTheFile)
{
    EXPECT_THROW(writePdf(clientList(1), u"/nulle/part/liste.pdf"_s), Error);
}

TEST(Pdf, StoppedOnTheWayItLeavesNoFile)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"liste.pdf"_s);
    int pages = 0;
    EXPECT_FALSE(writePdf(clientList(70), path, [&](int done) { return (pages = done) < 2; }));
    EXPECT_EQ(pages, 2);
    EXPECT_FALSE(QFile::exists(path));
}

TEST(Image, DrawsThePageAtItsPlaceWhateverTheSize)
{
    const Document document = clientList(6);
    const Page& page = document.pages().first();
    for (const double dpi : {72.0, 200.0}) {
        const QImage image = renderPage(document, 0, dpi);
        const double pixel = dpi / unitsPerInch;
        EXPECT_EQ(image.width(), qRound(page.extent().width() * pixel));
        EXPECT_GT(image.width(), image.height());     // the list of clients lies on its side
        const QRectF band = page.shapes.first().rect; // the rule under the heading
        const auto at = [&](double x, double y) { return image.pixelColor(int(x * pixel), int(y * pixel)); };
        EXPECT_LT(at(band.center().x(), band.center().y()).lightness(), 140);
        EXPECT_EQ(at(band.center().x(), band.center().y() + 60), QColor(Qt::white));
        EXPECT_EQ(at(20, 20), QColor(Qt::white));
    }
}

} // namespace
