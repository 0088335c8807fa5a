#pragma once

#include "sales/lookups.h"

#include <array>

namespace talor {

enum class ModeBordereau
{
    Nouveau = 0,
    Existant = 1
};

/// What the register hands over to the journal of sales.
struct DemandeSaisie
{
    ModeBordereau mode = ModeBordereau::Nouveau;
    QString date;   ///< dd/MM/yyyy
    QString numero; ///< `ordre`, as typed
    qint64 num = 0; ///< of an existing bordereau
    qint64 Num_Chalutier = 0;
    QString nomChalutier;
};

enum class ModeLigne
{
    Nouvelle = -1,
    Correction = 0
};

/// The entry frame: the texts of its five fields, and the `num` of the client and the fish chosen last, which is what
/// a recorded line carries.
struct SaisieLigne
{
    qint64 num_client = 0;
    qint64 Num_Poisson = 0;
    QString client;  ///< `ordre` as typed
    QString poisson; ///< `ordre` as typed
    QString cageots;
    QString poids; ///< kilograms
    QString pu;    ///< dinars a kilogram, or a crate where there is no weight

    /// Weight times price where there is a weight, else crates times price.
    double montant() const;
    /// The amount as `Label2(2)` shows it; what a line stores is this text read back.
    QString texteMontant() const;
};

enum ColonneLigne
{
    ColLigneNumero,
    ColLigneClient,
    ColLignePoisson,
    ColLigneCageots,
    ColLignePoids,
    ColLignePU,
    ColLigneMontant,
    nbColonnesLigne
};

/// The panel under the grid, as it reads.
struct PanneauTotaux
{
    QString cageots;                     ///< `Label1(7)`
    QString brut;                        ///< `Label2(20)`
    QString primes;                      ///< `Text4(0)`
    QString taux = QStringLiteral("15"); ///< `Text4(1)`, percent, whatever the trade's parameter says
    QString commission;                  ///< `Label2(21)`
    QString frais;                       ///< `Label2(22)`: the expenses, once their frame was left accepting
    QString net;                         ///< `Label2(23)`
};

struct LigneFrais
{
    QString libelle;
    QString montant;
};

/// What recording a line leads to: its row in the grid, and the message that announces it, which has no title of its
/// own.
struct LigneAcquise
{
    int rang;
    Refus message;
};

/// One opening of `j_vente`: the lines of one bordereau, its expenses and its totals.
///
/// Rows and panel are texts as shown, and totals are computed from them, rounded as they read. The lines shown are
/// kept here, so that recording one costs one insertion and one commit however many there are.
class SaisieBordereau
{
public:
    static constexpr int nbFrais = 10;
    static constexpr int cageotsMax = 32767; ///< of one bordereau

    SaisieBordereau(Exercice& exercice, DemandeSaisie demande);

    /// Fills the lists and shows the bordereau; a new one gets its row at once. Refused, with nothing written, where
    /// an existing one holds more crates than can be counted.
    std::optional<Refus> ouvrir();

    QString entete() const;  ///< `Label1(10)`, three lines
    QString legende() const; ///< `Label1(8)`
    const DemandeSaisie& demande() const { return m_demande; }
    const ListeChoix& clients() const { return m_clients; }
    const ListeChoix& poissons() const { return m_poissons; }

    // The lines shown
    int nbLignes() const { return static_cast<int>(m_lignes.size()); }
    qint64 numLigne(int rang) const { return m_lignes[rang].num; }
    QString cellule(int rang, int colonne) const;
    int selection() const { return m_selection; }
    void selectionner(int rang) { m_selection = rang; }

    // Entry of a line
    ModeLigne modeLigne() const { return m_modeLigne; }
    void nouvelleLigne() { m_modeLigne = ModeLigne::Nouvelle; }
    void abandonnerLigne() { m_modeLigne = ModeLigne::Correction; }
    /// Passes to correction and returns the selected line as the fields take it; nothing if it is no longer there.
    std::optional<SaisieLigne> LoadLineForCorrection();
    /// The refusal of a line that can't be recorded. Of several faults the last one is told.
    static std::optional<Refus> CheckLine(const SaisieLigne& saisie);
    /// Records the line: on disk when this returns.
    /// In correction it is the first line of the bordereau that is rewritten, whichever is selected, and the selected
    /// row goes on showing what the store holds for it: kept on purpose.
    Resultat<LigneAcquise> SaveLine(const SaisieLigne& saisie);
    Refus confirmationSuppression() const;
    void DeleteLine();

    // Expenses, 0 to 9
    const std::array<LigneFrais, nbFrais>& frais() const { return m_frais; }
    const QString& totalFrais() const { return m_totalFrais; } ///< `Label1(9)`
    void saisirLibelle(int rang, const QString& texte);
    void saisirMontant(int rang, const QString& texte);
    void accepterFrais() { m_totaux.frais = m_totalFrais; }
    void effacerFrais();

    // Totals. Commission and net keep their old texts when expenses, premiums or rate change: the next line recorded
    // or deleted, or the departure, computes them afresh.
    const PanneauTotaux& totaux() const { return m_totaux; }
    void saisirPrimes(const QString& texte) { m_totaux.primes = texte; }
    void saisirTaux(const QString& texte) { m_totaux.taux = texte; }
    /// What `Calclette` returned; a rate of 100 or more is emptied.
    void prendrePrimesEtTaux(const QString& primes, const QString& taux);

    /// Departure: writes the bordereau's row. A new bordereau without a line leaves no trace.
    void SaveBordereau();

private:
    struct Ligne
    {
        qint64 num;
        qint64 num_client;
        qint64 Num_Poisson;
        qint64 Casiers;
        double poids;
        double PU;
        double montant; ///< as its cell reads
    };

    void FillLookups();
    void creerBordereau();
    void lireBordereau();
    bool LoadLines();
    void SumExpenses();
    void SumLines();
    void ComputeTotals();
    qint64 sommeCageots() const;
    QString requeteLignes() const;
    QString requeteBordereau() const;
    static Ligne lireLigne(const store::Recordset& ligne);
    void ecrireLigne(store::Recordset& ligne, const SaisieLigne& saisie) const;
    std::optional<Refus> ajouterLigne(const SaisieLigne& saisie);
    std::optional<Refus> corrigerPremiereLigne(const SaisieLigne& saisie);
    void ecrireBordereau(store::Recordset& bordereau) const;

    Exercice& m_exercice;
    DemandeSaisie m_demande;
    ListeChoix m_clients;
    ListeChoix m_poissons;
    QList<Ligne> m_lignes;
    qint64 m_cageotsEnregistres = 0; ///< of the lines as the store holds them, which a correction parts from the grid
    int m_selection = 0;
    ModeLigne m_modeLigne = ModeLigne::Correction;
    std::array<LigneFrais, nbFrais> m_frais;
    QString m_totalFrais;
    PanneauTotaux m_totaux;
};

} // namespace talor
