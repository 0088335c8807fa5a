#pragma once

#include "core/schema.h"
#include "core/state.h"

#include <QTemporaryDir>

namespace talor {

/// A new, empty exercise of the year 2026 in a folder of its own, open, with the identity of a small trader.
class ExerciceTemporaire
{
public:
    explicit ExerciceTemporaire(int annee = 2026)
        : exercice(Installation(m_dossier.path()), configuration(), PointeurAnnee{static_cast<qint16>(annee), 0})
    {
        creerExerciceVide(exercice.CheminBase);
        exercice.installation().creerDossiers();
        exercice.OuvrirBase();
        exercice.LireParametres();
    }

    QString dossier() const { return m_dossier.path(); }
    QString chemin(const QString& nom) const { return m_dossier.filePath(nom); }

private:
    static Configuration configuration()
    {
        Configuration c;
        c.CodeFichier = QStringLiteral("TLR");
        c.textes[0] = QStringLiteral("Mandataire Essai");
        c.textes[1] = QStringLiteral("Halle à marée");
        c.textes[2] = QStringLiteral("Port de Ténès");
        c.textes[3] = QStringLiteral("RC 02/00-1234567");
        return c;
    }

    QTemporaryDir m_dossier;

public:
    Exercice exercice;
};

} // namespace talor
