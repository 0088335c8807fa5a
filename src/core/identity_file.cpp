#include "core/identity_file.h"

#include <QFile>
#include <QFileInfo>

#include <optional>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr int textesParLangue = Configuration::nbTextes / 2;

struct Cle
{
    QString* valeur;
    int largeur;
};

/// "nom", "ligne2" to "ligne8", the same with "_ar"; "mot1" to "mot3"; "fichier".
std::optional<Cle> trouverCle(Configuration& c, const QString& nom)
{
    if (nom == u"fichier")
        return Cle{&c.CodeFichier, 3};
    for (int i = 0; i < Configuration::nbMots; ++i)
        if (nom == u"mot"_s + QString::number(i + 1))
            return Cle{&c.mots[static_cast<size_t>(i)], Configuration::motLongueurMax};
    for (int i = 0; i < Configuration::nbTextes; ++i) {
        const int rang = i % textesParLangue + 1;
        const QString attendu =
            (rang == 1 ? u"nom"_s : u"ligne"_s + QString::number(rang)) + (i < textesParLangue ? u""_s : u"_ar"_s);
        if (nom == attendu)
            return Cle{&c.textes[static_cast<size_t>(i)], Configuration::largeurs[static_cast<size_t>(i)]};
    }
    return std::nullopt;
}

} // namespace

Resultat<Configuration> lireFichierIdentite(const QString& chemin)
{
    const QString nomFichier = QFileInfo(chemin).fileName();
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        return Refus{u"Fichier '"_s + nomFichier + u"' illisible : "_s + fichier.errorString()};

    Configuration lue;
    const QStringList lignes = QString::fromUtf8(fichier.readAll()).split(u'\n');
    for (qsizetype i = 0; i < lignes.size(); ++i) {
        const auto refuser = [&](const QString& raison) {
            return Refus{u"Fichier '"_s + nomFichier + u"', ligne "_s + QString::number(i + 1) + u" : "_s + raison};
        };
        const QString ligne = lignes[i].trimmed();
        if (ligne.isEmpty() || ligne.startsWith(u'#'))
            continue;
        const qsizetype egal = ligne.indexOf(u'=');
        if (egal < 0)
            return refuser(u"« clé = valeur » attendu"_s);
        const QString nom = ligne.left(egal).trimmed().toLower();
        const QString valeur = ligne.mid(egal + 1).trimmed();
        const std::optional<Cle> cle = trouverCle(lue, nom);
        if (!cle)
            return refuser(u"clé « "_s + nom + u" » inconnue"_s);
        if (valeur.size() > cle->largeur)
            return refuser(u"« "_s + nom + u" » dépasse "_s + QString::number(cle->largeur) + u" caractères"_s);
        *cle->valeur = valeur;
    }
    if (lue.textes[0].isEmpty() || lue.CodeFichier.isEmpty())
        return Refus{u"Fichier '"_s + nomFichier + u"' : « nom » et « fichier » sont nécessaires"_s};
    return lue;
}

} // namespace talor
