#pragma once

#include <QString>

#include <functional>

/// Dialling, through whatever on this machine answers a "tel:" address.
namespace services::telephone {

/// The number as it is dialled: trimmed and, when longer than 3 characters, without anything but digits behind its
/// first character, which stays whatever it is ("+213 (0)41" gives "+213041").
QString dialable(const QString& number);

/// Asks for the call; false when nothing took it.
bool call(const QString& number);

/// Takes the calls in place of the machine and says whether they went through. Empty gives them back to it.
using Dialler = std::function<bool(const QString& dialled)>;
Dialler setDialler(Dialler dialler);

} // namespace services::telephone
