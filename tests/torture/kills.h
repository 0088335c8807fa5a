#pragma once

#include "banc.h"

namespace torture {

/// Kills the author of the postings at random moments, on one growing file, and holds the file against what was
/// announced.
void tuer(Banc& banc, int rondes);

} // namespace torture
