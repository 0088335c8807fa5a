#include "bench/cases.h"
#include "bench/exercise.h"
#include "bench/paper_raw.h"
#include "bench/table.h"
#include "core/report_window.h"
#include "invoicing/invoice_print.h"
#include "platform/reports/page_view.h"
#include "platform/reports/paint.h"
#include "platform/reports/preview.h"

#include <QApplication>
#include <QDir>
#include <QPaintEvent>

#include <numeric>

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int batch = 1000;
const std::string batchName = "1,000 invoices to one PDF";
const std::string clickName = "one invoice from the click to its first page";

QString folder()
{
    return workingFolder(u"papier"_s);
}

QString pdf(const QString& name)
{
    return QDir(folder()).filePath(name);
}

RegistreFactures firstInvoices(Exercice& exercise)
{
    RegistreFactures registre(exercise, RegistreFactures::Porte::Registre, u"01/01/2026"_s);
    FiltreFactures filter;
    filter.genre = FiltreFactures::Genre::Periode;
    filter.premiere = u"01/01/2026"_s;
    filter.seconde = u"31/01/2026"_s;
    filter.parClient = false;
    if (registre.ApplyFilter(filter) || registre.nbLignes() < batch)
        throw std::runtime_error("there are not enough invoices");
    return registre;
}

void printBatch(benchmark::State& state)
{
    const auto exercise = open(folder());
    RegistreFactures registre = firstInvoices(*exercise);
    QList<int> ranks(batch);
    std::iota(ranks.begin(), ranks.end(), 0);
    int pages = 0;
    for (auto _ : state) {
        const Stopwatch watch;
        const LotFactures batchOfThem = ComposerFactures(*exercise, registre, ranks, GenreImpression::Facture);
        reports::writePdf(batchOfThem.document, pdf(u"lot.pdf"_s));
        state.SetIterationTime(watch.seconds());
        pages = batchOfThem.document.pageCount();
    }
    holdSame(state, batchName, pages);
}

std::vector<qint64> firstNumbers(Raw& file)
{
    std::vector<qint64> nums;
    sqlite3_stmt* rows = file.prepare("select num from Factures order by ordre limit ?");
    bind(rows, 1, batch);
    while (sqlite3_step(rows) == SQLITE_ROW)
        nums.push_back(sqlite3_column_int64(rows, 0));
    sqlite3_reset(rows);
    return nums;
}

void printBatchRaw(benchmark::State& state)
{
    Raw file(fileIn(folder()));
    RawInvoicePrint print(file);
    const std::vector<qint64> nums = firstNumbers(file);
    int pages = 0;
    for (auto _ : state) {
        const Stopwatch watch;
        pages = print.toPdf(nums, pdf(u"lot_brut.pdf"_s));
        state.SetIterationTime(watch.seconds());
    }
    holdSame(state, batchName, pages);
}

/// Works the event loop until a widget has been painted.
class UntilPainted : public QObject
{
public:
    explicit UntilPainted(QWidget* widget) { widget->installEventFilter(this); }

    void wait() const
    {
        while (!m_painted)
            QApplication::processEvents();
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_painted = false;
};

void showOne(benchmark::State& state)
{
    const auto exercise = open(folder());
    RegistreFactures registre = firstInvoices(*exercise);
    int rank = 0;
    for (auto _ : state) {
        if (TestImprimante(nullptr) != 0)
            throw std::runtime_error("nothing can print");
        const LotFactures one = ComposerFactures(*exercise, registre, {rank++ % batch}, GenreImpression::Facture);
        reports::Apercu preview(one.document, one.document.title());
        const UntilPainted painted(preview.view()->viewport());
        preview.show();
        painted.wait();
        QApplication::processEvents();
    }
}

void showOneRaw(benchmark::State& state)
{
    Raw file(fileIn(folder()));
    RawInvoicePrint print(file);
    const std::vector<qint64> nums = firstNumbers(file);
    int rank = 0;
    for (auto _ : state) {
        RawPreview preview(print, nums[size_t(rank++ % batch)]);
        const UntilPainted painted(&preview);
        preview.show();
        painted.wait();
        QApplication::processEvents();
    }
}

} // namespace

void addPaper()
{
    add({.name = batchName, .program = printBatch, .raw = printBatchRaw, .aim = 1.5, .once = true});
    add({.name = clickName, .program = showOne, .raw = showOneRaw});
}

} // namespace talor::bench
