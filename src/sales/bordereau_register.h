#pragma once

#include "sales/bordereau_entry.h"

namespace talor {

enum ColonneBordereau
{
    ColBordNumero,
    ColBordDate,
    ColBordEmbarcation,
    ColBordCageots,
    ColBordBrut,
    ColBordPrimes,
    ColBordCommission,
    ColBordFrais,
    ColBordNet,
    ColBordFacture,
    ColBordDecompte,
    nbColonnesBordereau
};

/// The filter's frame as filled in.
struct FiltreBordereaux
{
    enum class Genre
    {
        Mois,
        Periode
    };
    Genre genre = Genre::Mois;
    int mois = 1;     ///< 1 to 12
    QString premiere; ///< dd/MM/yyyy
    QString seconde;  ///< dd/MM/yyyy
    qint64 chalutier = numEnsemble;
};

/// The frame in which a bordereau is begun or reopened.
struct CadreBordereau
{
    ModeBordereau mode = ModeBordereau::Nouveau;
    QString legende; ///< `Label2(12)`
    QString date;
    QString numero;
    qint64 num = 0;
    int embarcation = 0;      ///< rank in the list of boats; -1 when the boat is no longer there
    qint64 Num_Chalutier = 0; ///< of the bordereau reopened
};

/// The list of bordereaux of the register (`F_Bord`) or of the listings (`Edit_Bor2`): its rows, its filter, its print,
/// and the rule that what is invoiced or settled can be neither reopened nor deleted.
///
/// Rows are read once, in one pass, and their cells formatted when asked for.
class RegistreBordereaux
{
public:
    enum class Porte
    {
        Registre, ///< `F_Bord`: by date, then `num`
        Edition   ///< `Edit_Bor2`: by date; the titles go onto paper
    };
    static const QString modele; ///< BORDERO.RPT

    RegistreBordereaux(Exercice& exercice, Porte porte);

    /// Reads the boats and the rows of the current query.
    void LoadRegister();
    int nbLignes() const { return static_cast<int>(m_lignes.size()); }
    QString cellule(int rang, int colonne) const;
    qint64 num(int rang) const { return m_lignes[rang].num; }
    qint64 Num_Chalutier(int rang) const { return m_lignes[rang].Num_Chalutier; }

    const ListeChoix& embarcations() const { return m_embarcations; }
    /// Rank of a boat returned by its selection dialog: "Embarcation introuvable".
    Resultat<int> choisirEmbarcation(qint64 num) const;

    // Titles, `Label4(0)` and `Label4(1)`
    const QString& titre1() const { return m_titre1; }
    const QString& titre2() const { return m_titre2; }
    /// Applies the filter and reloads the list, or refuses and leaves all as it was.
    std::optional<Refus> filtrer(const FiltreBordereaux& filtre);

    // Opening a bordereau
    /// The number proposed is the count of the rows listed plus 1: a filtered list proposes a lower one.
    CadreBordereau cadreNouveau(const QString& aujourdHui) const;
    /// "Bordereau facturé", "Bordereau décompté": neither reopened nor deleted. The marks are those of the list as
    /// read.
    std::optional<Refus> refusModification(int rang) const;
    Resultat<CadreBordereau> cadreReouverture(int rang) const;
    /// What the frame hands over to `j_vente`: "Date incorrecte".
    Resultat<DemandeSaisie> demande(const CadreBordereau& cadre) const;

    // Deletion
    Refus confirmationSuppression(int rang) const;
    /// Deletes the bordereau with its open lines, whole or not at all. Returns the message to show: that it is done, or
    /// the refusal.
    Refus supprimer(int rang);

    // Print
    QString formule(int rang) const;
    /// Puts into the report texts the commission of the bordereau (`ch6`), and from the listings the titles.
    void ecrireTextes(int rang);

private:
    struct Ligne
    {
        qint64 num;
        qint64 ordre;
        QString Date;
        bool sansChalutier;
        qint64 Num_Chalutier;
        qint64 Casiers;
        double brut;
        double primes;
        double Commission;
        double frais;
        double net;
        bool flag_f;
        qint64 ordre_decompte;
    };

    static double commission(const Ligne& ligne);
    QList<Ligne> lire(const QString& requete, const QVariantList& valeurs) const;

    Exercice& m_exercice;
    Porte m_porte;
    ListeChoix m_embarcations;
    QList<Ligne> m_lignes;
    QString m_requete;
    QVariantList m_valeurs;
    QString m_titre1;
    QString m_titre2;
};

} // namespace talor
