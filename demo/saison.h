#pragma once

#include "core/refus.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <optional>

/// A season as a person writes it down: the card files, then each auction day with its bordereaux and their lines.
/// It refers to buyers by their number, to fish and boats by their name, to shipowners by their surname; what the
/// reader hands on is checked, so that every reference finds its card.
namespace talor::demo {

/// The trader's own particulars, as invoices print them.
struct Mandataire
{
    QString tel, fax, RC, Id_Fisc, Article, compte;
};

struct Poisson
{
    int ordre;
    QString denom;
};

struct Armateur
{
    QString nom, prenom, adr1, adr2, tel, ville, RC, Id_Fisc, Article;
};

struct Embarcation
{
    QString denom;
    int armateur; ///< place in `Saison::armateurs`
    QString Port, matricule, obs;
};

struct Client
{
    int ordre;
    QString nom, prenom, famille, adr1, ville, tel, RC, Id_Fisc, Article;
};

/// A sale line as it is typed: the figures stay texts, an empty one stays empty.
struct Ligne
{
    int client;  ///< place in `Saison::clients`
    int poisson; ///< place in `Saison::poissons`
    QString cageots, poids, PU;
};

/// One expense: a label of the program's own, or one that takes the place of a "Divers".
struct Frais
{
    QString libelle, montant;
};

struct Bordereau
{
    int embarcation; ///< place in `Saison::embarcations`
    QList<Frais> frais;
    QString primes;
    QString taux; ///< percent; empty keeps the rate that a new bordereau starts with
    QList<Ligne> lignes;
    int numeroLigne; ///< where it starts in the file
};

struct Journee
{
    QDate date;
    QList<Bordereau> bordereaux;
};

struct Saison
{
    Mandataire mandataire;
    QStringList categories;
    QList<Poisson> poissons;
    QList<Armateur> armateurs;
    QList<Embarcation> embarcations;
    QList<Client> clients;
    QList<Journee> journees; ///< in the order of their dates, all of one year

    int annee() const { return journees.first().date.year(); }
};

/// Reads a season's file (UTF-8). What can't be understood is refused with the file's name and the number of the line.
Resultat<Saison> lireSaison(const QString& chemin);

} // namespace talor::demo
