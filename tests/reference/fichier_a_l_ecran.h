#pragma once

#include "platform/controls/grid.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

namespace talor {

/// A card-file dialog open on an exercise, worked by keyboard.
template<class Dialogue> class FichierALEcran
{
public:
    explicit FichierALEcran(Exercice& exercice)
        : dialogue(exercice)
    {
        ::show(dialogue);
        QCoreApplication::processEvents(); // an empty file opens its first card of its own accord
    }

    Dialogue dialogue;

    controls::Grid* grille() { return control<controls::Grid>(dialogue, QStringLiteral("Grid1")); }
    bool enSaisie() { return isShown(dialogue, QStringLiteral("SSFrame1")); }
    QString titre() { return textOf(dialogue, QStringLiteral("SSPanel2")); }
    QString champ(int index) { return textOf(dialogue, nom(index)); }
    /// Name of the control that has the focus.
    QString focus() { return focusOf(dialogue); }

    void touche(Qt::Key cle, Qt::KeyboardModifiers modifieurs = {}) { press(dialogue, cle, modifieurs); }
    void ok() { touche(Qt::Key_Return, Qt::ControlModifier); }
    void taper(int index, const QString& texte) { type(dialogue, nom(index), texte); }
    /// Types texts from field to field, Enter between them, from the field that has the focus.
    void taperSuite(const QStringList& textes)
    {
        for (const QString& texte : textes) {
            type(dialogue.focusWidget(), texte);
            if (&texte != &textes.last())
                touche(Qt::Key_Return);
        }
    }

    /// Texts of a column, as they are shown.
    QStringList colonne(int numero)
    {
        QStringList textes;
        for (int ligne = 0; ligne < grille()->rowCount(); ++ligne)
            textes.append(grille()->text(ligne, numero));
        return textes;
    }

    static QString nom(int index) { return QStringLiteral("Text1(%1)").arg(index); }
};

} // namespace talor
