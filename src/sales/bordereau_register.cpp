#include "sales/bordereau_register.h"

#include "core/helpers.h"
#include "core/report_texts.h"
#include "core/typed_dates.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

/// Of the 36 fields those that are listed; all of them would take half as long again to read.
const QString listeBordereaux = u"select num, ordre, Date, Num_Chalutier, Casiers, brut, primes, Commission, frais, "
                                "net, flag_f, ordre_decompte from Bordereaux"_s;

const QString masqueMontant = u"### ###.00"_s;
const QString masquePapier = u"### ### ###.00"_s;
const QString masquePrimes = u"## ###.00"_s;

QString suiviDUnBlanc(const QString& texte)
{
    return texte.isEmpty() ? texte : texte + u' ';
}

QString nombreSiPositif(qint64 nombre)
{
    return nombre > 0 ? QString::number(nombre) : QString();
}

} // namespace

const QString RegistreBordereaux::modele = u"BORDERO.RPT"_s;

RegistreBordereaux::RegistreBordereaux(Exercice& exercice, Porte porte)
    : m_exercice(exercice)
    , m_porte(porte)
    , m_requete(porte == Porte::Registre ? listeBordereaux + u" order by Date, num"_s
                                         : listeBordereaux + u" order by Date"_s)
    , m_titre1(u"Ensemble des Bordereaux"_s)
    , m_titre2(u"Ensemble des embarcations"_s)
{}

void RegistreBordereaux::LoadRegister()
{
    m_embarcations = ListeChoix::chalutiers(m_exercice);
    m_lignes = lire(m_requete, m_valeurs);
}

QList<RegistreBordereaux::Ligne> RegistreBordereaux::lire(const QString& requete, const QVariantList& valeurs) const
{
    QList<Ligne> lues;
    store::Recordset lignes = m_exercice.Base().openRecordset(requete, valeurs);
    for (; !lignes.eof(); lignes.moveNext())
        lues.append({lignes.num(), lignes.integer("ordre"), lignes.text("Date"), lignes.isNull("Num_Chalutier"),
                     lignes.integer("Num_Chalutier"), lignes.integer("Casiers"), lignes.real("brut"),
                     lignes.real("primes"), lignes.real("Commission"), lignes.real("frais"), lignes.real("net"),
                     lignes.flag("flag_f"), lignes.integer("ordre_decompte")});
    return lues;
}

QString RegistreBordereaux::cellule(int rang, int colonne) const
{
    const Ligne& ligne = m_lignes[rang];
    if (ligne.sansChalutier && colonne > ColBordDate)
        return {};
    switch (colonne) {
    case ColBordNumero:
        return QString::number(rang + 1);
    case ColBordDate:
        return ligne.Date;
    case ColBordEmbarcation:
        return m_embarcations.texteDuNum(ligne.Num_Chalutier) + u' ';
    case ColBordCageots:
        return ligne.Casiers != 0 ? QString::number(ligne.Casiers) : QString();
    case ColBordBrut:
        return suiviDUnBlanc(FormatSiNonNul(ligne.brut, masqueMontant));
    case ColBordPrimes:
        return suiviDUnBlanc(FormatSiNonNul(ligne.primes, masquePrimes));
    case ColBordCommission:
        return suiviDUnBlanc(FormatSiPositif(commission(ligne), masqueMontant));
    case ColBordFrais:
        return suiviDUnBlanc(FormatSiNonNul(ligne.frais, masqueMontant));
    case ColBordNet:
        return suiviDUnBlanc(FormatSiNonNul(ligne.net, masqueMontant));
    case ColBordFacture:
        return ligne.flag_f ? u"OUI"_s : QString();
    case ColBordDecompte:
        return nombreSiPositif(ligne.ordre_decompte);
    default:
        return {};
    }
}

/// Not `MT_Commission`, from which the premiums are not deducted.
double RegistreBordereaux::commission(const Ligne& ligne)
{
    return (ligne.brut - ligne.primes) * ligne.Commission * 0.01;
}

Resultat<int> RegistreBordereaux::choisirEmbarcation(qint64 num) const
{
    return m_embarcations.retrouver(num, u"Embarcation introuvable"_s);
}

std::optional<Refus> RegistreBordereaux::filtrer(const FiltreBordereaux& filtre)
{
    QString critere;
    QString titre1;
    QVariantList valeurs;
    if (filtre.genre == FiltreBordereaux::Genre::Mois) {
        critere = u" MM = "_s + QString::number(filtre.mois);
        titre1 = u"Bordereaux du mois de "_s + NomsMois[static_cast<size_t>(filtre.mois - 1)];
    } else {
        if (!dateComplete(filtre.premiere) || !dateComplete(filtre.seconde))
            return Refus{u"Saisie incomplète"_s};
        if (EcartJours(filtre.premiere, filtre.seconde) < 0)
            return Refus{u"Dates inversées"_s};
        critere = u" date >= ? and date <= ?"_s;
        valeurs = {filtre.premiere, filtre.seconde};
        titre1 = u"Période du "_s + filtre.premiere + u"  au "_s + filtre.seconde;
    }
    QString titre2 = u"Ensemble des Embarcations"_s;
    if (filtre.chalutier != numEnsemble) {
        critere += u" and num_chalutier = "_s + QString::number(filtre.chalutier);
        titre2 = u"Chalutier   ----> "_s + m_embarcations.texteDuNum(filtre.chalutier);
    }
    const QString requete = listeBordereaux + u" where "_s + critere + u" order by ordre"_s;
    QList<Ligne> lues = lire(requete, valeurs);
    if (lues.isEmpty())
        return Refus{u"Aucun enregistrement pour cette période"_s, u"ATTENTION"_s, Icone::Information};
    m_requete = requete;
    m_valeurs = valeurs;
    m_titre1 = titre1;
    m_titre2 = titre2;
    m_lignes = std::move(lues);
    return {};
}

// --- Opening ---------------------------------------------------------------------------------------------------------

CadreBordereau RegistreBordereaux::cadreNouveau(const QString& aujourdHui) const
{
    return {ModeBordereau::Nouveau, u"Nouveau bordereau"_s, aujourdHui, QString::number(nbLignes() + 1)};
}

Resultat<CadreBordereau> RegistreBordereaux::cadreReouverture(int rang) const
{
    if (const auto refus = refusModification(rang))
        return *refus;
    const Ligne& ligne = m_lignes[rang];
    return CadreBordereau{ModeBordereau::Existant,
                          u"Ancien bordereau"_s,
                          ligne.Date,
                          QString::number(ligne.ordre),
                          ligne.num,
                          m_embarcations.rangDuNum(ligne.Num_Chalutier),
                          ligne.Num_Chalutier};
}

Resultat<DemandeSaisie> RegistreBordereaux::demande(const CadreBordereau& cadre) const
{
    const QString date = cadre.date.trimmed();
    if (!dateComplete(date))
        return Refus{u"Date incorrecte"_s, u"TALOR"_s, Icone::Avertissement};
    DemandeSaisie demande{cadre.mode, date, cadre.numero.trimmed(), cadre.num, cadre.Num_Chalutier, QString()};
    if (cadre.embarcation >= 0 && cadre.embarcation < m_embarcations.nombre()) {
        const EntreeListe& embarcation = m_embarcations[cadre.embarcation];
        demande.Num_Chalutier = embarcation.num;
        demande.nomChalutier = embarcation.texte;
    }
    return demande;
}

std::optional<Refus> RegistreBordereaux::refusModification(int rang) const
{
    if (m_lignes[rang].flag_f)
        return Refus{u"Bordereau facturé"_s};
    if (m_lignes[rang].ordre_decompte > 0)
        return Refus{u"Bordereau décompté"_s};
    return {};
}

// --- Deletion and print ----------------------------------------------------------------------------------------------

Refus RegistreBordereaux::confirmationSuppression(int rang) const
{
    return {u"Confirmer supression de la ligne N° "_s + QString::number(rang + 1), u"Confirmation"_s, Icone::Question};
}

Refus RegistreBordereaux::supprimer(int rang)
{
    if (const auto refus = refusModification(rang))
        return *refus;
    const QString numBordereau = QString::number(num(rang));
    store::Database& base = m_exercice.Base();
    store::Transaction transaction(base);
    base.execute(u"Delete * from L_Vente where Num_Facture = -1 and Num_Bordereau =  "_s + numBordereau);
    base.execute(u"Delete * from Bordereaux where num = "_s + numBordereau);
    transaction.commit();
    return {u"Bordereau supprimé avec succès"_s, u"TALOR"_s, Icone::Information};
}

QString RegistreBordereaux::formule(int rang) const
{
    return u"{L_Vente.num_bordereau} = "_s + QString::number(num(rang));
}

void RegistreBordereaux::ecrireTextes(int rang)
{
    TextesEtat champs{{"ch6", FormatSiPositif(commission(m_lignes[rang]), masquePapier)}};
    if (m_porte == Porte::Edition)
        champs += {{"ch4", m_titre1}, {"ch5", m_titre2}};
    talor::ecrireTextes(m_exercice, champs);
}

} // namespace talor
