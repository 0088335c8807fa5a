#include "demo/verification.h"

#include "core/helpers.h"
#include "core/schema.h"
#include "core/words.h"

#include <QRegularExpression>
#include <QSet>

#include <cmath>

namespace talor::demo {

using namespace Qt::StringLiterals;

namespace {

/// A written number without its point, and how many decimals it had.
struct Decimal
{
    qint64 chiffres;
    int decimales;
};

Decimal decimal(QString texte)
{
    const qsizetype point = texte.indexOf(u'.');
    const int decimales = point < 0 ? 0 : static_cast<int>(texte.size() - point - 1);
    return {texte.remove(u'.').toLongLong(), decimales};
}

/// Quantity times price, rounded half away from zero to the centime.
qint64 centimes(const QString& quantite, const QString& prix)
{
    const Decimal q = decimal(quantite);
    const Decimal p = decimal(prix);
    qint64 produit = q.chiffres * p.chiffres * 100;
    qint64 diviseur = 1;
    for (int i = 0; i < q.decimales + p.decimales; ++i)
        diviseur *= 10;
    return (produit + diviseur / 2) / diviseur;
}

qint64 montantEnCentimes(const Ligne& ligne)
{
    return decimal(ligne.poids).chiffres > 0 ? centimes(ligne.poids, ligne.PU) : centimes(ligne.cageots, ligne.PU);
}

QString enDinars(double montant)
{
    return Format(montant, u"### ### ##0.00"_s);
}

/// Gathers the differences.
class Verificateur
{
public:
    Verificateur(Exercice& exercice, const Saison& saison)
        : m_exercice(exercice)
        , m_attendu(calculer(saison))
    {}

    QStringList verifier()
    {
        verifierNombres();
        verifierFactures();
        verifierClients();
        verifierBordereaux();
        return m_ecarts;
    }

private:
    void montants(const QString& quoi, double trouve, double attendu)
    {
        if (std::abs(trouve - attendu) > 0.004)
            m_ecarts << u"%1 : %2 DA au lieu de %3 DA"_s.arg(quoi, enDinars(trouve), enDinars(attendu));
    }

    void nombres(const QString& quoi, qint64 trouve, qint64 attendu)
    {
        if (trouve != attendu)
            m_ecarts << u"%1 : %2 au lieu de %3"_s.arg(quoi).arg(trouve).arg(attendu);
    }

    double somme(const QString& requete, const QVariantList& valeurs = {})
    {
        return m_exercice.Base().scalar(requete, valeurs).toDouble();
    }

    qint64 compte(const QString& requete, const QVariantList& valeurs = {})
    {
        return m_exercice.Base().scalar(requete, valeurs).toLongLong();
    }

    void verifierNombres()
    {
        nombres(u"Lignes de vente"_s, compte(u"select count(num) from L_Vente"_s), m_attendu.lignes);
        nombres(u"Bordereaux"_s, compte(u"select count(num) from Bordereaux"_s), m_attendu.bordereaux);
        nombres(u"Factures"_s, compte(u"select count(num) from Factures"_s), m_attendu.factures);
        nombres(u"Lignes restées sans facture"_s,
                compte(u"select count(num) from L_Vente where Num_Facture = ?"_s, {nonFacture}), 0);
        nombres(u"Cageots des lignes"_s, compte(u"select sum(Casiers) from L_Vente"_s), m_attendu.cageots);
        montants(u"Somme des lignes"_s, somme(u"select sum(Total) from L_Vente"_s),
                 static_cast<double>(m_attendu.centimes) / 100);
    }

    void verifierFactures()
    {
        store::Recordset f = m_exercice.Base().openRecordset(u"select * from Factures order by num"_s);
        for (bool la = f.moveFirst(); la; la = f.moveNext()) {
            const QString nom = u"Facture N° "_s + f.text("ordre");
            const QVariantList num{f.num()};
            montants(nom + u", total"_s, f.real("Total"), f.real("Total_HT") + f.real("Consigne"));
            montants(nom + u", poisson"_s, f.real("Total_HT"),
                     somme(u"select sum(Total) from L_Vente where Num_Facture = ?"_s, num));
            nombres(nom + u", cageots"_s, f.integer("Casiers"),
                    compte(u"select sum(Casiers) from L_Vente where Num_Facture = ?"_s, num));
            montants(nom + u", consigne"_s, f.real("Consigne"),
                     static_cast<double>(f.integer("Casiers")) * static_cast<double>(m_exercice.PrixConsigne));
            nombres(nom + u", lignes"_s, f.integer("Nb_lignes"),
                    compte(u"select count(num) from L_Vente where Num_Facture = ?"_s, num));
            verifierLettres(nom, f.real("Total"));
        }
    }

    void verifierLettres(const QString& facture, double total)
    {
        const QStringList lignes = MontantEnLettres(total);
        const std::optional<qint64> lu = lireLettres(lignes);
        if (lu != static_cast<qint64>(std::floor(total)))
            m_ecarts << u"%1, en lettres : « %2 » pour %3 DA"_s.arg(facture, lignes.join(u' '), enDinars(total));
    }

    void verifierClients()
    {
        store::Recordset c = m_exercice.Base().openRecordset(u"select * from Clients order by ordre"_s);
        for (bool la = c.moveFirst(); la; la = c.moveNext()) {
            const QString nom = u"Client N° "_s + c.text("ordre");
            const int ordre = static_cast<int>(c.integer("ordre"));
            montants(nom + u", débit"_s, c.real("Debit"),
                     somme(u"select sum(Total_HT) from Factures where num_client = ?"_s, {c.num()}));
            montants(nom + u", achats"_s, c.real("Debit"),
                     static_cast<double>(m_attendu.centimesParClient.value(ordre)) / 100);
            montants(nom + u", solde"_s, c.real("Solde"), c.real("Credit") - c.real("Debit"));
            nombres(nom + u", cageots"_s, c.integer("Casiers"), m_attendu.cageotsParClient.value(ordre));
            nombres(nom + u", cageots à rendre"_s, c.integer("Diff"), c.integer("Casiers") - c.integer("Rendu"));
        }
    }

    void verifierBordereaux()
    {
        store::Recordset b = m_exercice.Base().openRecordset(u"select * from Bordereaux order by num"_s);
        for (bool la = b.moveFirst(); la; la = b.moveNext()) {
            const QString nom = u"Bordereau N° "_s + b.text("ordre");
            const double brut = somme(u"select sum(Total) from L_Vente where num_bordereau = ?"_s, {b.num()});
            const double taux = b.real("Commission") / 100;
            double frais = 0;
            for (int i = 0; i < position::nbFrais; ++i)
                frais += b.real(position::montantsFrais + i);
            montants(nom + u", brut"_s, b.real("brut"), brut);
            montants(nom + u", frais"_s, b.real("frais"), frais);
            montants(nom + u", commission"_s, b.real("MT_Commission"), brut * taux);
            montants(nom + u", part de l'armateur"_s, b.real("MT_Armateur"), brut - brut * taux);
            // Unlike the stored commission, the one in the net leaves the premiums out; the net is kept as it reads.
            const double net = (brut - b.real("primes")) * (1 - taux) - frais;
            montants(nom + u", net"_s, b.real("net"), std::round(std::max(0.0, net) * 100) / 100);
            nombres(nom + u", cageots"_s, b.integer("Casiers"),
                    compte(u"select sum(Casiers) from L_Vente where num_bordereau = ?"_s, {b.num()}));
            if (!b.flag("flag_f"))
                m_ecarts << nom + u" : non facturé"_s;
        }
    }

    Exercice& m_exercice;
    Attendu m_attendu;
    QStringList m_ecarts;
};

} // namespace

Attendu calculer(const Saison& saison)
{
    Attendu attendu;
    for (const Journee& journee : saison.journees) {
        QSet<int> acheteurs;
        for (const Bordereau& bordereau : journee.bordereaux) {
            ++attendu.bordereaux;
            for (const Ligne& ligne : bordereau.lignes) {
                const int client = saison.clients[ligne.client].ordre;
                const qint64 montant = montantEnCentimes(ligne);
                const qint64 cageots = ligne.cageots.toLongLong();
                ++attendu.lignes;
                attendu.cageots += cageots;
                attendu.centimes += montant;
                attendu.cageotsParClient[client] += cageots;
                attendu.centimesParClient[client] += montant;
                acheteurs << client;
            }
        }
        attendu.factures += acheteurs.size();
    }
    return attendu;
}

QStringList verifierLivres(Exercice& exercice, const Saison& saison)
{
    return Verificateur(exercice, saison).verifier();
}

std::optional<qint64> lireLettres(const QStringList& lignes)
{
    static const QHash<QString, int> unites = {{u"ZERO"_s, 0},          {u"UN"_s, 1},
                                               {u"DEUX"_s, 2},          {u"TROIS"_s, 3},
                                               {u"QUATRE"_s, 4},        {u"CINQ"_s, 5},
                                               {u"SIX"_s, 6},           {u"SEPT"_s, 7},
                                               {u"HUIT"_s, 8},          {u"NEUF"_s, 9},
                                               {u"DIX"_s, 10},          {u"ONZE"_s, 11},
                                               {u"DOUZE"_s, 12},        {u"TREIZE"_s, 13},
                                               {u"QUATORZE"_s, 14},     {u"QUINZE"_s, 15},
                                               {u"SEIZE"_s, 16},        {u"DIX-SEPT"_s, 17},
                                               {u"DIX-HUIT"_s, 18},     {u"DIX-NEUF"_s, 19},
                                               {u"VINGT"_s, 20},        {u"TRENTE"_s, 30},
                                               {u"QUARANTE"_s, 40},     {u"CINQUANTE"_s, 50},
                                               {u"SOIXANTE"_s, 60},     {u"QUATRE-VINGT"_s, 80},
                                               {u"QUATRE-VINGTS"_s, 80}};
    static const QHash<QString, qint64> milliers = {{u"MILLE"_s, 1'000},
                                                    {u"MILLION"_s, 1'000'000},
                                                    {u"MILLIONS"_s, 1'000'000},
                                                    {u"MILLIARD"_s, 1'000'000'000},
                                                    {u"MILLIARDS"_s, 1'000'000'000}};
    qint64 total = 0;
    qint64 groupe = 0;
    const QString texte = lignes.join(u' ').remove(u'*').simplified();
    for (const QString& mot : texte.split(u' ')) {
        if (mot == u"DINAR" || mot == u"DINARS")
            return total + groupe; // what follows are centimes
        if (mot == u"ET")
            continue;
        if (mot == u"CENT" || mot == u"CENTS")
            groupe = std::max<qint64>(groupe, 1) * 100;
        else if (unites.contains(mot))
            groupe += unites.value(mot);
        else if (milliers.contains(mot)) {
            total += std::max<qint64>(groupe, 1) * milliers.value(mot);
            groupe = 0;
        } else
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace talor::demo
