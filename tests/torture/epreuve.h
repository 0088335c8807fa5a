#pragma once

#include "banc.h"

namespace torture {

/// Puts the harness itself to the test: postings falsified by hand, one after the other, each of which it has to see.
/// Returns how many it did not.
int eprouver(Banc& banc);

} // namespace torture
