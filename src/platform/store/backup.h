#pragma once

#include "platform/store/connection.h"

namespace store {

/// Puts a whole, checked copy of an open database at `target`, as it stands at this moment.
void backup(Connection& source, const QString& target);

} // namespace store
