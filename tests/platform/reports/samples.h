#pragma once

#include "tests/platform/reports/memory_source.h"

/// A season's data in small, as the templates of the program print it.
namespace samples {

/// What the program writes into the report texts before it prints an invoice.
SampleRow invoiceTexts(int ordre);
/// The same for a delivery note: no sum in words.
SampleRow deliveryNoteTexts(int ordre);
SampleRow listTexts();

QList<SampleRow> invoiceRows(int num, int ordre, int lines);
/// The lines of one bordereau; of its expenses the first `expenses` have an amount, the second of them no label.
QList<SampleRow> slipRows(int lines, int expenses);
QList<SampleRow> clients(int count);
/// Rows of the listing of invoices; the fifth is a regularisation.
QList<SampleRow> listedInvoices(int count);
QList<SampleRow> fish();
QList<SampleRow> owners();
QList<SampleRow> boats();

/// All of the above, the invoice with `lines` lines.
MemorySource everything(int lines);

} // namespace samples
