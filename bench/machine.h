#pragma once

#include <QString>

namespace talor::bench {

/// The machine and the libraries of this run, as a list: processor, memory, system, time of a flush to the disk, how
/// busy it is.
QString describeMachine();

} // namespace talor::bench
