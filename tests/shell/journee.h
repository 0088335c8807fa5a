#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace talor {

/// A day at the auction as it is called out: what is sold on every boat, and what happens to it afterwards. Numbers are
/// those that the operator knows clients and fish by.
struct LigneCriee
{
    int client;  ///< 1 to 20
    int poisson; ///< 1 to 8
    QString cageots, poids, pu;
};

struct BordereauCrie
{
    int bateau; ///< from 1
    QList<LigneCriee> lignes;
    QString primes, taux;                 ///< empty: left as they stand
    QList<QString> frais;                 ///< from the first of the ten
    int aSupprimer = 0;                   ///< number of the line taken back, 0 for none
    std::optional<LigneCriee> correction; ///< of the first line
};

struct Criee
{
    static constexpr int nbBordereaux = 6;
    static constexpr int nbLignes = 20; ///< of each bordereau
    static constexpr int nbClients = 20;
    static constexpr int nbPoissons = 8;
    static constexpr int nbBateaux = 3;

    /// The same day each time: every client buys on every boat, by weight and by the crate in turn.
    static QList<BordereauCrie> jouer()
    {
        QList<BordereauCrie> bordereaux;
        for (int b = 0; b < nbBordereaux; ++b) {
            BordereauCrie bordereau;
            bordereau.bateau = b % nbBateaux + 1;
            for (int i = 0; i < nbLignes; ++i) {
                const bool auPoids = (b + i) % 3 == 0;
                bordereau.lignes.append({(i * 7 + b) % nbClients + 1, (i + 2 * b) % nbPoissons + 1,
                                         QString::number(i % 9 + 1),
                                         auPoids ? QString::number(10 + i) + QStringLiteral(".5") : QString(),
                                         QString::number(auPoids ? 350 + 10 * b : 1800 + 50 * i)});
            }
            bordereaux.append(bordereau);
        }
        bordereaux[1].correction = LigneCriee{5, 2, QStringLiteral("4"), QString(), QStringLiteral("2000")};
        bordereaux[2].aSupprimer = 4;
        bordereaux[3].primes = QStringLiteral("1500");
        bordereaux[3].taux = QStringLiteral("12");
        bordereaux[4].frais = {QStringLiteral("3000"), QStringLiteral("450.5"), QStringLiteral("800")};
        return bordereaux;
    }
};

} // namespace talor
