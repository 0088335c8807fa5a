#pragma once

#include "banc.h"
#include "disk.h"

namespace torture {

/// Cuts the current at random moments of recorded work: the files are put back as a disk could hold them then, what
/// was not synced lost, kept or torn, and held against what was announced up to that moment. The work goes on from one
/// of the files found, before anything has mended it, so that the current is cut during a recovery too.
void couperLeCourant(Banc& banc, int coupures);

/// The same on a disk that does not sync all that it is asked to: returns how many cuts lost something.
int pertesDunDisque(Banc& banc, int coupures, Disk::Obeys obeys);

} // namespace torture
