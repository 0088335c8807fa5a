#pragma once

namespace talor {

/// The order in which a list is shown or printed; its values are those of the dialog "Classement".
enum class Classement
{
    OrdreManuel = 1,
    OrdreAlphabetique = 2
};

} // namespace talor
