#pragma once

#include "banc.h"

namespace torture {

/// Puts the harness itself to the test: postings falsified by hand, one after the other, each of which it has to see,
/// and disks that lie, which have to lose something.
void eprouver(Banc& banc);

} // namespace torture
