#include "reference/calendrier.h"

#include "core/helpers.h"
#include "core/state.h"
#include "platform/services/clock.h"

#include <QDate>

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr int nbMois = 12;

bool anneeAdmise(int annee)
{
    return annee >= Calendrier::premiereAnnee && annee <= Calendrier::derniereAnnee;
}

} // namespace

const std::array<QString, Calendrier::joursSemaine> Calendrier::entetes = {u"Sam."_s,  u"Dim."_s,  u"Lun."_s, u"Mar"_s,
                                                                           u"Merc."_s, u"Jeudi"_s, u"Vend."_s};

Calendrier::Calendrier(const QString& date)
{
    const auto lire = [this](const QString& texte) {
        m_jour = static_cast<int>(ValeurEntiere(QStringView(texte).left(2)));
        m_mois = MoisDe(texte);
        m_annee = static_cast<int>(ValeurEntiere(QStringView(texte).right(4)));
    };
    lire(date);
    if (date.size() != 10 || DateValide(date) != 0 || !anneeAdmise(m_annee))
        lire(services::clock::todayText());
}

QString Calendrier::texte() const
{
    return u"%1/%2/%3"_s.arg(m_jour, 2, 10, QChar(u'0')).arg(m_mois, 2, 10, QChar(u'0')).arg(m_annee);
}

QString Calendrier::enToutesLettres() const
{
    // Column 0 is Saturday, the last of the names.
    const int colonne = (cellule(m_jour) - 1) % joursSemaine;
    const QString& nom = NomsJours[static_cast<size_t>((colonne + joursSemaine - 1) % joursSemaine)];
    return u"%1 %2 %3 %4"_s.arg(nom).arg(m_jour).arg(NomsMois[static_cast<size_t>(m_mois - 1)]).arg(m_annee);
}

std::array<int, Calendrier::nbCellules> Calendrier::cellules() const
{
    std::array<int, nbCellules> jours{};
    for (int jour = 1; jour <= JoursDuMois(m_mois, m_annee); ++jour)
        jours[static_cast<size_t>(cellule(jour))] = jour;
    return jours;
}

/// Empty cells before the first of the month: its weekday counted from Sunday as 1, where Saturday's 7 counts as 0.
int Calendrier::decalage() const
{
    const int semaine = QDate(m_annee, m_mois, 1).dayOfWeek() % joursSemaine + 1;
    return semaine % joursSemaine;
}

void Calendrier::avancerMois(int nombre)
{
    const int rang = m_annee * nbMois + m_mois - 1 + nombre;
    aller(m_jour, rang % nbMois + 1, rang / nbMois);
}

void Calendrier::avancerJours(int nombre)
{
    int jour = m_jour + nombre;
    int rang = m_annee * nbMois + m_mois - 1;
    const auto jours = [&] { return JoursDuMois(rang % nbMois + 1, rang / nbMois); };
    while (jour < 1) {
        --rang;
        jour += jours();
    }
    while (jour > jours()) {
        jour -= jours();
        ++rang;
    }
    aller(jour, rang % nbMois + 1, rang / nbMois);
}

void Calendrier::aller(int jour, int mois, int annee)
{
    if (mois < 1 || mois > nbMois || !anneeAdmise(annee))
        return;
    m_jour = std::clamp(jour, 1, JoursDuMois(mois, annee));
    m_mois = mois;
    m_annee = annee;
}

} // namespace talor
