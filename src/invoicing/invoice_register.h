#pragma once

#include "core/report_texts.h"
#include "sales/lookups.h"

namespace talor {

enum ColonneFacture
{
    ColFactNumero,
    ColFactDate,
    ColFactClient,
    ColFactTelephone,
    ColFactCageots,
    ColFactPoisson,
    ColFactConsigne,
    ColFactTotal,
    ColFactReglee,
    ColFactImprimer,
    nbColonnesFacture
};

enum class GenreImpression
{
    Facture,
    BonDeLivraison
};

/// The filter's frame as filled in.
struct FiltreFactures
{
    enum class Genre
    {
        Jour = 1,
        Periode = 2
    };
    enum class Etat
    {
        NonReglees = 0,
        Reglees = 1,
        Toutes = 2
    };
    Genre genre = Genre::Jour;
    QString jour;     ///< dd/MM/yyyy
    QString premiere; ///< dd/MM/yyyy
    QString seconde;  ///< dd/MM/yyyy
    qint64 client = numEnsemble;
    Etat etat = Etat::Toutes;
    bool parClient = true; ///< sorted by client, else by number
};

/// The list of invoices by day or period, and what its prints are made of. `FACTURES` and `Fact_Bis` are its two
/// doors. It changes nothing in `Factures`: only the work tables of the reports are written.
///
/// Rows are read once, in one pass, and their cells formatted when asked for.
class RegistreFactures
{
public:
    enum class Porte
    {
        Registre,    ///< `FACTURES`, opened on today
        Reimpression ///< `Fact_Bis`, opened on the day of an invoicing run
    };
    static const QString modeleFacture;        ///< Facture.RPT
    static const QString modeleRegularisation; ///< F_Regul.rpt
    static const QString modeleListing;        ///< List_fct.RPT

    /// Reads the clients, the span of the invoices and those of the day.
    RegistreFactures(Exercice& exercice, Porte porte, const QString& jour);

    /// Runs the current query; every mark is forgotten.
    void charger();
    /// Applies the filter and reloads the list, or refuses and leaves all as it was.
    std::optional<Refus> ApplyFilter(const FiltreFactures& filtre);

    const ListeChoix& clients() const { return m_clients; } ///< by name, then " Ensemble"
    /// Rank of a client returned by its selection dialog: "Client introuvable".
    Resultat<int> choisirClient(qint64 num) const;
    /// Dates of the first and the last invoice, the day itself where there is none.
    const QString& premiereDate() const { return m_premiereDate; }
    const QString& derniereDate() const { return m_derniereDate; }

    // The list
    int nbLignes() const { return static_cast<int>(m_lignes.size()); }
    QString cellule(int rang, int colonne) const;
    qint64 num(int rang) const { return m_lignes[rang].num; }
    qint64 ordre(int rang) const { return m_lignes[rang].ordre; }
    bool estRegularisation(int rang) const { return m_lignes[rang].ordre == -1; }
    const QString& titre1() const { return m_titre1; }
    const QString& titre2() const { return m_titre2; }

    // Under the grid: `Label3(0)` to `Label3(2)` and `Label4`
    QString sommeTotalHT() const;
    QString sommeConsigne() const;
    QString sommeTotal() const;
    QString nombreTotal() const;

    // Marks for printing
    bool estMarquee(int rang) const { return m_lignes[rang].marquee; }
    void marquer(int rang, bool marquee) { m_lignes[rang].marquee = marquee; }
    void marquerTout(bool marquee);
    /// Ranks of the marked rows: "Aucune sélection".
    Resultat<QList<int>> lignesMarquees() const;

    // Print of one invoice
    QString numeroEtAnnee(int rang) const; ///< "7 / 2026"
    const QString& modele(int rang) const;
    QString formule(int rang) const;
    /// The report texts of one invoice. A delivery note carries no sum in words. Both doors write all of them, so that
    /// no sum of an earlier print is left on the paper.
    TextesEtat TextesFacture(int rang, GenreImpression genre) const;
    void ecrireTextesFacture(int rang, GenreImpression genre);

    // Print of the list
    /// Fills `Csse` with the invoices listed and `textes` with the trader and the titles, whole or not at all.
    void ecrireListing();

private:
    struct Ligne
    {
        qint64 num;
        qint64 ordre;
        QString date;
        QString client;
        QString Tel;
        QVariant casiers; ///< null on a regularisation
        double Total_HT;
        double Consigne;
        double Total;
        bool Flag_R;
        bool marquee;
        int rangClient; ///< among the clients by name
    };

    void lirePeriode(const QString& jour);
    QList<Ligne> lire(const QString& requete, const QVariantList& valeurs, bool parClient) const;
    QString somme(double Ligne::*montant) const;

    Exercice& m_exercice;
    Porte m_porte;
    ListeChoix m_clients;
    QString m_premiereDate;
    QString m_derniereDate;
    QString m_requete;
    QVariantList m_valeurs;
    bool m_parClient = true;
    QList<Ligne> m_lignes;
    QString m_titre1;
    QString m_titre2;
};

} // namespace talor
