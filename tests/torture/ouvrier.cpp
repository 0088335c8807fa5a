#include "ouvrier.h"

#include "core/helpers.h"
#include "core/schema.h"
#include "invoicing/invoicing.h"
#include "lifecycle/reparation.h"
#include "shell/shutdown.h"

#include "tests/support/exemples.h"

namespace torture {

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

constexpr int annee = 2026;
constexpr int nbClients = 12;
constexpr int nbEmbarcations = 4;
constexpr int nbPoissons = 6;
const QString date = u"15/06/2026"_s;

void accepter(const std::optional<Refus>& refus)
{
    if (refus)
        throw Inattendu{refus->texte};
}

} // namespace

Ouvrier::Ouvrier(Exercice& exercice, quint32 graine, Annoncer annoncer)
    : m_exercice(exercice)
    , m_hasard(graine)
    , m_annoncer(std::move(annoncer))
{}

void Ouvrier::travailler(int nbActions)
{
    for (int i = 0; i < nbActions; ++i) {
        const int tirage = hasard(1, 100);
        if (tirage <= 50)
            nouveauBordereau();
        else if (tirage <= 65)
            rouvrirBordereau();
        else if (tirage <= 73)
            supprimerBordereau();
        else if (tirage <= 94)
            facturer();
        else if (tirage <= 98)
            sortir();
        else
            compacter();
    }
}

// --- Bordereaux ------------------------------------------------------------------------------------------------------

void Ouvrier::nouveauBordereau()
{
    DemandeSaisie demande;
    demande.date = date;
    demande.numero = QString::number(hasard(1, 9999));
    demande.Num_Chalutier = hasard(1, nbEmbarcations);
    SaisieBordereau saisie(m_exercice, demande);
    commencer({.genre = Action::Creation});
    accepter(saisie.ouvrir());
    annoncer({.genre = Action::Creation, .bordereau = saisie.demande().num});
    remplir(saisie);
}

void Ouvrier::rouvrirBordereau()
{
    RegistreBordereaux registre(m_exercice, RegistreBordereaux::Porte::Registre);
    const std::optional<int> rang = rangModifiable(registre);
    if (!rang)
        return;
    const auto cadre = registre.cadreReouverture(*rang);
    SaisieBordereau saisie(m_exercice, *registre.demande(*cadre));
    accepter(saisie.ouvrir());
    remplir(saisie);
}

void Ouvrier::supprimerBordereau()
{
    RegistreBordereaux registre(m_exercice, RegistreBordereaux::Porte::Registre);
    const std::optional<int> rang = rangModifiable(registre);
    if (!rang)
        return;
    const Action action{.genre = Action::SuppressionBordereau, .bordereau = registre.num(*rang)};
    commencer(action);
    const Refus message = registre.supprimer(*rang);
    if (message.icone != Icone::Information)
        throw Inattendu{message.texte};
    annoncer(action);
}

/// A bordereau of the register that is neither invoiced nor settled.
std::optional<int> Ouvrier::rangModifiable(RegistreBordereaux& registre)
{
    registre.LoadRegister();
    std::vector<int> rangs;
    for (int rang = 0; rang < registre.nbLignes(); ++rang)
        if (!registre.refusModification(rang))
            rangs.push_back(rang);
    if (rangs.empty())
        return {};
    return rangs[static_cast<size_t>(hasard(0, static_cast<int>(rangs.size()) - 1))];
}

void Ouvrier::remplir(SaisieBordereau& saisie)
{
    for (int gestes = hasard(0, 14); gestes > 0; --gestes) {
        const int tirage = hasard(1, 100);
        if (saisie.nbLignes() == 0 || tirage <= 75)
            ajouterLigne(saisie);
        else if (tirage <= 88)
            corrigerLigne(saisie);
        else
            supprimerLigne(saisie);
    }
    if (hasard(0, 1)) {
        saisie.saisirMontant(hasard(0, SaisieBordereau::nbFrais - 1), QString::number(hasard(10, 900)));
        saisie.accepterFrais();
    }
    if (hasard(0, 3) == 0)
        saisie.prendrePrimesEtTaux(QString::number(hasard(0, 500)), QString::number(hasard(5, 20)));
    quitter(saisie);
}

void Ouvrier::saisirChiffres(SaisieLigne& ligne)
{
    ligne.cageots = QString::number(hasard(0, 40));
    ligne.poids = hasard(0, 2) ? QString::number(hasard(1, 60'000) / 100.0) : QString();
    ligne.pu = QString::number(hasard(1, 90'000) / 100.0);
}

void Ouvrier::ajouterLigne(SaisieBordereau& saisie)
{
    saisie.nouvelleLigne();
    SaisieLigne ligne;
    const EntreeListe& client = saisie.clients()[hasard(0, saisie.clients().nombre() - 1)];
    const EntreeListe& poisson = saisie.poissons()[hasard(0, saisie.poissons().nombre() - 1)];
    ligne.num_client = client.num;
    ligne.client = client.ordre;
    ligne.Num_Poisson = poisson.num;
    ligne.poisson = poisson.ordre;
    saisirChiffres(ligne);
    Action action{.genre = Action::Ligne,
                  .bordereau = saisie.demande().num,
                  .client = ligne.num_client,
                  .poisson = ligne.Num_Poisson,
                  .cageots = ValeurEntiere(ligne.cageots),
                  .poids = Valeur(ligne.poids),
                  .pu = Valeur(ligne.pu),
                  .total = Valeur(ligne.texteMontant())};
    commencer(action);
    const auto acquise = saisie.SaveLine(ligne);
    if (!acquise)
        throw Inattendu{acquise.refus().texte};
    action.ligne = saisie.numLigne(acquise->rang);
    annoncer(action);
}

void Ouvrier::corrigerLigne(SaisieBordereau& saisie)
{
    saisie.selectionner(hasard(0, saisie.nbLignes() - 1));
    auto ligne = saisie.LoadLineForCorrection();
    if (!ligne)
        throw Inattendu{u"la ligne à corriger n'est plus là"_s};
    saisirChiffres(*ligne);
    // Whichever is selected, it is the first that a correction rewrites.
    const Action action{.genre = Action::Correction,
                        .bordereau = saisie.demande().num,
                        .ligne = saisie.numLigne(0),
                        .client = ligne->num_client,
                        .poisson = ligne->Num_Poisson,
                        .cageots = ValeurEntiere(ligne->cageots),
                        .poids = Valeur(ligne->poids),
                        .pu = Valeur(ligne->pu),
                        .total = Valeur(ligne->texteMontant())};
    commencer(action);
    const auto acquise = saisie.SaveLine(*ligne);
    if (!acquise)
        throw Inattendu{acquise.refus().texte};
    annoncer(action);
}

void Ouvrier::supprimerLigne(SaisieBordereau& saisie)
{
    saisie.selectionner(hasard(0, saisie.nbLignes() - 1));
    const Action action{.genre = Action::SuppressionLigne, .ligne = saisie.numLigne(saisie.selection())};
    commencer(action);
    saisie.DeleteLine();
    annoncer(action);
}

void Ouvrier::quitter(SaisieBordereau& saisie)
{
    const PanneauTotaux& totaux = saisie.totaux();
    const Action action{.genre = Action::Depart,
                        .bordereau = saisie.demande().num,
                        .cageots = ValeurEntiere(totaux.cageots),
                        .brut = Valeur(totaux.brut),
                        .frais = Valeur(totaux.frais),
                        .primes = Valeur(totaux.primes),
                        .taux = Valeur(totaux.taux),
                        .nouveau = saisie.demande().mode == ModeBordereau::Nouveau};
    commencer(action);
    saisie.SaveBordereau();
    annoncer(action);
}

// --- Invoices, exit, compaction --------------------------------------------------------------------------------------

void Ouvrier::facturer()
{
    DemandeFacturation demande;
    demande.date = date;
    if (hasard(0, 2) > 0)
        demande.client = hasard(1, nbClients);
    const Action prochaine{.genre = Action::Facture, .client = qMax<qint64>(0, demande.client)};
    const auto annoncerDerniere = [&] {
        store::Recordset& factures = m_exercice.Factures;
        factures.seek(m_exercice.Base().scalar(u"select max(num) from Factures"_s).toLongLong());
        annoncer({.genre = Action::Facture,
                  .client = factures.integer("num_client"),
                  .facture = factures.num(),
                  .ordre = factures.integer("ordre")});
    };
    const auto bilan = InvoiceAll(m_exercice, demande, [&](int faites, int) {
        if (faites > 0)
            annoncerDerniere();
        commencer(prochaine);
        return true;
    });
    if (!bilan)
        return; // no open line
    if (!bilan->refus.isEmpty())
        throw Inattendu{bilan->refus.first().texte};
    annoncerDerniere();
}

void Ouvrier::sortir()
{
    commencer({.genre = Action::Sortie});
    const QList<Refus> echecs = arreterExercice(m_exercice, Resolution::Petite);
    if (!echecs.isEmpty())
        throw Inattendu{echecs.first().texte};
    annoncer({.genre = Action::Sortie});
    m_exercice.OuvrirBase();
    m_exercice.LireParametres();
}

void Ouvrier::compacter()
{
    commencer({.genre = Action::Compactage});
    const auto pertes = CompacterBase(m_exercice);
    if (!pertes)
        throw Inattendu{pertes.refus().texte};
    if (!pertes->isEmpty())
        throw Inattendu{pertes->join(u'\n')};
    annoncer({.genre = Action::Compactage});
}

// --- The exercise ----------------------------------------------------------------------------------------------------

std::unique_ptr<Exercice> exerciceDe(const QString& dossier)
{
    return std::make_unique<Exercice>(Installation(dossier), Configuration(), PointeurAnnee{annee, 0});
}

void preparerExercice(const QString& dossier)
{
    const auto exercice = exerciceDe(dossier);
    creerExerciceVide(exercice->CheminBase);
    exercice->installation().creerDossiers();
    exercice->OuvrirBase();
    exercice->LireParametres();
    Exemples exemples(*exercice);
    for (int i = 1; i <= nbClients; ++i)
        exemples.client(u"Client %1"_s.arg(i), u"Prénom"_s);
    for (int i = 1; i <= nbEmbarcations; ++i)
        exemples.chalutier(u"Embarcation %1"_s.arg(i));
    for (int i = 1; i <= nbPoissons; ++i)
        exemples.poisson(u"Poisson %1"_s.arg(i));
}

} // namespace torture
