#pragma once

#include "platform/store/connection.h"

namespace store {

/// The statements that make the tables and indexes of a catalogue, as they are kept in the file: readable there without
/// this program, whatever the tool.
QByteArray schemaOf(const Catalogue& catalogue);

/// Throws `Error` when the file is not one of the catalogue's: another mark or version, a table or a field too few.
void checkSchema(Connection& connection, const Catalogue& catalogue);

/// Puts the tables, indexes and marks of a catalogue into an empty file.
void makeSchema(Connection& connection, const Catalogue& catalogue);

} // namespace store
