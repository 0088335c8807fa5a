#pragma once

#include <QString>

namespace talor {

/// True for a typed date that a row can keep and a query can bind: exactly dd/MM/yyyy, accepted by `DateValide`.
bool dateComplete(const QString& texte);

} // namespace talor
