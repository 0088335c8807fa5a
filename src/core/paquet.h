#pragma once

#include "core/refus.h"

#include <QDir>

namespace talor {

/// A program installed for the whole machine. It lies where its user may not write and carries the delivered files in
/// a folder beside it; it works in a folder of the user's, chosen once and remembered. A program without that folder
/// beside it is portable and works where it lies.
class Paquet
{
public:
    /// `livres` holds the delivered files, `memoire` is the small text file that remembers the user's folder.
    Paquet(const QString& livres, const QString& memoire);
    /// The package of the program that lies in this folder; nothing when it is portable.
    static std::optional<Paquet> de(const QString& dossierProgramme);

    /// ~/TALOR
    static QString dossierPropose();
    /// The user's folder as remembered; empty before he has chosen one.
    QString dossierRetenu() const;
    std::optional<Refus> retenir(const QString& dossier) const;

    /// The folder to work in when this one was pointed at: itself when it is new, empty or TALOR's already, otherwise
    /// a folder TALOR inside it, so that nothing is strewn among a person's own documents.
    static QString dossierPour(const QString& choisi);
    /// Refuses a remembered folder in which nothing was ever laid, as when the disk that bears it is not there: a new
    /// business must not begin in its place.
    static std::optional<Refus> verifier(const QString& dossier);

    /// Lays the delivered files in a folder, which is created where it is absent.
    ///
    /// What is absent is laid. What is as it was laid last is renewed, so that a newer package brings its newer
    /// templates; what the user has changed stays his, and so do the configuration and its source always. The list
    /// Livraison.txt there tells what was laid, in the form that sha256sum checks.
    std::optional<Refus> deposer(const QString& dossier) const;

private:
    QDir m_livres;
    QString m_memoire;
};

} // namespace talor
