#include "core/words.h"

#include <array>
#include <cmath>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr int largeurLigne = 60;
constexpr int largeurCadre = 68;
constexpr int nbLignesMax = 5;

const std::array<QString, 20> unites = {u""_s,       u"UN"_s,    u"DEUX"_s,     u"TROIS"_s,    u"QUATRE"_s,
                                        u"CINQ"_s,   u"SIX"_s,   u"SEPT"_s,     u"HUIT"_s,     u"NEUF"_s,
                                        u"DIX"_s,    u"ONZE"_s,  u"DOUZE"_s,    u"TREIZE"_s,   u"QUATORZE"_s,
                                        u"QUINZE"_s, u"SEIZE"_s, u"DIX-SEPT"_s, u"DIX-HUIT"_s, u"DIX-NEUF"_s};

const std::array<QString, 6> dizaines = {u""_s, u""_s, u" VINGT"_s, u" TRENTE"_s, u" QUARANTE"_s, u" CINQUANTE"_s};

/// The text under construction, and the last hundreds or tens digit that was written: the plural of MILLION and
/// MILLIARD looks at that digit, not at the whole group, so that 101 MILLION takes no S and 120 MILLIONS does.
class Redaction
{
public:
    QString texte;
    qint64 Dernier = 0;

    void UniteEnLettres(qint64 n) { texte += u' ' + unites[static_cast<size_t>(n)]; }

    void GroupeEnLettres(qint64 n)
    {
        if (n >= 100) {
            Dernier = n / 100;
            n %= 100;
            if (Dernier > 1)
                UniteEnLettres(Dernier);
            texte += u" CENT"_s;
            if (n == 0 && Dernier >= 2)
                texte += u'S';
        }
        if (n >= 80)
            ecrireQuatreVingt(n - 80);
        else if (n >= 60)
            ecrireAvecReste(u" SOIXANTE"_s, n - 60);
        else if (n >= 20) {
            Dernier = n / 10;
            texte += dizaines[static_cast<size_t>(Dernier)];
            if (n % 10 == 1)
                texte += u" ET"_s;
            UniteEnLettres(n % 10);
        } else if (n >= 1)
            UniteEnLettres(n);
    }

    /// Writes "<group> MILLION" or "MILLIARD" and takes it off n.
    void ecrireGrandGroupe(qint64& n, qint64 puissance, const QString& nom)
    {
        if (n < puissance)
            return;
        Dernier = n / puissance;
        n %= puissance;
        GroupeEnLettres(Dernier);
        texte += nom;
        if (Dernier > 1)
            texte += u'S';
    }

private:
    void ecrireQuatreVingt(qint64 reste)
    {
        if (reste == 0)
            texte += u" QUATRE-VINGTS"_s;
        else
            ecrireAvecReste(u" QUATRE-VINGT"_s, reste);
    }

    void ecrireAvecReste(const QString& dizaine, qint64 reste)
    {
        texte += dizaine;
        if (reste == 1 || reste == 11)
            texte += u" ET"_s;
        UniteEnLettres(reste);
    }
};

} // namespace

QString EntierEnLettres(qint64& n)
{
    Redaction redaction;
    if (n == 0)
        redaction.texte = u"ZERO"_s;
    if (n < 0) {
        redaction.texte = u"MOINS"_s;
        n = -n;
    }
    redaction.ecrireGrandGroupe(n, 1'000'000'000, u" MILLIARD"_s);
    redaction.ecrireGrandGroupe(n, 1'000'000, u" MILLION"_s);
    if (n >= 1000) {
        redaction.Dernier = n / 1000;
        n %= 1000;
        if (redaction.Dernier > 1)
            redaction.GroupeEnLettres(redaction.Dernier);
        redaction.texte += u" MILLE"_s;
    }
    if (n > 0)
        redaction.GroupeEnLettres(n);
    return redaction.texte;
}

QStringList MontantEnLettres(double montant)
{
    const double partieEntiere = std::floor(montant);
    auto Entier = static_cast<qint64>(partieEntiere);
    QString texte = EntierEnLettres(Entier) + u" DINAR"_s;
    if (Entier > 1)
        texte += u'S';

    const double fraction = montant - partieEntiere;
    if (fraction > 0.009) {
        // 101, not 100: it absorbs the error of a fraction that stands just below its centime.
        auto centimes = static_cast<qint64>(fraction * 101);
        texte += u" ET"_s + EntierEnLettres(centimes) + u" CENTIME"_s;
        if (centimes > 1)
            texte += u'S';
    }
    return EncadrerLignes(texte);
}

QStringList EncadrerLignes(const QString& texte)
{
    QStringList lignes;
    QString reste = texte.trimmed();
    while (reste.size() > largeurLigne && lignes.size() < nbLignesMax - 1) {
        const qsizetype blanc = reste.lastIndexOf(u' ', largeurLigne);
        const qsizetype coupe = blanc >= 1 ? blanc : largeurLigne;
        lignes.append(reste.left(coupe));
        reste = reste.mid(blanc >= 1 ? coupe + 1 : coupe).trimmed();
    }
    lignes.append(reste);
    for (QString& ligne : lignes)
        ligne = (u"*** "_s + ligne + u' ').leftJustified(largeurCadre, u'*');
    return lignes;
}

} // namespace talor
