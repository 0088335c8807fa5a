#include "core/paquet.h"

#include "core/helpers.h"
#include "core/installation.h"
#include "platform/store/error.h"
#include "platform/store/maintenance.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QMap>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

/// What a business has made its own from the first day on.
const QStringList jamaisRenouveles = {u"TAL2_CFG.CFG"_s, u"Identite.txt"_s};

const QString listeLivraison = u"Livraison.txt"_s;

/// File name to the sum of the content that was laid.
using Livraison = QMap<QString, QByteArray>;

Refus avertissement(const QString& texte)
{
    return {texte, u"TALOR"_s, Icone::Avertissement};
}

QString cheminLivraison(const QString& dossier)
{
    return Installation(dossier).chemin(listeLivraison);
}

/// Nothing for a file that is absent.
std::optional<QByteArray> contenu(const QString& chemin)
{
    QFile fichier(chemin);
    if (!fichier.exists())
        return std::nullopt;
    if (!fichier.open(QIODevice::ReadOnly))
        throw store::Error(0, u"le fichier ne se lit pas : "_s + fichier.errorString());
    return fichier.readAll();
}

QByteArray somme(const QByteArray& octets)
{
    return QCryptographicHash::hash(octets, QCryptographicHash::Sha256).toHex();
}

Livraison lireLivraison(const QString& dossier)
{
    Livraison livraison;
    for (const QByteArray& ligne : contenu(cheminLivraison(dossier)).value_or(QByteArray()).split('\n')) {
        const qsizetype blanc = ligne.indexOf("  ");
        if (blanc > 0)
            livraison.insert(QString::fromUtf8(ligne.mid(blanc + 2)), ligne.left(blanc));
    }
    return livraison;
}

void ecrireLivraison(const QString& dossier, const Livraison& livraison)
{
    QByteArray lignes;
    for (auto ligne = livraison.begin(); ligne != livraison.end(); ++ligne)
        lignes += ligne.value() + "  " + ligne.key().toUtf8() + '\n';
    if (contenu(cheminLivraison(dossier)) != lignes)
        store::writeFileSafely(cheminLivraison(dossier), lignes);
}

/// Creates the folder where it is absent and makes sure that it can be written to.
std::optional<Refus> ouvrirDossier(const QString& dossier)
{
    if (!QDir().mkpath(dossier))
        return avertissement(u"Le dossier « "_s + dossier + u" » n'a pas pu être créé."_s);
    QTemporaryFile essai(QDir(dossier).filePath(u"essai-XXXXXX"_s));
    if (!essai.open())
        return avertissement(u"Rien ne peut être écrit dans le dossier « "_s + dossier + u" »."_s);
    return std::nullopt;
}

void poserFichier(const QFileInfo& livre, const QString& dossier, Livraison& livraison)
{
    const QString nom = livre.fileName();
    const QByteArray nouveau = contenu(livre.filePath()).value_or(QByteArray());
    const QString cible = Installation(dossier).chemin(nom);
    if (const auto present = contenu(cible); present != nouveau) {
        const bool inchange = !jamaisRenouveles.contains(nom) && present && somme(*present) == livraison.value(nom);
        if (present && !inchange)
            return;
        store::writeFileSafely(cible, nouveau);
    }
    livraison.insert(nom, somme(nouveau));
}

} // namespace

Paquet::Paquet(const QString& livres, const QString& memoire)
    : m_livres(livres)
    , m_memoire(memoire)
{}

std::optional<Paquet> Paquet::de(const QString& dossierProgramme)
{
    const QString livres = QDir(dossierProgramme).filePath(u"livres"_s);
    if (!QFileInfo(livres).isDir())
        return std::nullopt;
    const QDir reglages(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return Paquet(livres, reglages.filePath(u"talor/dossier.txt"_s));
}

QString Paquet::dossierPropose()
{
    return QDir::home().filePath(u"TALOR"_s);
}

QString Paquet::dossierRetenu() const
{
    QFile memoire(m_memoire);
    if (!memoire.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(memoire.readAll()).section(u'\n', 0, 0);
}

std::optional<Refus> Paquet::retenir(const QString& dossier) const
{
    QFileInfo(m_memoire).dir().mkpath(u"."_s);
    try {
        store::writeFileSafely(m_memoire, dossier.toUtf8() + '\n');
    } catch (const store::Error& erreur) {
        return avertissement(u"Le choix du dossier n'a pas pu être retenu : il sera demandé de nouveau.\n"_s +
                             erreur.text());
    }
    return std::nullopt;
}

QString Paquet::dossierPour(const QString& choisi)
{
    const QDir dossier(choisi);
    if (dossier.isEmpty() || FichierExiste(Installation(choisi).baseVide()))
        return choisi;
    return dossier.filePath(u"TALOR"_s);
}

std::optional<Refus> Paquet::verifier(const QString& dossier)
{
    if (!QFileInfo(dossier).isDir())
        return avertissement(u"Le dossier de vos données, « "_s + dossier +
                             u" », est introuvable.\nS'il est sur un disque amovible, "
                             "branchez-le ; s'il a été déplacé, montrez-le."_s);
    if (!FichierExiste(cheminLivraison(dossier)))
        return avertissement(u"Le dossier « "_s + dossier +
                             u" » ne contient plus vos données.\nMontrez où elles se trouvent."_s);
    return std::nullopt;
}

std::optional<Refus> Paquet::deposer(const QString& dossier) const
{
    if (auto refus = ouvrirDossier(dossier))
        return refus;
    QString enCours = listeLivraison;
    try {
        Livraison livraison = lireLivraison(dossier);
        for (const QFileInfo& livre : m_livres.entryInfoList(QDir::Files, QDir::Name)) {
            enCours = livre.fileName();
            poserFichier(livre, dossier, livraison);
        }
        enCours = listeLivraison;
        ecrireLivraison(dossier, livraison);
    } catch (const store::Error& erreur) {
        return avertissement(u"Fichier '"_s + enCours + u"' non déposé dans « "_s + dossier + u" » : "_s +
                             erreur.text());
    }
    return std::nullopt;
}

} // namespace talor
