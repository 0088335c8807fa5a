#pragma once

namespace talor::bench {

// Each takes up the cases of one subject.
void addStore();     ///< reading, finding
void addSale();      ///< one sale line recorded
void addEntry();     ///< keys typed at the journal of sales
void addInvoicing(); ///< all open lines turned into invoices
void addLists();     ///< registers read and painted
void addPaper();     ///< invoices laid out, to PDF and to the screen
void addStart();     ///< the program's start
void addUpkeep();    ///< copy, check, compaction

} // namespace talor::bench
