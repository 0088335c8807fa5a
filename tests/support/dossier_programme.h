#pragma once

#include "core/configuration.h"
#include "core/installation.h"
#include "core/schema.h"

#include <QFile>
#include <QTemporaryDir>

namespace talor {

/// The folder of the program as it is delivered: nothing of a business in it yet.
class DossierProgramme
{
public:
    DossierProgramme()
    {
        ecrire(QStringLiteral("system.mdw"), "x");
        creerExerciceVide(chemin(QStringLiteral("TAL00.mdb")));
        Configuration configuration;
        configuration.CodeFichier = QStringLiteral("TLR");
        configuration.textes[0] = QStringLiteral("Mandataire Essai");
        configuration.textes[2] = QStringLiteral("Port de Ténès");
        configuration.ecrire(chemin(QStringLiteral("TAL2_CFG.CFG")));
    }

    Installation installation() const { return Installation(m_dossier.path()); }
    QString chemin(const QString& nom) const { return m_dossier.filePath(nom); }
    bool contient(const QString& nom) const { return QFile::exists(chemin(nom)); }

    void ecrire(const QString& nom, const QByteArray& contenu) const
    {
        QFile fichier(chemin(nom));
        if (!fichier.open(QIODevice::WriteOnly) || fichier.write(contenu) != contenu.size())
            qFatal("test file not written");
    }
    QByteArray lire(const QString& nom) const
    {
        QFile fichier(chemin(nom));
        return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
    }
    void supprimer(const QString& nom) const { QFile::remove(chemin(nom)); }

private:
    QTemporaryDir m_dossier;
};

} // namespace talor
