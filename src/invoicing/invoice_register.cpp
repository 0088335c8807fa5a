#include "invoicing/invoice_register.h"

#include "core/helpers.h"
#include "core/typed_dates.h"
#include "core/words.h"

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

const QString masqueMontant = u"# ### ###.00"_s;
const QString masqueSomme = u"### ### ### ###"_s;
const QString blanc = u" "_s;

const QString listeFactures = u"select Factures!num as Num, Factures!ordre as ordre, date, Factures!Casiers as "
                              u"casiers, Total_HT, Consigne, Total, "
                              "Flag_R, Nom, Prenom, Tel, num_client from Factures, Clients where"_s;

QString suiviDUnBlanc(const QString& texte)
{
    return texte.isEmpty() ? texte : texte + u' ';
}

const QString& titreEtat(FiltreFactures::Etat etat)
{
    static const std::array<QString, 3> titres = {u"Factures non réglées"_s, u"Factures règlées"_s,
                                                  u"Ensemble des factures"_s};
    return titres[static_cast<size_t>(etat)];
}

} // namespace

const QString RegistreFactures::modeleFacture = u"Facture.RPT"_s;
const QString RegistreFactures::modeleRegularisation = u"F_Regul.rpt"_s;
const QString RegistreFactures::modeleListing = u"List_fct.RPT"_s;

RegistreFactures::RegistreFactures(Exercice& exercice, Porte porte, const QString& jour)
    : m_exercice(exercice)
    , m_porte(porte)
    , m_clients(ListeChoix::clientsParNom(exercice).avecEnsemble())
    , m_requete(listeFactures + u" date = ? and num_client = Clients!num"_s)
    , m_valeurs({jour})
    , m_titre1(u"Journée du  "_s + jour)
    , m_titre2(u"Ensemble des clients"_s)
{
    lirePeriode(jour);
    charger();
}

void RegistreFactures::lirePeriode(const QString& jour)
{
    m_premiereDate = m_derniereDate = jour;
    store::Recordset factures = m_exercice.Base().openRecordset(u"select * from Factures order by Date"_s);
    if (factures.eof())
        return;
    m_premiereDate = factures.text("Date");
    factures.moveLast();
    m_derniereDate = factures.text("Date");
}

QList<RegistreFactures::Ligne> RegistreFactures::lire(const QString& requete, const QVariantList& valeurs,
                                                      bool parClient) const
{
    QList<Ligne> lues;
    store::Recordset lignes = m_exercice.Base().openRecordset(requete, valeurs);
    for (; !lignes.eof(); lignes.moveNext())
        lues.append({lignes.integer("Num"), lignes.integer("ordre"), lignes.text("date"),
                     lignes.text("Nom") + u"  "_s + lignes.text("Prenom"), lignes.text("Tel"), lignes.value("casiers"),
                     lignes.real("Total_HT"), lignes.real("Consigne"), lignes.real("Total"), lignes.flag("Flag_R"),
                     false, m_clients.rangDuNum(lignes.integer("num_client"))});
    // The clients stand in their order already: comparing their names for each invoice would take ten times as long.
    if (parClient)
        std::stable_sort(lues.begin(), lues.end(),
                         [](const Ligne& a, const Ligne& b) { return a.rangClient < b.rangClient; });
    return lues;
}

void RegistreFactures::charger()
{
    m_lignes = lire(m_requete, m_valeurs, m_parClient);
}

std::optional<Refus> RegistreFactures::ApplyFilter(const FiltreFactures& filtre)
{
    QString requete = listeFactures;
    QString titre1 = titreEtat(filtre.etat);
    QVariantList valeurs;
    if (filtre.genre == FiltreFactures::Genre::Jour) {
        if (!dateComplete(filtre.jour))
            return Refus{u"Date incorrecte"_s};
        requete += u" date = ?"_s;
        valeurs = {filtre.jour};
        titre1 += u" Journée du  "_s + filtre.jour;
    } else {
        if (!dateComplete(filtre.premiere) || !dateComplete(filtre.seconde))
            return Refus{u"Date incorrecte"_s};
        if (EcartJours(filtre.premiere, filtre.seconde) < 0)
            return Refus{u"Dates inversées"_s};
        requete += u" date >= ? and date <= ?"_s;
        valeurs = {filtre.premiere, filtre.seconde};
        titre1 += u" du "_s + filtre.premiere + u" au "_s + filtre.seconde;
    }
    requete += u" and num_client = Clients!num"_s;
    if (filtre.client != numEnsemble)
        requete += u" and num_client = "_s + QString::number(filtre.client);
    if (filtre.etat == FiltreFactures::Etat::NonReglees)
        requete += u" and Flag_R = False"_s;
    else if (filtre.etat == FiltreFactures::Etat::Reglees)
        requete += u" and Flag_R = TRUE"_s;
    requete += filtre.parClient ? QString() : u" order by Factures!ordre"_s;

    QList<Ligne> lues = lire(requete, valeurs, filtre.parClient);
    if (lues.isEmpty())
        return Refus{u"Aucune Facture ne répond à ces critères"_s, u"ATTENTION"_s, Icone::Information};
    m_requete = requete;
    m_valeurs = valeurs;
    m_parClient = filtre.parClient;
    m_titre1 = titre1;
    m_titre2 = filtre.client == numEnsemble ? u"Ensemble des clients"_s
                                            : u"Client ----> "_s + m_clients.texteDuNum(filtre.client);
    m_lignes = std::move(lues);
    return {};
}

Resultat<int> RegistreFactures::choisirClient(qint64 num) const
{
    return m_clients.retrouver(num, u"Client introuvable"_s);
}

// --- The list --------------------------------------------------------------------------------------------------------

QString RegistreFactures::cellule(int rang, int colonne) const
{
    const Ligne& ligne = m_lignes[rang];
    switch (colonne) {
    case ColFactNumero:
        return QString::number(ligne.ordre);
    case ColFactDate:
        return ligne.date;
    case ColFactClient:
        return ligne.client + u' ';
    case ColFactTelephone:
        return ligne.Tel + u' ';
    case ColFactCageots:
        return ligne.casiers.toString();
    case ColFactPoisson:
        return Format(ligne.Total_HT, masqueMontant) + u' ';
    case ColFactConsigne:
        return Format(ligne.Consigne, masqueMontant) + u' ';
    case ColFactTotal:
        return Format(ligne.Total, masqueMontant) + u' ';
    case ColFactReglee:
        return !ligne.Flag_R ? QString() : m_porte == Porte::Registre ? u"OUI  "_s : u"OUI"_s;
    case ColFactImprimer:
        return ligne.marquee ? u"OUI"_s : QString();
    default:
        return {};
    }
}

QString RegistreFactures::somme(double Ligne::*montant) const
{
    double total = 0;
    for (const Ligne& ligne : m_lignes)
        total += ligne.*montant;
    return suiviDUnBlanc(FormatSiPositif(total, masqueSomme));
}

QString RegistreFactures::sommeTotalHT() const
{
    return somme(&Ligne::Total_HT);
}

QString RegistreFactures::sommeConsigne() const
{
    return somme(&Ligne::Consigne);
}

QString RegistreFactures::sommeTotal() const
{
    return somme(&Ligne::Total);
}

QString RegistreFactures::nombreTotal() const
{
    return u"Nombre total de facture(s) : "_s + QString::number(nbLignes());
}

void RegistreFactures::marquerTout(bool marquee)
{
    for (Ligne& ligne : m_lignes)
        ligne.marquee = marquee;
}

Resultat<QList<int>> RegistreFactures::lignesMarquees() const
{
    QList<int> rangs;
    for (int rang = 0; rang < nbLignes(); ++rang)
        if (m_lignes[rang].marquee)
            rangs.append(rang);
    if (rangs.isEmpty())
        return Refus{u"Aucune sélection"_s};
    return rangs;
}

// --- Prints ----------------------------------------------------------------------------------------------------------

QString RegistreFactures::numeroEtAnnee(int rang) const
{
    return cellule(rang, ColFactNumero) + u" / "_s + cellule(rang, ColFactDate).right(4);
}

const QString& RegistreFactures::modele(int rang) const
{
    return estRegularisation(rang) ? modeleRegularisation : modeleFacture;
}

QString RegistreFactures::formule(int rang) const
{
    return (estRegularisation(rang) ? u"{Factures.num} = "_s : u"{L_Vente.num_Facture} = "_s) +
           QString::number(num(rang));
}

TextesEtat RegistreFactures::TextesFacture(int rang, GenreImpression genre) const
{
    const auto montantOuBlanc = [&](int colonne) {
        const QString texte = cellule(rang, colonne);
        return Valeur(texte) > 0 ? texte : blanc;
    };
    m_exercice.Permn.requery();
    const QString tel = m_exercice.Permn.eof() ? QString() : m_exercice.Permn.text("tel").trimmed();

    const bool facture = genre == GenreImpression::Facture;
    QStringList mots = facture ? MontantEnLettres(Valeur(cellule(rang, ColFactTotal))) : QStringList();
    mots.resize(3);
    return {{"ch5", tel.isEmpty() ? blanc : u"Téléphone  :  "_s + tel},
            {"ch6", numeroEtAnnee(rang)},
            {"ch9", facture ? u"Facture N°"_s : u"Bon de Livraison N°"_s},
            {"ch10", facture ? u"Arrêtée la présente facture à la somme de :"_s : QString()},
            {"ch11", mots[0]},
            {"ch12", mots[1]},
            {"ch13", mots[2]},
            {"ch14", montantOuBlanc(ColFactConsigne)},
            {"ch15", montantOuBlanc(ColFactTotal)}};
}

void RegistreFactures::ecrireTextesFacture(int rang, GenreImpression genre)
{
    ecrireTextes(m_exercice, TextesFacture(rang, genre));
}

void RegistreFactures::ecrireListing()
{
    store::Database& base = m_exercice.Base();
    store::Transaction transaction(base);
    base.execute(u"Delete * from csse"_s);
    for (const Ligne& ligne : m_lignes)
        base.execute(u"insert into Csse (num_produit) values (?)"_s, {ligne.num});
    ecrireTextes(m_exercice, {{"ch1", m_exercice.identite(1)},
                              {"ch2", m_exercice.identite(3)},
                              {"ch3", m_exercice.identite(4)},
                              {"ch4", m_titre1},
                              {"ch5", m_titre2}});
    transaction.commit();
}

} // namespace talor
