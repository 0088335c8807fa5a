#include "core/helpers.h"

#include "platform/text/mask.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>

#include <charconv>
#include <limits>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr int anneeMin = 1900;
constexpr int longueurDate = 10;

/// What `Valeur` takes of a text: sign, digits, one point.
QByteArray partieNumerique(QStringView texte)
{
    QByteArray lu;
    lu.reserve(texte.size());
    bool point = false;
    for (const QChar c : texte) {
        if (c.isSpace())
            continue;
        const bool signe = lu.isEmpty() && (c == u'-' || c == u'+');
        const bool premierPoint = c == u'.' && !point;
        if (!signe && !premierPoint && !(c >= u'0' && c <= u'9'))
            break;
        point = point || premierPoint;
        lu += c.toLatin1();
    }
    return lu;
}

} // namespace

double Valeur(QStringView texte)
{
    const QByteArray lu = partieNumerique(texte);
    const qsizetype debut = lu.startsWith('+') ? 1 : 0; // which from_chars does not know
    double valeur = 0;
    const auto fin = std::from_chars(lu.cbegin() + debut, lu.cend(), valeur);
    return fin.ec == std::errc::result_out_of_range ? lu.toDouble() : valeur;
}

qint64 ValeurEntiere(QStringView texte)
{
    const double valeur = Valeur(texte);
    constexpr double borne = 9.2e18;
    if (valeur >= borne)
        return std::numeric_limits<qint64>::max();
    if (valeur <= -borne)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(valeur);
}

QString NombreAvecBlanc(qint64 nombre)
{
    return nombre < 0 ? QString::number(nombre) : u' ' + QString::number(nombre);
}

QString NombreSimple(double nombre)
{
    return QString::number(nombre, 'f', QLocale::FloatingPointShortest);
}

QString Format(double montant, const QString& masque)
{
    return text::formatMask(montant, masque);
}

QString FormatSiPositif(double montant, const QString& masque)
{
    return montant > 0 ? Format(montant, masque) : QString();
}

QString FormatSiNonNul(double montant, const QString& masque)
{
    return montant != 0 ? Format(montant, masque) : QString();
}

int JoursDuMois(int mois, int annee)
{
    if (mois == 2)
        return annee % 4 == 0 ? 29 : 28;
    return mois == 4 || mois == 6 || mois == 9 || mois == 11 ? 30 : 31;
}

int DateValide(const QString& texte)
{
    if (texte.size() < longueurDate)
        return 1;
    const int jour = static_cast<int>(ValeurEntiere(QStringView(texte).left(2)));
    const int mois = MoisDe(texte);
    const int annee = static_cast<int>(ValeurEntiere(QStringView(texte).right(4)));
    if (mois < 1 || mois > 12 || annee < anneeMin)
        return 1;
    return jour < 1 || jour > JoursDuMois(mois, annee) ? 1 : 0;
}

QString DateInversee(const QString& texte)
{
    const QString lu = texte.trimmed();
    if (lu.isEmpty())
        return u"..../.../..."_s;
    QString groupes[3];
    int groupe = 0;
    for (const QChar c : lu) {
        if (c >= u'0' && c <= u'9')
            groupes[groupe] += c;
        else if (groupe < 2)
            ++groupe;
        else
            break;
    }
    return groupes[2] + u'/' + groupes[1] + u'/' + groupes[0];
}

QString DateRequete(const QString& texte)
{
    return texte.mid(3, 2) + u'/' + texte.left(2) + u'/' + texte.right(4);
}

int MoisDe(const QString& texte)
{
    return static_cast<int>(ValeurEntiere(QStringView(texte).mid(3, 2)));
}

qint64 EcartJours(const QString& premiere, const QString& seconde)
{
    // Julian days carry 29/02/2100 to the first of March, as counting days on from the first of the month does.
    const auto jourJulien = [](const QString& texte) {
        const QDate debut(static_cast<int>(ValeurEntiere(QStringView(texte).right(4))), MoisDe(texte), 1);
        return debut.toJulianDay() + ValeurEntiere(QStringView(texte).left(2)) - 1;
    };
    return jourJulien(seconde) - jourJulien(premiere);
}

QString CheminReel(const QString& chemin)
{
    if (QFileInfo::exists(chemin))
        return chemin;
    const QFileInfo infos(chemin);
    // Name filters match in any case.
    const QStringList trouves = infos.dir().entryList({QFileInfo(chemin).fileName()},
                                                      QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden);
    return trouves.isEmpty() ? chemin : infos.dir().filePath(trouves.first());
}

bool FichierExiste(const QString& chemin)
{
    return QFileInfo::exists(CheminReel(chemin));
}

} // namespace talor
