#include "invoicing/factures.h"

#include "platform/services/clock.h"

namespace talor {

using namespace Qt::StringLiterals;

FACTURES::FACTURES(Exercice& exercice, QWidget* parent)
    : DialogueFactures(u"FACTURES", u"Factures"_s, exercice, RegistreFactures::Porte::Registre,
                       services::clock::todayText(), parent)
{}

} // namespace talor
