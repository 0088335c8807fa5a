#pragma once

#include "bench/raw.h"

#include <QDialog>
#include <QList>

#include <functional>
#include <vector>

class QPainter;

namespace talor::bench {

/// An invoice as its rows come, with no template in between.
struct RawInvoicePage
{
    struct Line
    {
        QString fish;
        qint64 crates;
        double weight, price, total;
    };
    qint64 ordre = 0;
    QString date, client, address, town, registration;
    QStringList heading; ///< the trader's three lines
    double fish = 0, deposit = 0, total = 0;
    QStringList words; ///< the sum in words
    std::vector<Line> lines;
};

/// Prints invoices by prepared statements and a painter: what `Facture.RPT` shows, at fixed places.
class RawInvoicePrint
{
public:
    explicit RawInvoicePrint(Raw& file);

    /// All of them in one file, and the texts of the reports written in one commit. Returns the number of pages.
    int toPdf(const std::vector<qint64>& nums, const QString& path);
    /// Reads one, its texts written.
    RawInvoicePage read(qint64 num);
    /// Paints it in tenths of a point; a page that is full calls `newPage`. Returns the number of pages.
    static int paint(QPainter& painter, const RawInvoicePage& invoice, const std::function<void()>& newPage);

private:
    void writeTexts(const RawInvoicePage& invoice);

    Raw& m_file;
    sqlite3_stmt *m_invoice, *m_lines, *m_texts, *m_begin, *m_commit;
};

/// A plain dialog that shows the invoice's page whole.
class RawPreview : public QDialog
{
public:
    RawPreview(RawInvoicePrint& print, qint64 num);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    RawInvoicePage m_invoice;
};

} // namespace talor::bench
