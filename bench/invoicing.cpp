#include "invoicing/invoicing.h"

#include "bench/cases.h"
#include "bench/exercise.h"
#include "bench/raw.h"
#include "bench/table.h"

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

const std::string name = "300,000 open lines of 2,000 clients invoiced";

/// What both sides must have left behind: invoices, their sums, the balances, lines and slips marked.
double leftBehind(Raw& file)
{
    return file.real("select count(*) + sum(Total) + sum(Consigne) + sum(ordre) + sum(Nb_lignes) from Factures") +
           file.real("select sum(Debit) - sum(Solde) + sum(Casiers) + sum(Diff) from Clients") +
           file.real("select sum(flag_f) from Bordereaux") +
           file.real("select count(*) from L_Vente, Factures "
                     "where Num_Facture = Factures.num and L_Vente.num_client = Factures.num_client");
}

QString freshCopy()
{
    const QString folder = workingFolder(u"facturation"_s);
    copyExercise(folderOfOpenLines(), folder);
    return folder;
}

void invoice(benchmark::State& state)
{
    const QString folder = freshCopy();
    for (auto _ : state) {
        const auto exercise = open(folder);
        const Stopwatch watch;
        const auto outcome = InvoiceAll(*exercise, {.date = u"31/12/2026"_s});
        state.SetIterationTime(watch.seconds());
        if (!outcome || outcome->nbFactures != clients)
            state.SkipWithError("not every client was invoiced");
    }
    Raw file(fileIn(folder));
    holdSame(state, name, leftBehind(file));
}

/// One client at a time, in a commit of its own, as the program does it.
class RawInvoicing
{
public:
    explicit RawInvoicing(Raw& file)
        : m_file(file)
        , m_sums(file.prepare("select sum(Casiers), sum(Total), count(*) from L_Vente "
                              "where Num_Facture = -1 and num_client = ?"))
        , m_invoice(
              file.prepare("insert into Factures (ordre, Date, MM, num_client, Casiers, Consigne, Total_HT, Total, "
                           "Nb_lignes) values (?, ?, ?, ?, ?, ?, ?, ?, ?)"))
        , m_slips(file.prepare("update Bordereaux set flag_f = 1 where flag_f = 0 and num in "
                               "(select num_bordereau from L_Vente where Num_Facture = -1 and num_client = ?)"))
        , m_lines(file.prepare("update L_Vente set Num_Facture = ? where Num_Facture = -1 and num_client = ?"))
        , m_client(file.prepare("update Clients set Debit = Debit + ?1, Solde = Credit - (Debit + ?1), "
                                "Casiers = Casiers + ?2, Diff = Casiers + ?2 - Rendu where num = ?3"))
        , m_begin(file.prepare("begin immediate"))
        , m_commit(file.prepare("commit"))
    {}

    void all()
    {
        std::vector<qint64> buyers;
        sqlite3_stmt* rows = m_file.prepare("select distinct num_client from L_Vente where Num_Facture = -1");
        while (sqlite3_step(rows) == SQLITE_ROW)
            buyers.push_back(sqlite3_column_int64(rows, 0));
        sqlite3_reset(rows);
        qint64 ordre = m_file.number("select max(ordre) from Factures");
        for (const qint64 buyer : buyers)
            one(buyer, ++ordre);
    }

private:
    void one(qint64 buyer, qint64 ordre)
    {
        constexpr double deposit = 100;
        m_file.execute(m_begin);
        bind(m_sums, 1, buyer);
        sqlite3_step(m_sums);
        const qint64 crates = sqlite3_column_int64(m_sums, 0);
        const double total = sqlite3_column_double(m_sums, 1);
        const qint64 count = sqlite3_column_int64(m_sums, 2);
        sqlite3_reset(m_sums);
        const double deposits = double(crates) * deposit;
        bindAll(m_invoice, ordre, QByteArray("2026-12-31"), 12, buyer, crates, deposits, total, total + deposits,
                count);
        m_file.execute(m_invoice);
        const qint64 invoice = sqlite3_last_insert_rowid(m_file.get());
        bind(m_slips, 1, buyer);
        m_file.execute(m_slips);
        bindAll(m_lines, invoice, buyer);
        m_file.execute(m_lines);
        bindAll(m_client, total, crates, buyer);
        m_file.execute(m_client);
        m_file.execute(m_commit);
    }

    Raw& m_file;
    sqlite3_stmt *m_sums, *m_invoice, *m_slips, *m_lines, *m_client, *m_begin, *m_commit;
};

void invoiceRaw(benchmark::State& state)
{
    const QString folder = freshCopy();
    Raw file(fileIn(folder));
    for (auto _ : state) {
        const Stopwatch watch;
        RawInvoicing(file).all();
        state.SetIterationTime(watch.seconds());
    }
    holdSame(state, name, leftBehind(file));
}

} // namespace

void addInvoicing()
{
    add({.name = name, .program = invoice, .raw = invoiceRaw, .aim = 1.3, .once = true});
}

} // namespace talor::bench
