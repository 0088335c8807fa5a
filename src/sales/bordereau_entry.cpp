#include "sales/bordereau_entry.h"

#include "core/helpers.h"
#include "core/schema.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

static_assert(SaisieBordereau::nbFrais == position::nbFrais);

const QString masqueMontant = u"### ###.00"_s;
const QString masqueTotal = u"### ### .00"_s;
const QString masqueSaisie = u"####0.00"_s;
const QString masquePrimes = u"#####.00"_s;
const QString masqueTaux = u"##.00"_s;
constexpr double tauxMax = 100;

const std::array<QString, SaisieBordereau::nbFrais> libellesInitiaux = {u"Chauffeur Gardien"_s,
                                                                        u"Galva Marins"_s,
                                                                        u"Galva Armateur"_s,
                                                                        u"Panier Marins"_s,
                                                                        u"Panier Armateur"_s,
                                                                        u"Glace"_s,
                                                                        u"Porte faix"_s,
                                                                        u"Divers"_s,
                                                                        u"Divers"_s,
                                                                        u"Divers"_s};

double montantLigne(double cageots, double poids, double pu)
{
    return (poids > 0 ? poids : cageots) * pu;
}

QString texteMontantLigne(double montant)
{
    return Format(montant, masqueMontant) + u' ';
}

QString suiviDUnBlanc(const QString& texte)
{
    return texte.isEmpty() ? texte : texte + u' ';
}

Refus tropDeCageots()
{
    return {u"Le total des cageots du bordereau dépasse %1"_s.arg(SaisieBordereau::cageotsMax)};
}

} // namespace

double SaisieLigne::montant() const
{
    return montantLigne(Valeur(cageots), Valeur(poids), Valeur(pu));
}

QString SaisieLigne::texteMontant() const
{
    return texteMontantLigne(montant());
}

SaisieBordereau::SaisieBordereau(Exercice& exercice, DemandeSaisie demande)
    : m_exercice(exercice)
    , m_demande(std::move(demande))
{
    for (size_t i = 0; i < m_frais.size(); ++i)
        m_frais[i].libelle = libellesInitiaux[i];
}

// --- Opening ---------------------------------------------------------------------------------------------------------

std::optional<Refus> SaisieBordereau::ouvrir()
{
    FillLookups();
    if (m_demande.mode == ModeBordereau::Nouveau)
        creerBordereau();
    else
        lireBordereau();
    if (!LoadLines())
        return tropDeCageots();
    SumExpenses();
    SumLines();
    ComputeTotals();
    return {};
}

void SaisieBordereau::FillLookups()
{
    m_clients = ListeChoix::clientsParNom(m_exercice);
    m_poissons = ListeChoix::poissons(m_exercice);
}

void SaisieBordereau::creerBordereau()
{
    store::Recordset& bordereaux = m_exercice.Bordereaux;
    bordereaux.addNew();
    bordereaux.set("ordre", ValeurEntiere(m_demande.numero));
    bordereaux.set("Date", m_demande.date);
    bordereaux.set("MM", MoisDe(m_demande.date));
    bordereaux.set("Num_Chalutier", m_demande.Num_Chalutier);
    m_demande.num = bordereaux.update();
}

void SaisieBordereau::lireBordereau()
{
    const store::Recordset bordereau = m_exercice.Base().openRecordset(requeteBordereau());
    const bool trouve = !bordereau.eof();
    for (int i = 0; trouve && i < nbFrais; ++i)
        m_frais[static_cast<size_t>(i)] = {bordereau.text(position::libellesFrais + i),
                                           FormatSiPositif(bordereau.real(position::montantsFrais + i), masquePrimes)};
    SumExpenses();
    m_totaux.primes = Format(trouve ? bordereau.real("primes") : 0, masquePrimes);
    m_totaux.taux = Format(trouve ? bordereau.real("Commission") : 0, masqueTaux);
    m_totaux.frais = m_totalFrais;
}

/// False when there are more crates than a total can hold.
bool SaisieBordereau::LoadLines()
{
    m_lignes.clear();
    for (store::Recordset lignes = m_exercice.Base().openRecordset(requeteLignes()); !lignes.eof(); lignes.moveNext())
        m_lignes.append(lireLigne(lignes));
    m_cageotsEnregistres = sommeCageots();
    m_selection = 0;
    if (m_lignes.isEmpty())
        m_modeLigne = ModeLigne::Nouvelle;
    return m_cageotsEnregistres <= cageotsMax;
}

QString SaisieBordereau::requeteLignes() const
{
    return u"select * from L_Vente where num_bordereau = "_s + QString::number(m_demande.num);
}

QString SaisieBordereau::requeteBordereau() const
{
    return u"select * from Bordereaux where num = "_s + QString::number(m_demande.num);
}

QString SaisieBordereau::entete() const
{
    return u"Bordereau N° : "_s + m_demande.numero + u"\n Du : "_s + m_demande.date + u"\nEmbarcation : "_s +
           m_demande.nomChalutier;
}

QString SaisieBordereau::legende() const
{
    return m_demande.mode == ModeBordereau::Nouveau ? u"Nouveau Bordereau"_s : u"Correction du bordereau"_s;
}

// --- Lines -----------------------------------------------------------------------------------------------------------

SaisieBordereau::Ligne SaisieBordereau::lireLigne(const store::Recordset& ligne)
{
    Ligne lue{ligne.num(),
              ligne.integer("num_client"),
              ligne.integer("Num_Poisson"),
              ligne.integer("Casiers"),
              ligne.real("poids"),
              ligne.real("PU"),
              0};
    lue.montant = Valeur(texteMontantLigne(montantLigne(static_cast<double>(lue.Casiers), lue.poids, lue.PU)));
    return lue;
}

QString SaisieBordereau::cellule(int rang, int colonne) const
{
    const Ligne& ligne = m_lignes[rang];
    switch (colonne) {
    case ColLigneNumero:
        return QString::number(rang + 1);
    case ColLigneClient:
        return m_clients.texteDuNum(ligne.num_client, u" "_s);
    case ColLignePoisson:
        return m_poissons.texteDuNum(ligne.Num_Poisson, u" "_s);
    case ColLigneCageots:
        return QString::number(ligne.Casiers) + u' ';
    case ColLignePoids:
        return Format(ligne.poids, masqueMontant) + u' ';
    case ColLignePU:
        return Format(ligne.PU, masqueMontant) + u' ';
    case ColLigneMontant:
        return texteMontantLigne(ligne.montant);
    default:
        return {};
    }
}

std::optional<SaisieLigne> SaisieBordereau::LoadLineForCorrection()
{
    m_modeLigne = ModeLigne::Correction;
    store::Recordset& ligne = m_exercice.L_Vente;
    if (!ligne.seek(m_lignes[m_selection].num))
        return {};
    SaisieLigne saisie;
    const auto choisir = [](const ListeChoix& liste, qint64 cherche, qint64& num, QString& ordre) {
        if (liste.nombre() == 0)
            return;
        const EntreeListe& entree = liste[std::max(0, liste.rangDuNum(cherche))];
        num = entree.num;
        ordre = entree.ordre.trimmed();
    };
    choisir(m_clients, ligne.integer("num_client"), saisie.num_client, saisie.client);
    choisir(m_poissons, ligne.integer("Num_Poisson"), saisie.Num_Poisson, saisie.poisson);
    saisie.cageots = QString::number(ligne.integer("Casiers"));
    saisie.poids = Format(ligne.real("poids"), masqueSaisie);
    saisie.pu = Format(ligne.real("PU"), masqueSaisie);
    return saisie;
}

std::optional<Refus> SaisieBordereau::CheckLine(const SaisieLigne& saisie)
{
    const auto vide = [](const QString& texte) { return texte.trimmed().isEmpty(); };
    if (vide(saisie.poisson))
        return Refus{u"N° de poisson omis "_s};
    if (vide(saisie.client))
        return Refus{u"N° de client omis"_s};
    if (vide(saisie.pu))
        return Refus{u"Prix Unitaire omis"_s};
    if (vide(saisie.cageots) && vide(saisie.poids))
        return Refus{u"Quantité omise"_s};
    return {};
}

Resultat<LigneAcquise> SaisieBordereau::SaveLine(const SaisieLigne& saisie)
{
    if (const auto refus = CheckLine(saisie))
        return *refus;
    // Beyond the limit by itself, a number of crates need not be added to anything.
    const qint64 cageots = ValeurEntiere(saisie.cageots);
    if (cageots > cageotsMax || cageots < -cageotsMax)
        return tropDeCageots();
    const bool nouvelle = m_modeLigne == ModeLigne::Nouvelle || m_lignes.isEmpty();
    if (const auto refus = nouvelle ? ajouterLigne(saisie) : corrigerPremiereLigne(saisie))
        return *refus;
    SumLines();
    ComputeTotals();
    return LigneAcquise{m_selection,
                        {u"Ligne N° "_s + NombreAvecBlanc(m_selection + 1) + u" acquise"_s, QString(), Icone::Aucune}};
}

std::optional<Refus> SaisieBordereau::ajouterLigne(const SaisieLigne& saisie)
{
    const qint64 cageots = ValeurEntiere(saisie.cageots);
    if (std::max(sommeCageots(), m_cageotsEnregistres) + cageots > cageotsMax)
        return tropDeCageots();
    store::Recordset& lignes = m_exercice.L_Vente;
    lignes.addNew();
    ecrireLigne(lignes, saisie);
    const qint64 num = lignes.update();
    lignes.seek(num);
    m_lignes.append(lireLigne(lignes));
    m_cageotsEnregistres += cageots;
    m_selection = nbLignes() - 1;
    return {};
}

std::optional<Refus> SaisieBordereau::corrigerPremiereLigne(const SaisieLigne& saisie)
{
    const qint64 cageots = ValeurEntiere(saisie.cageots);
    store::Recordset lignes = m_exercice.Base().openRecordset(requeteLignes());
    const qint64 enregistres = m_cageotsEnregistres - lignes.integer("Casiers") + cageots;
    const bool premiereMontree = lignes.num() == m_lignes[m_selection].num;
    const qint64 montres = sommeCageots() + (premiereMontree ? cageots - m_lignes[m_selection].Casiers : 0);
    if (std::max(enregistres, montres) > cageotsMax)
        return tropDeCageots();
    lignes.edit();
    ecrireLigne(lignes, saisie);
    lignes.update();
    m_cageotsEnregistres = enregistres;
    if (m_exercice.L_Vente.seek(m_lignes[m_selection].num))
        m_lignes[m_selection] = lireLigne(m_exercice.L_Vente);
    return {};
}

void SaisieBordereau::ecrireLigne(store::Recordset& ligne, const SaisieLigne& saisie) const
{
    ligne.set("Date", m_demande.date);
    ligne.set("MM", MoisDe(m_demande.date));
    ligne.set("num_bordereau", m_demande.num);
    ligne.set("Num_Chalutier", m_demande.Num_Chalutier);
    ligne.set("num_client", saisie.num_client);
    ligne.set("Num_Poisson", saisie.Num_Poisson);
    ligne.set("Casiers", ValeurEntiere(saisie.cageots));
    ligne.set("poids", Valeur(saisie.poids));
    ligne.set("PU", Valeur(saisie.pu));
    ligne.set("Total", Valeur(saisie.texteMontant()));
}

Refus SaisieBordereau::confirmationSuppression() const
{
    return {u"Confirmer supression de ligne N° "_s + QString::number(m_selection + 1), u"Confirmation"_s,
            Icone::Question};
}

void SaisieBordereau::DeleteLine()
{
    store::Recordset& ligne = m_exercice.L_Vente;
    if (ligne.seek(m_lignes[m_selection].num)) {
        m_cageotsEnregistres -= ligne.integer("Casiers");
        ligne.remove();
    }
    m_lignes.removeAt(m_selection);
    m_selection = 0;
    if (m_lignes.isEmpty())
        m_modeLigne = ModeLigne::Nouvelle;
    SumLines();
    ComputeTotals();
}

// --- Expenses and totals ---------------------------------------------------------------------------------------------

void SaisieBordereau::saisirLibelle(int rang, const QString& texte)
{
    m_frais[static_cast<size_t>(rang)].libelle = texte;
}

void SaisieBordereau::saisirMontant(int rang, const QString& texte)
{
    m_frais[static_cast<size_t>(rang)].montant = texte;
    SumExpenses();
}

void SaisieBordereau::effacerFrais()
{
    for (LigneFrais& ligne : m_frais)
        ligne.montant.clear();
    m_totalFrais.clear();
}

void SaisieBordereau::prendrePrimesEtTaux(const QString& primes, const QString& taux)
{
    m_totaux.primes = primes.trimmed();
    m_totaux.taux = Valeur(taux) >= tauxMax ? QString() : taux.trimmed();
}

void SaisieBordereau::SumExpenses()
{
    double somme = 0;
    for (const LigneFrais& ligne : m_frais)
        somme += Valeur(ligne.montant);
    m_totalFrais = FormatSiPositif(somme, masqueMontant);
}

qint64 SaisieBordereau::sommeCageots() const
{
    qint64 somme = 0;
    for (const Ligne& ligne : m_lignes)
        somme += ligne.Casiers;
    return somme;
}

void SaisieBordereau::SumLines()
{
    const qint64 cageots = sommeCageots();
    double brut = 0;
    for (const Ligne& ligne : m_lignes)
        brut += ligne.montant;
    m_totaux.cageots = cageots > 0 ? QString::number(cageots) : QString();
    m_totaux.brut = suiviDUnBlanc(FormatSiPositif(brut, masqueMontant));
}

void SaisieBordereau::ComputeTotals()
{
    const double brut = Valeur(m_totaux.brut);
    const double primes = Valeur(m_totaux.primes);
    const double commission = (brut - primes) * Valeur(m_totaux.taux) * 0.01;
    const double net = brut - primes - commission - Valeur(m_totaux.frais);
    m_totaux.commission = suiviDUnBlanc(FormatSiPositif(commission, masqueTotal));
    m_totaux.net = suiviDUnBlanc(FormatSiPositif(net, masqueTotal));
}

// --- Departure -------------------------------------------------------------------------------------------------------

void SaisieBordereau::SaveBordereau()
{
    SumExpenses();
    SumLines();
    ComputeTotals();
    store::Database& base = m_exercice.Base();
    store::Transaction transaction(base);
    store::Recordset bordereau = base.openRecordset(requeteBordereau());
    if (!bordereau.eof()) {
        ecrireBordereau(bordereau);
        if (m_demande.mode == ModeBordereau::Nouveau && !base.exists(requeteLignes()))
            bordereau.remove();
    }
    transaction.commit();
}

void SaisieBordereau::ecrireBordereau(store::Recordset& bordereau) const
{
    const double brut = Valeur(m_totaux.brut);
    const double taux = Valeur(m_totaux.taux);
    // What the results and the settlements read: here, unlike on the panel, the premiums are not deducted first.
    const double mtCommission = taux * brut * 0.01;

    bordereau.edit();
    for (int i = 0; i < nbFrais; ++i) {
        const LigneFrais& ligne = m_frais[static_cast<size_t>(i)];
        bordereau.set(position::libellesFrais + i, ligne.libelle.trimmed());
        bordereau.set(position::montantsFrais + i, Valeur(ligne.montant));
    }
    bordereau.set("primes", Valeur(m_totaux.primes));
    bordereau.set("Commission", taux);
    bordereau.set("brut", brut);
    bordereau.set("Casiers", ValeurEntiere(m_totaux.cageots));
    bordereau.set("frais", Valeur(m_totaux.frais));
    bordereau.set("net", Valeur(m_totaux.net));
    bordereau.set("MT_Commission", mtCommission);
    bordereau.set("MT_Armateur", brut - mtCommission);
    bordereau.update();
}

} // namespace talor
