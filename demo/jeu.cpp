#include "demo/jeu.h"

#include "core/helpers.h"
#include "core/schema.h"
#include "invoicing/invoicing.h"
#include "platform/services/clock.h"
#include "reference/categories.h"
#include "reference/fiches.h"
#include "reference/fichiers.h"
#include "sales/bordereau_register.h"

namespace talor::demo {

using namespace Qt::StringLiterals;

namespace {

const QString formatDate = u"dd/MM/yyyy"_s;

/// The refusal with what was being entered when it came.
Refus pendant(const QString& travail, Refus refus)
{
    refus.texte = travail + u" : "_s + refus.texte;
    return refus;
}

/// Enters a new card: a new card's presets, and over them the fields that the season gives.
std::optional<Refus> creerFiche(Fiches& fiches, const Fiche& champs)
{
    Fiche fiche = fiches.vierge();
    for (auto champ = champs.cbegin(); champ != champs.cend(); ++champ)
        fiche.insert(champ.key(), champ.value());
    const Resultat<int> ligne = fiches.enregistrer(fiche, std::nullopt);
    if (!ligne)
        return ligne.refus();
    return std::nullopt;
}

std::optional<Refus> saisirFrais(SaisieBordereau& saisie, const QList<Frais>& frais)
{
    for (const Frais& f : frais) {
        const std::optional<int> rang = rangFrais(saisie, f.libelle);
        if (!rang)
            return Refus{u"plus de place pour les frais « "_s + f.libelle + u" »"_s};
        saisie.saisirLibelle(*rang, f.libelle);
        saisie.saisirMontant(*rang, f.montant);
    }
    saisie.accepterFrais();
    return std::nullopt;
}

/// Types one line: the two numbers first, which choose the buyer and the fish, then the figures.
std::optional<Refus> saisirLigne(SaisieBordereau& saisie, const Saison& saison, const Ligne& ligne)
{
    SaisieLigne texte;
    texte.client = QString::number(saison.clients[ligne.client].ordre);
    texte.poisson = QString::number(saison.poissons[ligne.poisson].ordre);
    texte.cageots = ligne.cageots;
    texte.poids = ligne.poids;
    texte.pu = ligne.PU;

    const Resultat<int> client = saisie.clients().choisirParOrdre(texte.client);
    if (!client)
        return client.refus();
    const Resultat<int> poisson = saisie.poissons().choisirParOrdre(texte.poisson);
    if (!poisson)
        return poisson.refus();
    texte.num_client = saisie.clients()[*client].num;
    texte.Num_Poisson = saisie.poissons()[*poisson].num;

    saisie.nouvelleLigne();
    const Resultat<LigneAcquise> acquise = saisie.SaveLine(texte);
    if (!acquise)
        return acquise.refus();
    return std::nullopt;
}

/// Rank of a boat among those that the register offers.
int rangEmbarcation(const RegistreBordereaux& registre, const QString& denom)
{
    const ListeChoix& embarcations = registre.embarcations();
    for (int i = 0; i < embarcations.nombre(); ++i)
        if (embarcations[i].texte.trimmed() == denom)
            return i;
    return -1;
}

} // namespace

std::optional<int> rangFrais(const SaisieBordereau& saisie, const QString& libelle)
{
    const auto libre = [&](const QString& cherche) -> std::optional<int> {
        for (int i = 0; i < SaisieBordereau::nbFrais; ++i) {
            const LigneFrais& frais = saisie.frais()[static_cast<size_t>(i)];
            if (frais.libelle == cherche && frais.montant.isEmpty())
                return i;
        }
        return std::nullopt;
    };
    const std::optional<int> propre = libre(libelle);
    return propre ? propre : libre(u"Divers"_s);
}

Jeu::Jeu(Exercice& exercice, const Saison& saison, Annonce annonce)
    : m_exercice(exercice)
    , m_saison(saison)
    , m_annonce(std::move(annonce))
{}

std::optional<Refus> Jeu::jouer(Reste reste)
{
    services::clock::setToday(m_saison.journees.first().date);
    identifier();
    if (const std::optional<Refus> refus = ouvrirFiches())
        return refus;
    for (const Journee& journee : m_saison.journees) {
        services::clock::setToday(journee.date);
        m_annonce(u"Journée du "_s + journee.date.toString(formatDate));
        for (const Bordereau& bordereau : journee.bordereaux) {
            if (reste == Reste::DernierBordereau && &bordereau == &m_saison.journees.last().bordereaux.last())
                return std::nullopt;
            if (const std::optional<Refus> refus = saisirBordereau(journee, bordereau))
                return refus;
        }
        if (const std::optional<Refus> refus = facturer(journee))
            return refus;
    }
    return std::nullopt;
}

void Jeu::identifier()
{
    const Mandataire& m = m_saison.mandataire;
    store::Recordset& permn = m_exercice.Permn;
    permn.requery();
    permn.edit();
    int champ = position::identiteFiscale;
    for (const QString& texte : {m.tel, m.fax, m.RC, m.Id_Fisc, m.Article, m.compte})
        permn.set(champ++, texte);
    permn.update();
}

std::optional<Refus> Jeu::ouvrirFiches()
{
    for (const auto etape : {&Jeu::ouvrirCategories, &Jeu::ouvrirPoissons, &Jeu::ouvrirArmateurs,
                             &Jeu::ouvrirEmbarcations, &Jeu::ouvrirClients})
        if (const std::optional<Refus> refus = (this->*etape)())
            return refus;
    m_annonce(u"Fichiers : %1 poissons, %2 armateurs, %3 embarcations, %4 clients en %5 catégories"_s
                  .arg(m_saison.poissons.size())
                  .arg(m_saison.armateurs.size())
                  .arg(m_saison.embarcations.size())
                  .arg(m_saison.clients.size())
                  .arg(m_saison.categories.size()));
    return std::nullopt;
}

std::optional<Refus> Jeu::ouvrirCategories()
{
    for (const QString& denom : m_saison.categories)
        if (const Resultat<qint64> num = ajouterCategorie(m_exercice, denom); !num)
            return pendant(u"Catégorie "_s + denom, num.refus());
    return std::nullopt;
}

std::optional<Refus> Jeu::ouvrirPoissons()
{
    Fiches fiches(m_exercice, fichierProduits());
    fiches.remplir();
    for (const Poisson& p : m_saison.poissons)
        if (const auto refus = creerFiche(fiches, {{u"ordre"_s, QString::number(p.ordre)}, {u"denom"_s, p.denom}}))
            return pendant(u"Poisson "_s + p.denom, *refus);
    return std::nullopt;
}

std::optional<Refus> Jeu::ouvrirArmateurs()
{
    Fiches fiches(m_exercice, fichierArmateurs());
    fiches.remplir();
    for (const Armateur& a : m_saison.armateurs) {
        const Fiche fiche = {{u"nom"_s, a.nom},   {u"prenom"_s, a.prenom},   {u"adr1"_s, a.adr1},
                             {u"adr2"_s, a.adr2}, {u"tel"_s, a.tel},         {u"ville"_s, a.ville},
                             {u"RC"_s, a.RC},     {u"Id_Fisc"_s, a.Id_Fisc}, {u"Article"_s, a.Article}};
        if (const auto refus = creerFiche(fiches, fiche))
            return pendant(u"Armateur "_s + a.nom, *refus);
    }
    return std::nullopt;
}

std::optional<Refus> Jeu::ouvrirEmbarcations()
{
    const QList<EntreeCombo> armateurs = choixArmateurs(m_exercice); // in the order of the season's own list
    Fiches fiches(m_exercice, fichierChalutiers());
    fiches.remplir();
    for (const Embarcation& e : m_saison.embarcations) {
        const Fiche fiche = {{u"denom"_s, e.denom},
                             {u"Port"_s, e.Port},
                             {u"matricule"_s, e.matricule},
                             {u"armateur"_s, QString::number(armateurs[e.armateur].num)},
                             {u"obs"_s, e.obs}};
        if (const auto refus = creerFiche(fiches, fiche))
            return pendant(u"Embarcation "_s + e.denom, *refus);
    }
    return std::nullopt;
}

std::optional<Refus> Jeu::ouvrirClients()
{
    QHash<QString, qint64> familles;
    for (const Categorie& categorie : listerCategories(m_exercice))
        familles.insert(categorie.denom, categorie.num);
    Fiches fiches(m_exercice, fichierClients());
    fiches.remplir();
    for (const Client& c : m_saison.clients) {
        const Fiche fiche = {{u"ordre"_s, QString::number(c.ordre)},
                             {u"nom"_s, c.nom},
                             {u"prenom"_s, c.prenom},
                             {u"adr1"_s, c.adr1},
                             {u"tel"_s, c.tel},
                             {u"ville"_s, c.ville},
                             {u"RC"_s, c.RC},
                             {u"Id_Fisc"_s, c.Id_Fisc},
                             {u"Article"_s, c.Article},
                             {u"famille"_s, QString::number(familles.value(c.famille))}};
        if (const auto refus = creerFiche(fiches, fiche))
            return pendant(u"Client "_s + c.nom, *refus);
    }
    return std::nullopt;
}

std::optional<Refus> Jeu::saisirBordereau(const Journee& journee, const Bordereau& bordereau)
{
    const Embarcation& embarcation = m_saison.embarcations[bordereau.embarcation];
    RegistreBordereaux registre(m_exercice, RegistreBordereaux::Porte::Registre);
    registre.LoadRegister();
    CadreBordereau cadre = registre.cadreNouveau(journee.date.toString(formatDate));
    const QString travail = u"Bordereau N° %1, %2"_s.arg(cadre.numero, embarcation.denom);
    cadre.embarcation = rangEmbarcation(registre, embarcation.denom);
    const Resultat<DemandeSaisie> demande = registre.demande(cadre);
    if (!demande)
        return pendant(travail, demande.refus());

    SaisieBordereau saisie(m_exercice, *demande);
    if (const std::optional<Refus> refus = saisie.ouvrir())
        return pendant(travail, *refus);
    int rang = 0;
    for (const Ligne& ligne : bordereau.lignes) {
        ++rang;
        if (const std::optional<Refus> refus = saisirLigne(saisie, m_saison, ligne))
            return pendant(travail + u", ligne "_s + QString::number(rang), *refus);
    }
    if (const std::optional<Refus> refus = saisirFrais(saisie, bordereau.frais))
        return pendant(travail, *refus);
    saisie.prendrePrimesEtTaux(bordereau.primes, bordereau.taux.isEmpty() ? saisie.totaux().taux : bordereau.taux);
    saisie.SaveBordereau();

    m_annonce(u"  Bordereau N° %1  %2 %3 lignes  %4 DA"_s.arg(cadre.numero, 2)
                  .arg(embarcation.denom, -18)
                  .arg(saisie.nbLignes(), 3)
                  .arg(Format(Valeur(saisie.totaux().brut), u"### ### ##0.00"_s), 13));
    return std::nullopt;
}

std::optional<Refus> Jeu::facturer(const Journee& journee)
{
    const QString date = journee.date.toString(formatDate);
    const Resultat<BilanFacturation> bilan = InvoiceAll(m_exercice, {date});
    if (!bilan)
        return pendant(u"Facturation du "_s + date, bilan.refus());
    if (!bilan->refus.isEmpty())
        return pendant(u"Facturation du "_s + date, bilan->refus.first());
    m_annonce(u"  "_s + bilan->message.texte.trimmed());
    return std::nullopt;
}

} // namespace talor::demo
