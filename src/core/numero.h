#pragma once

#include <QString>

namespace talor {

/// The number as it is dialled: without blanks around it and, when longer than 3 characters, without anything but
/// digits after its first character, which stays whatever it is: "+213 21.36" gives "+2132136".
QString NumeroCompose(const QString& numero);

} // namespace talor
