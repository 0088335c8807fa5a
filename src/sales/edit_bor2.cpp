#include "sales/edit_bor2.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

/// Meaning of the indexes of `Crecettes`.
enum Action
{
    Filtre,
    Imprimer,
    Quitter
};

} // namespace

Edit_Bor2::Edit_Bor2(Exercice& exercice, QWidget* parent)
    : DialogueBordereaux(u"Edit_Bor2", exercice, RegistreBordereaux::Porte::Edition,
                         {{Filtre, u"filtre"_s, u"Filtre"_s, Qt::CTRL | Qt::Key_F},
                          {Imprimer, u"imprimer"_s, u"Imprimer"_s, Qt::CTRL | Qt::Key_P},
                          {Quitter, u"quitter"_s, u"Quitter"_s}},
                         parent)
{
    charger();
}

void Edit_Bor2::executer(int index)
{
    switch (index) {
    case Filtre:
        return ouvrirFiltre();
    case Imprimer:
        return imprimer();
    case Quitter:
        return leave();
    }
}

} // namespace talor
