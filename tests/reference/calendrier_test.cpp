#include "reference/calendrier.h"

#include "platform/services/clock.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

Calendrier apres(const QString& date, auto pas)
{
    Calendrier calendrier(date);
    pas(calendrier);
    return calendrier;
}

} // namespace

TEST(Calendrier, la_semaine_commence_le_samedi)
{
    struct Cas
    {
        const char* nom;
        QString date;
        int celluleDuPremier;
        int jours;
        QString enLettres;
    };
    const Cas cas[] = {
        {"the first on Saturday, weekday 7, is the first cell", u"01/08/2026"_s, 1, 31, u"Samedi 1 Août 2026"_s},
        {"Sunday follows it", u"15/02/2026"_s, 2, 28, u"Dimanche 15 Février 2026"_s},
        {"the first on Friday ends the first week", u"31/05/2026"_s, 7, 31, u"Dimanche 31 Mai 2026"_s},
        {"a leap year", u"29/02/2024"_s, 6, 29, u"Jeudi 29 Février 2024"_s},
        {"2100 is divisible by 4, no century rule", u"28/02/2100"_s, 3, 29, u"Dimanche 28 Février 2100"_s},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.nom);
        const Calendrier calendrier(c.date);
        const auto cellules = calendrier.cellules();
        EXPECT_EQ(calendrier.cellule(1), c.celluleDuPremier);
        EXPECT_EQ(std::ranges::count_if(cellules, [](int jour) { return jour > 0; }), c.jours);
        for (int jour = 1; jour <= c.jours; ++jour)
            EXPECT_EQ(cellules[static_cast<size_t>(c.celluleDuPremier + jour - 1)], jour);
        EXPECT_EQ(calendrier.enToutesLettres(), c.enLettres);
        EXPECT_EQ(calendrier.texte(), c.date);
    }
}

TEST(Calendrier, le_jour_reste_si_le_mois_l_a_sinon_le_dernier)
{
    struct Cas
    {
        QString depart;
        std::function<void(Calendrier&)> pas;
        QString arrivee;
    };
    const Cas cas[] = {
        {u"31/03/2026"_s, [](Calendrier& c) { c.choisirMois(2); }, u"28/02/2026"_s},
        {u"31/03/2024"_s, [](Calendrier& c) { c.choisirMois(2); }, u"29/02/2024"_s},
        {u"29/02/2024"_s, [](Calendrier& c) { c.choisirAnnee(2025); }, u"28/02/2025"_s},
        {u"30/04/2026"_s, [](Calendrier& c) { c.choisirMois(5); }, u"30/05/2026"_s},
        {u"15/12/2026"_s, [](Calendrier& c) { c.avancerMois(1); }, u"15/01/2027"_s},
        {u"31/01/2026"_s, [](Calendrier& c) { c.avancerMois(-1); }, u"31/12/2025"_s},
        {u"31/12/2026"_s, [](Calendrier& c) { c.avancerJours(1); }, u"01/01/2027"_s},
        {u"03/03/2026"_s, [](Calendrier& c) { c.avancerJours(-7); }, u"24/02/2026"_s},
        {u"28/02/2100"_s, [](Calendrier& c) { c.avancerJours(2); }, u"01/03/2100"_s},
        {u"15/06/2026"_s, [](Calendrier& c) { c.choisirJour(30); }, u"30/06/2026"_s},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(apres(c.depart, c.pas).texte(), c.arrivee) << c.depart.toStdString();
}

TEST(Calendrier, les_annees_hors_de_1990_a_2100_sont_ignorees)
{
    EXPECT_EQ(apres(u"15/06/2026"_s, [](Calendrier& c) { c.choisirAnnee(1989); }).texte(), u"15/06/2026"_s);
    EXPECT_EQ(apres(u"15/06/2026"_s, [](Calendrier& c) { c.choisirAnnee(2101); }).texte(), u"15/06/2026"_s);
    EXPECT_EQ(apres(u"01/01/1990"_s, [](Calendrier& c) { c.avancerJours(-1); }).texte(), u"01/01/1990"_s);
    EXPECT_EQ(apres(u"31/12/2100"_s, [](Calendrier& c) { c.avancerMois(1); }).texte(), u"31/12/2100"_s);
    EXPECT_EQ(apres(u"15/06/2026"_s, [](Calendrier& c) { c.choisirAnnee(1990); }).texte(), u"15/06/1990"_s);
}

TEST(Calendrier, une_date_qui_n_en_est_pas_une_donne_aujourd_hui)
{
    services::clock::setToday(QDate(2026, 11, 15));
    for (const QString& date : {u""_s, u"1/1/2026"_s, u"31/04/2026"_s, u"15/06/1989"_s, u"15/06/2026x"_s})
        EXPECT_EQ(Calendrier(date).texte(), u"15/11/2026"_s) << date.toStdString();
    services::clock::followSystem();
}
