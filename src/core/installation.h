#pragma once

#include <QDir>
#include <QString>

namespace talor {

/// The folder of the program and the files that stand in it. Every path of the program comes from here, so that a
/// test or the demonstration can work in a folder of its own.
class Installation
{
public:
    explicit Installation(const QString& dossier)
        : m_dossier(dossier)
    {}

    /// A file of the folder by its name, in any case.
    QString chemin(const QString& nom) const;

    QString baseVide() const;               ///< TAL00.mdb, from which each year's file is copied
    QString base(int annee) const;          ///< TAL<year>.mdb
    QString archiveSortie(int annee) const; ///< the copy that each exit leaves in Archives
    QString configuration() const;
    QString pointeurAnnee(const QString& CodeFichier) const;
    QString groupeDeTravail() const; ///< system.mdw
    QString choixEcran() const;      ///< R_Ecran.TXT
    QString guide() const;
    QString baseProvisoire() const; ///< prov.mdb, the target of a compaction

    QString archives() const;
    QString photos() const;
    QString poissons() const;

    /// Creates Archives, Photos and Poissons where they are absent.
    void creerDossiers() const;

private:
    QDir m_dossier;
};

} // namespace talor
