#include "bench/cases.h"
#include "bench/exercise.h"
#include "bench/raw.h"
#include "bench/table.h"
#include "invoicing/invoice_register.h"
#include "platform/controls/grid.h"
#include "platform/controls/look.h"
#include "sales/f_bord.h"

#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize listSize(1240, 620);

const QList<controls::Column> bordereauColumns = {{u"N°"_s, 700, Qt::AlignHCenter},
                                                  {u"Date"_s, 1200},
                                                  {u"Embarcation"_s, 2400, Qt::AlignLeft, true},
                                                  {u"Cageots"_s, 900, Qt::AlignRight},
                                                  {u"Brut"_s, 1400, Qt::AlignRight},
                                                  {u"Primes"_s, 1200, Qt::AlignRight},
                                                  {u"Commission"_s, 1300, Qt::AlignRight},
                                                  {u"Frais"_s, 1200, Qt::AlignRight},
                                                  {u"Net"_s, 1400, Qt::AlignRight},
                                                  {u"Facturé"_s, 900, Qt::AlignHCenter},
                                                  {u"Décompte"_s, 1000, Qt::AlignRight}};

const QList<controls::Column> invoiceColumns = {
    {u"N°"_s, 800, Qt::AlignHCenter},         {u"Date"_s, 1200},
    {u"Client"_s, 3400, Qt::AlignLeft, true}, {u"Téléphone"_s, 1500},
    {u"Cageots"_s, 900, Qt::AlignRight},      {u"Poisson"_s, 1500, Qt::AlignRight},
    {u"Consigne"_s, 1400, Qt::AlignRight},    {u"Total"_s, 1500, Qt::AlignRight},
    {u"Réglée"_s, 900, Qt::AlignHCenter},     {u"Imprimer"_s, 900, Qt::AlignHCenter}};

std::unique_ptr<controls::Grid> shownGrid(const QList<controls::Column>& columns)
{
    auto grid = std::make_unique<controls::Grid>();
    grid->setColumns(columns);
    grid->resize(listSize);
    grid->show();
    QApplication::processEvents();
    return grid;
}

/// The rows in view and the heads, straight on a painter, at the same places, sizes and inks.
void paintList(const QList<controls::Column>& columns, int count, const controls::Grid::Format& cell)
{
    constexpr int row = 28;
    constexpr int head = 32;
    constexpr int margin = 7;
    QPixmap picture(listSize);
    picture.fill(controls::colour::paper);
    QPainter painter(&picture);
    painter.setFont(QApplication::font());
    const auto paintRow = [&](int top, int height, const QColor& behind, const QColor& ink, const auto& textOf) {
        painter.fillRect(0, top, listSize.width(), height, behind);
        painter.setPen(ink);
        int left = 0;
        for (int column = 0; column < columns.size(); ++column) {
            const int width = columns[column].widthTwips / 15;
            painter.drawText(QRect(left + margin, top, width - 2 * margin, height),
                             int(columns[column].alignment | Qt::AlignVCenter), textOf(column));
            left += width;
        }
    };
    paintRow(0, head, controls::colour::blueLight, controls::colour::navy,
             [&](int column) { return columns[column].caption; });
    for (int i = 0; i < count && head + i * row < listSize.height(); ++i)
        paintRow(head + i * row, row, i % 2 ? controls::colour::band : controls::colour::paper, controls::colour::ink,
                 [&](int column) { return cell(i, column); });
    benchmark::DoNotOptimize(picture);
}

QString amount(double value)
{
    return value == 0 ? QString() : QString::number(value, 'f', 2);
}

// --- Bordereaux ------------------------------------------------------------------------------------------------------

const std::string registerName = "the register's window opened on 20,000 bordereaux";
const std::string bordereauxName = "register of 20,000 bordereaux read and painted";

void showBordereaux(benchmark::State& state)
{
    const auto exercise = open(folderOf(medium));
    const auto grid = shownGrid(bordereauColumns);
    RegistreBordereaux registre(*exercise, RegistreBordereaux::Porte::Registre);
    registre.LoadRegister();
    for (auto _ : state) {
        registre.LoadRegister();
        grid->setRows(registre.nbLignes(), [&](int row, int column) { return registre.cellule(row, column); });
        benchmark::DoNotOptimize(grid->grab());
    }
    holdSame(state, bordereauxName, grid->rowCount());
}

/// The whole dialog, from nothing to its first painting.
void openRegister(benchmark::State& state)
{
    const auto exercise = open(folderOf(medium));
    for (auto _ : state) {
        F_Bord window(*exercise, {});
        window.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(window.grab());
    }
}

struct RawBordereau
{
    qint64 num, ordre, boat, crates, settled;
    QString date;
    double gross, premiums, commission, expenses, net;
    bool invoiced;
};

QString cellOf(const RawBordereau& row, int rank, int column, const QHash<qint64, QString>& names)
{
    switch (column) {
    case ColBordNumero:
        return QString::number(rank + 1);
    case ColBordDate:
        return row.date;
    case ColBordEmbarcation:
        return names.value(row.boat);
    case ColBordCageots:
        return QString::number(row.crates);
    case ColBordBrut:
        return amount(row.gross);
    case ColBordPrimes:
        return amount(row.premiums);
    case ColBordCommission:
        return amount((row.gross - row.premiums) * row.commission / 100);
    case ColBordFrais:
        return amount(row.expenses);
    case ColBordNet:
        return amount(row.net);
    case ColBordFacture:
        return row.invoiced ? u"OUI"_s : QString();
    default:
        return row.settled > 0 ? QString::number(row.settled) : QString();
    }
}

void showBordereauxRaw(benchmark::State& state)
{
    Raw file(fileIn(folderOf(medium)));
    sqlite3_stmt* boatRows = file.prepare("select num, denom from Chalutiers order by ordre");
    sqlite3_stmt* rows =
        file.prepare("select num, ordre, Date, Num_Chalutier, Casiers, brut, primes, Commission, frais, "
                     "net, flag_f, ordre_decompte from Bordereaux order by Date, num");
    std::vector<RawBordereau> list;
    const auto pass = [&] {
        QHash<qint64, QString> names;
        while (sqlite3_step(boatRows) == SQLITE_ROW)
            names.insert(sqlite3_column_int64(boatRows, 0), textOf(boatRows, 1));
        sqlite3_reset(boatRows);
        list.clear();
        while (sqlite3_step(rows) == SQLITE_ROW)
            list.push_back({sqlite3_column_int64(rows, 0), sqlite3_column_int64(rows, 1), sqlite3_column_int64(rows, 3),
                            sqlite3_column_int64(rows, 4), sqlite3_column_int64(rows, 11), dateOf(rows, 2),
                            sqlite3_column_double(rows, 5), sqlite3_column_double(rows, 6),
                            sqlite3_column_double(rows, 7), sqlite3_column_double(rows, 8),
                            sqlite3_column_double(rows, 9), sqlite3_column_int(rows, 10) != 0});
        sqlite3_reset(rows);
        paintList(bordereauColumns, int(list.size()),
                  [&](int row, int column) { return cellOf(list[size_t(row)], row, column, names); });
    };
    pass();
    for (auto _ : state)
        pass();
    holdSame(state, bordereauxName, double(list.size()));
}

// --- Invoices --------------------------------------------------------------------------------------------------------

const QString day = u"15/06/2026"_s;
const std::string dayName = "list of a day's invoices read and painted";
const std::string yearName = "list of a year's 20,000 invoices read and painted";

void showInvoices(benchmark::State& state, bool wholeYear)
{
    const auto exercise = open(folderOf(medium));
    const auto grid = shownGrid(invoiceColumns);
    int count = 0;
    double sum = 0;
    const auto pass = [&] {
        RegistreFactures registre(*exercise, RegistreFactures::Porte::Registre, day);
        if (wholeYear)
            registre.ApplyFilter(
                {.genre = FiltreFactures::Genre::Periode, .premiere = u"01/01/2026"_s, .seconde = u"31/12/2026"_s});
        count = registre.nbLignes();
        sum = 0;
        for (const QString& text : {registre.sommeTotalHT(), registre.sommeConsigne(), registre.sommeTotal()})
            sum += double(text.size());
        grid->setRows(count, [&](int row, int column) { return registre.cellule(row, column); });
        benchmark::DoNotOptimize(grid->grab());
        grid->clear();
    };
    pass();
    for (auto _ : state)
        pass();
    benchmark::DoNotOptimize(sum);
    holdSame(state, wholeYear ? yearName : dayName, count);
}

struct RawInvoice
{
    qint64 num, ordre, crates;
    int rank; ///< of the client among the clients by name
    QString date, client, telephone;
    double fish, deposit, total;
    bool settled;
};

QString cellOf(const RawInvoice& row, int column)
{
    switch (column) {
    case ColFactNumero:
        return QString::number(row.ordre);
    case ColFactDate:
        return row.date;
    case ColFactClient:
        return row.client;
    case ColFactTelephone:
        return row.telephone;
    case ColFactCageots:
        return QString::number(row.crates);
    case ColFactPoisson:
        return amount(row.fish);
    case ColFactConsigne:
        return amount(row.deposit);
    case ColFactTotal:
        return amount(row.total);
    case ColFactReglee:
        return row.settled ? u"OUI"_s : QString();
    default:
        return {};
    }
}

/// The quickest way found by hand: the clients are sorted once, the invoices by the client's place among them.
void showInvoicesRaw(benchmark::State& state, bool wholeYear)
{
    Raw file(fileIn(folderOf(medium)));
    sqlite3_stmt* clientRows =
        file.prepare("select num from Clients order by nom collate FRENCH, prenom collate FRENCH");
    sqlite3_stmt* span = file.prepare("select min(Date), max(Date) from Factures");
    sqlite3_stmt* rows =
        file.prepare("select F.num, F.ordre, F.Date, F.Casiers, F.Total_HT, F.Consigne, F.Total, F.Flag_R, C.nom, "
                     "C.prenom, C.tel, C.num from Factures F, Clients C where F.Date >= ? and F.Date <= ? "
                     "and C.num = F.num_client");
    const QByteArray first = wholeYear ? "2026-01-01" : "2026-06-15";
    const QByteArray last = wholeYear ? "2026-12-31" : "2026-06-15";
    std::vector<RawInvoice> list;
    const auto pass = [&] {
        QHash<qint64, int> ranks;
        while (sqlite3_step(clientRows) == SQLITE_ROW)
            ranks.insert(sqlite3_column_int64(clientRows, 0), int(ranks.size()));
        sqlite3_reset(clientRows);
        sqlite3_step(span);
        benchmark::DoNotOptimize(dateOf(span, 0) + dateOf(span, 1));
        sqlite3_reset(span);
        list.clear();
        double sum = 0;
        bindAll(rows, first, last);
        while (sqlite3_step(rows) == SQLITE_ROW) {
            list.push_back({sqlite3_column_int64(rows, 0), sqlite3_column_int64(rows, 1), sqlite3_column_int64(rows, 3),
                            ranks.value(sqlite3_column_int64(rows, 11)), dateOf(rows, 2),
                            textOf(rows, 8) + u"  "_s + textOf(rows, 9), textOf(rows, 10),
                            sqlite3_column_double(rows, 4), sqlite3_column_double(rows, 5),
                            sqlite3_column_double(rows, 6), sqlite3_column_int(rows, 7) != 0});
            sum += list.back().total + list.back().fish + list.back().deposit;
        }
        sqlite3_reset(rows);
        std::stable_sort(list.begin(), list.end(),
                         [](const RawInvoice& a, const RawInvoice& b) { return a.rank < b.rank; });
        benchmark::DoNotOptimize(sum);
        paintList(invoiceColumns, int(list.size()),
                  [&](int row, int column) { return cellOf(list[size_t(row)], column); });
    };
    pass();
    for (auto _ : state)
        pass();
    holdSame(state, wholeYear ? yearName : dayName, double(list.size()));
}

} // namespace

void addLists()
{
    add({.name = bordereauxName, .program = showBordereaux, .raw = showBordereauxRaw, .aim = 2});
    add({.name = registerName, .program = openRegister, .raw = showBordereauxRaw});
    for (const bool wholeYear : {false, true}) {
        add({.name = wholeYear ? yearName : dayName,
             .program = [wholeYear](benchmark::State& state) { showInvoices(state, wholeYear); },
             .raw = [wholeYear](benchmark::State& state) { showInvoicesRaw(state, wholeYear); }});
    }
}

} // namespace talor::bench
