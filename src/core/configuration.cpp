#include "core/configuration.h"

#include "platform/store/error.h"
#include "platform/store/maintenance.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QtEndian>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr int motsParEnregistrement = 42;
constexpr int octetsParEnregistrement = 2 * motsParEnregistrement;
constexpr int facteur = 7;
constexpr int enregistrementReglages = 4;
/// Identity text i stands in record 4 + 16 x (3 - 1) + i.
constexpr int avantTextes = enregistrementReglages + Configuration::nbTextes * 2;
constexpr int nbEnregistrements = avantTextes + Configuration::nbTextes;
constexpr int motLangue = 5;
constexpr int premierMotCode = 8;
constexpr int dernierMotCode = 10;
constexpr int motLongueurTexte = motsParEnregistrement;
constexpr int codeMax = 65535 / facteur;

using Enregistrement = std::array<quint16, motsParEnregistrement + 1>; // words counted from 1

Enregistrement lireEnregistrement(const QByteArray& contenu, int numero)
{
    Enregistrement mots{};
    const char* debut = contenu.constData() + (numero - 1) * octetsParEnregistrement;
    for (int i = 1; i <= motsParEnregistrement; ++i)
        mots[static_cast<size_t>(i)] = qFromLittleEndian<quint16>(debut + 2 * (i - 1));
    return mots;
}

void ecrireEnregistrement(QByteArray& contenu, int numero, const Enregistrement& mots)
{
    char* debut = contenu.data() + (numero - 1) * octetsParEnregistrement;
    for (int i = 1; i <= motsParEnregistrement; ++i)
        qToLittleEndian(mots[static_cast<size_t>(i)], debut + 2 * (i - 1));
}

quint16 brouiller(QChar c)
{
    const int code = c.unicode() <= codeMax ? c.unicode() : u'?';
    return static_cast<quint16>(code * facteur);
}

QString caracteres(const Enregistrement& mots, int premier, int nombre)
{
    QString texte;
    for (int i = premier; i < premier + qMin(nombre, Configuration::motLongueurMax); ++i)
        texte += QChar(mots[static_cast<size_t>(i)] / facteur);
    return texte;
}

/// An identity text: its length times 7 in the last word, its characters from the first.
QString lireTexte(const Enregistrement& mots)
{
    return caracteres(mots, 1, mots[motLongueurTexte] / facteur);
}

Enregistrement enregistrementTexte(const QString& texte)
{
    Enregistrement mots{};
    for (int i = 1; i < motLongueurTexte; ++i)
        mots[static_cast<size_t>(i)] = static_cast<quint16>(QRandomGenerator::global()->generateDouble() * facteur);
    const QString garde = texte.trimmed().left(Configuration::motLongueurMax);
    mots[motLongueurTexte] = static_cast<quint16>(garde.size() * facteur);
    for (qsizetype i = 0; i < garde.size(); ++i)
        mots[static_cast<size_t>(i + 1)] = brouiller(garde[i]);
    return mots;
}

/// An access word: its plain length in the first word, its characters behind it.
QString lireMot(const Enregistrement& mots)
{
    return caracteres(mots, 2, mots[1]);
}

Enregistrement enregistrementMot(const QString& mot)
{
    Enregistrement mots{};
    const QString garde = mot.left(Configuration::motLongueurMax);
    mots[1] = static_cast<quint16>(garde.size());
    for (qsizetype i = 0; i < garde.size(); ++i)
        mots[static_cast<size_t>(i + 2)] = brouiller(garde[i]);
    return mots;
}

QString lireCode(const Enregistrement& reglages)
{
    QString code;
    for (int i = premierMotCode; i <= dernierMotCode; ++i)
        if (const quint16 mot = reglages[static_cast<size_t>(i)]; mot != 0)
            code += QChar(mot / facteur);
    return code;
}

bool codeUtilisable(const QString& code)
{
    return !code.isEmpty() && std::all_of(code.begin(), code.end(),
                                          [](QChar c) { return c.isLetterOrNumber() || c == u'_' || c == u'-'; });
}

Refus refusFichier(const QString& chemin, const QString& raison)
{
    return {u"Fichier '"_s + QFileInfo(chemin).fileName() + u"' "_s + raison};
}

Resultat<QByteArray> lireContenu(const QString& chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        return refusFichier(chemin, u"illisible : "_s + fichier.errorString());
    // A little more than needed is enough to know the file; a huge foreign one is not read whole.
    const QByteArray contenu = fichier.read(nbEnregistrements * octetsParEnregistrement);
    if (contenu.size() < nbEnregistrements * octetsParEnregistrement)
        return refusFichier(chemin, u"incomplet : ce n'est pas un fichier de configuration"_s);
    return contenu;
}

std::optional<Refus> ecrireContenu(const QString& chemin, const QByteArray& contenu)
{
    try {
        store::writeFileSafely(chemin, contenu);
    } catch (const store::Error& erreur) {
        return refusFichier(chemin, u"non enregistré : "_s + erreur.text());
    }
    return std::nullopt;
}

} // namespace

const std::array<int, Configuration::nbTextes> Configuration::largeurs = {40, 30, 20, 20, 30, 38, 38, 38,
                                                                          40, 30, 20, 20, 30, 38, 38, 38};

Resultat<Configuration> Configuration::lire(const QString& chemin)
{
    const Resultat<QByteArray> contenu = lireContenu(chemin);
    if (!contenu)
        return contenu.refus();
    Configuration lue;
    const Enregistrement reglages = lireEnregistrement(*contenu, enregistrementReglages);
    lue.CodeFichier = lireCode(reglages);
    if (!codeUtilisable(lue.CodeFichier))
        return refusFichier(chemin, u"altéré : le nom du fichier des exercices n'y est pas"_s);
    const quint16 langue = reglages[motLangue];
    lue.langue = langue == 1 || langue > 65534 ? langue : francais;
    for (int i = 0; i < nbMots; ++i)
        lue.mots[static_cast<size_t>(i)] = lireMot(lireEnregistrement(*contenu, i + 1));
    for (int i = 0; i < nbTextes; ++i) {
        const auto rang = static_cast<size_t>(i);
        lue.textes[rang] = lireTexte(lireEnregistrement(*contenu, avantTextes + i + 1)).left(largeurs[rang]).trimmed();
    }
    return lue;
}

std::optional<Refus> Configuration::ecrire(const QString& chemin) const
{
    QByteArray contenu(nbEnregistrements * octetsParEnregistrement, '\0');
    for (int i = 0; i < nbMots; ++i)
        ecrireEnregistrement(contenu, i + 1, enregistrementMot(mots[static_cast<size_t>(i)]));
    Enregistrement reglages{};
    reglages[motLangue] = langue;
    for (int i = 0; i < CodeFichier.size() && premierMotCode + i <= dernierMotCode; ++i)
        reglages[static_cast<size_t>(premierMotCode + i)] = brouiller(CodeFichier[i]);
    ecrireEnregistrement(contenu, enregistrementReglages, reglages);
    for (int i = 0; i < nbTextes; ++i) {
        const auto rang = static_cast<size_t>(i);
        ecrireEnregistrement(contenu, avantTextes + i + 1, enregistrementTexte(textes[rang].left(largeurs[rang])));
    }
    return ecrireContenu(chemin, contenu);
}

std::optional<Refus> Configuration::ecrireMot(const QString& chemin, int rang, const QString& mot)
{
    const Resultat<QByteArray> contenu = lireContenu(chemin);
    if (!contenu)
        return contenu.refus();
    QFile fichier(chemin);
    if (!(fichier.permissions() & QFileDevice::WriteOwner))
        fichier.setPermissions(fichier.permissions() | QFileDevice::WriteOwner);
    QByteArray nouveau = fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : *contenu;
    fichier.close();
    ecrireEnregistrement(nouveau, rang + 1, enregistrementMot(mot));
    return ecrireContenu(chemin, nouveau);
}

PointeurAnnee PointeurAnnee::lire(const QString& chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        return {};
    const QByteArray contenu = fichier.read(4);
    if (contenu.size() < 4)
        return {};
    PointeurAnnee lu;
    lu.AnneeInitiale = qFromLittleEndian<qint16>(contenu.constData());
    lu.NbClotures = qFromLittleEndian<qint16>(contenu.constData() + 2);
    return lu;
}

std::optional<Refus> PointeurAnnee::ecrire(const QString& chemin) const
{
    QByteArray contenu(4, '\0');
    qToLittleEndian(AnneeInitiale, contenu.data());
    qToLittleEndian(NbClotures, contenu.data() + 2);
    return ecrireContenu(chemin, contenu);
}

} // namespace talor
