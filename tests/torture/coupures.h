#pragma once

#include "banc.h"
#include "disk.h"

namespace torture {

/// Cuts the current at random moments of recorded work: the files are put back as a disk could hold them then, what
/// was not synced lost, kept or torn, and held against what was announced up to that moment. The work goes on from one
/// of the files found, before anything has mended it, so that the current is cut during a recovery too.
/// Returns how many cuts showed a fault; told only where the disk obeys.
int couper(Banc& banc, int coupures, Disk::Obeys disque = Disk::Obeys::Everything);

} // namespace torture
