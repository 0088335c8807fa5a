#include "core/installation.h"

#include "core/helpers.h"

namespace talor {

using namespace Qt::StringLiterals;

QString Installation::chemin(const QString& nom) const
{
    return CheminReel(m_dossier.filePath(nom));
}

QString Installation::baseVide() const
{
    return chemin(u"TAL00.mdb"_s);
}

QString Installation::base(int annee) const
{
    return chemin(u"TAL"_s + QString::number(annee) + u".mdb"_s);
}

QString Installation::archiveSortie(int annee) const
{
    return CheminReel(QDir(archives()).filePath(u"TAL"_s + QString::number(annee) + u".mdb"_s));
}

QString Installation::configuration() const
{
    return chemin(u"TAL2_CFG.CFG"_s);
}

QString Installation::pointeurAnnee(const QString& CodeFichier) const
{
    return chemin(CodeFichier + u".INI"_s);
}

QString Installation::groupeDeTravail() const
{
    return chemin(u"system.mdw"_s);
}

QString Installation::choixEcran() const
{
    return chemin(u"R_Ecran.TXT"_s);
}

QString Installation::guide() const
{
    return chemin(u"Guide_TALOR.pdf"_s);
}

QString Installation::baseProvisoire() const
{
    return chemin(u"prov.mdb"_s);
}

QString Installation::archives() const
{
    return chemin(u"Archives"_s);
}

QString Installation::photos() const
{
    return chemin(u"Photos"_s);
}

QString Installation::poissons() const
{
    return chemin(u"Poissons"_s);
}

void Installation::creerDossiers() const
{
    for (const QString& dossier : {archives(), photos(), poissons()})
        m_dossier.mkpath(dossier);
}

} // namespace talor
