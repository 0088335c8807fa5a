#include "shell/menu.h"

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;

const QString horsMenu = u"-"_s;

namespace {

using Genre = Entree::Genre;
using Branche = QList<Entree>; // an entry, and behind it all that hangs below it

Branche commande(const QString& nom, const QString& libelle, const QList<Condition>& conditions = {})
{
    return {{nom, libelle, {}, Genre::Commande, conditions}};
}

Branche sousMenu(const QString& nom, const QString& libelle, std::initializer_list<Branche> branches)
{
    Branche toutes = {{nom, libelle, {}, Genre::SousMenu, {}}};
    for (Branche branche : branches) {
        branche.first().parent = nom;
        toutes += branche;
    }
    return toutes;
}

Branche choix(const QString& nom, const QString& libelle)
{
    return {{nom, libelle, {}, Genre::Choix, {}}};
}

/// An entry that is disabled while an old exercise is in view.
Branche courant(Branche branche)
{
    branche.first().exerciceCourantSeul = true;
    return branche;
}

/// An entry with a line above it.
Branche trait(Branche branche)
{
    branche.first().separateurAvant = true;
    return branche;
}

Condition nonVide(const QString& table, const QString& message)
{
    return {{u"select num from "_s + table}, message};
}

Condition agents(const QString& charge, const QString& message)
{
    return {{u"select num from Agents where Charge = "_s + charge}, message};
}

// The same lack is told in more than one wording: each function keeps its own.
const Condition poissons = nonVide(u"Poissons"_s, u"Initialisation des Produits de la pêche préalable"_s);
const Condition produits = nonVide(u"Poissons"_s, u"Initialisation des produits inexistante"_s);
const Condition clients = nonVide(u"Clients"_s, u"Initialisation des Clients inexistante"_s);
const Condition acheteurs = nonVide(u"Clients"_s, u"Aucun client enregistré"_s);
const Condition armateurs = nonVide(u"Armateurs"_s, u"Aucun armateur enregistré"_s);
const Condition embarcations = nonVide(u"Chalutiers"_s, u"Aucune Embarcation enregistrée"_s);
const Condition aFacturer = {{u"select * from L_Vente where num_Facture = -1"_s}, u"Aucune vente à facturer"_s};
const Condition bordereaux = nonVide(u"Bordereaux"_s, u"Aucun bordereau enregistré"_s);
const Condition factures = nonVide(u"Factures"_s, u"Aucune Facture enregistrée"_s);
const Condition decomptes = nonVide(u"Decomptes"_s, u"Aucun décompte enregistré"_s);
const Condition mouvementsDeFonds = {{u"select num from Recettes"_s, u"select num from Depenses"_s},
                                     u"Aucun mouvement de fonds enregistré"_s};

// clang-format off
Branche menuFichiers()
{
    return sousMenu(u"mnu_0"_s, u"&Fichiers"_s, {
        courant(sousMenu(u"mnu_param"_s, u"&Paramétrages"_s, {
            commande(u"mnu_ident"_s, u"&Identification"_s),
            commande(u"mnu_images"_s, u"Affichage"_s),
            trait(commande(u"mnu_ag"_s, u"A&gents"_s)),
            commande(u"mnu_arma"_s, u"&Armateurs"_s),
            commande(u"mnu_Chalutiers"_s, u"&Embarcations"_s, {armateurs}),
            commande(u"mnu_sect"_s, u"&Poissons"_s),
            commande(u"mnu_art"_s, u"C&lients"_s),
            trait(commande(u"mnu_annuaire"_s, u"Annuaire Téléph."_s)),
        })),
        sousMenu(u"mnu_3"_s, u"&Exercice"_s, {
            courant(commande(u"mnu_cloture"_s, u"&Clôturer l'exercice"_s)),
            courant(commande(u"mnu_annule_cl"_s, u"&Annuler derniere clôture"_s)),
            commande(u"mnu_autre_exerc"_s, u"&Voir un autre exercice"_s),
            trait(commande(u"mnu_RAZ"_s, u"Remise à Zéro des comptes"_s)),
        }),
        trait(courant(commande(u"mnu_verr"_s, u"&Verrouillage"_s))),
        commande(u"mnu_mecano"_s, u"Réparer la base"_s),
        courant(commande(u"mnu_4"_s, u"&Archivage"_s)),
        commande(u"mnu_import"_s, u"Importation"_s),
        trait(commande(u"mnu_5"_s, u"&Quitter"_s)),
    });
}

Branche menuMouvements()
{
    return courant(sousMenu(u"mnu_6"_s, u"&Mouvements"_s, {
        commande(u"MBorde"_s, u"Bordereaux"_s, {poissons, embarcations, acheteurs}),
        trait(commande(u"MFACT"_s, u"Facturation"_s)),
        commande(u"Nouv_Fact"_s, u"Automatique"_s, {aFacturer}),
        commande(u"Corr_Fact"_s, u"Manuelle"_s, {poissons, clients}),
        commande(u"mnu_regul"_s, u"Factures de régularisation"_s, {clients}),
        commande(u"FSimul"_s, u"Facture simulée"_s, {poissons}),
        trait(commande(u"MDEC"_s, u"Décomptes"_s, {produits, clients, armateurs, embarcations})),
    }));
}

Branche menuComptes()
{
    return sousMenu(u"mnu_cptes"_s, u"Comptes"_s, {
        commande(u"mnu_rec_rliq"_s, u"Client&s"_s, {poissons, clients}),
        commande(u"mnu_vers"_s, u"Encaissement"_s, {clients}),
        trait(commande(u"mnu_m_ch"_s, u"&Embarcations"_s, {embarcations})),
        commande(u"mnu_reglm"_s, u"Règlements"_s, {embarcations}),
        trait(commande(u"mnu_charges"_s, u"C&harges"_s,
                       {agents(u"True"_s, u"Initialisation des Charges inexistante"_s)})),
        commande(u"mnu_Agents"_s, u"Agents &Divers"_s,
                 {agents(u"False"_s, u"Initialisation des Agents inexistante"_s)}),
        commande(u"mnu_dep_rliq"_s, u"&Mandataire"_s),
        trait(commande(u"mnu_cbanc"_s, u"Compte bancaire"_s)),
        commande(u"mnu_Rappr"_s, u"Etat de Rapproch. Bancaire"_s),
        trait(commande(u"mnu_Change"_s, u"Change"_s)),
    });
}

Branche menuEditions()
{
    return sousMenu(u"mnu_13"_s, u"&Editions"_s, {
        sousMenu(u"mnu_15"_s, u"&Listes"_s, {
            commande(u"mnu_LCLIENTS"_s, u"&Clients"_s),
            commande(u"mnu_LPoissons"_s, u"&Poissons"_s),
            commande(u"mnu_LArmateurs"_s, u"&Armateurs"_s),
            commande(u"mnu_Lchalutiers"_s, u"Cha&Lutiers"_s),
        }),
        trait(commande(u"Mnu_CR"_s, u"&Bordereaux"_s, {bordereaux})),
        commande(u"mnu_s_t"_s, u"&Factures"_s, {factures}),
        commande(u"MNU_BL"_s, u"&Décomptes"_s, {decomptes}),
        trait(commande(u"MM_CREANCES"_s, u"Créances"_s)),
        commande(u"mnu_jour"_s, u"Journal de Caisse"_s, {mouvementsDeFonds}),
        commande(u"MSM"_s, u"Simulations de Décomptes"_s),
    });
}

Branche menuResolution()
{
    return sousMenu(u"mnu_Re"_s, u"Résolution d'écran"_s, {
        choix(u"R0"_s, u"Résolution d'origine"_s),
        choix(u"R1"_s, u"Petite résolution"_s),
        choix(u"R2"_s, u"Grande résolution"_s),
    });
}

Branche menuAide()
{
    return sousMenu(u"mnu_ppp"_s, u"&?"_s, {
        commande(u"G_PDF"_s, u"Guide PDF"_s),
        commande(u"mnu_hlp"_s, u"Aide"_s),
        trait(commande(u"mnu_aprpos"_s, u"A propos"_s)),
    });
}
// clang-format on

/// The quick search, which the shortcut "Clients" alone opens.
Branche fonctionsHorsMenu()
{
    Branche recherche = commande(u"Rech_Rap"_s, u"Clients"_s, {clients});
    recherche.first().parent = horsMenu;
    return recherche;
}

} // namespace

const QList<Entree>& entrees()
{
    static const QList<Entree> toutes = menuFichiers() + menuMouvements() + menuComptes() + menuEditions() +
                                        menuResolution() + menuAide() + fonctionsHorsMenu();
    return toutes;
}

const Entree* entree(const QString& nom)
{
    const auto trouvee = std::ranges::find(entrees(), nom, &Entree::nom);
    return trouvee == entrees().end() ? nullptr : &*trouvee;
}

const std::array<Raccourci, 9>& raccourcis()
{
    static const std::array<Raccourci, 9> neuf = {{
        {u"Détail des Ventes"_s, u"MFACT"_s, u"facture"_s, true},
        {u"Décomptes"_s, u"MDEC"_s, u"decompte"_s, true},
        {u"Créances"_s, u"MM_CREANCES"_s, u"creances"_s, true},
        {u"Règlements"_s, u"mnu_reglm"_s, u"reglement"_s, false},
        {u"Journal de Caisse"_s, u"mnu_jour"_s, u"caisse"_s, false},
        {u"Bordereaux"_s, u"MBorde"_s, u"bordereau"_s, false},
        {u"Quitter"_s, u"mnu_5"_s, u"quitter"_s, false},
        {u"Clients"_s, u"Rech_Rap"_s, u"clients"_s, false},
        {u"Encaissement"_s, u"mnu_vers"_s, u"encaissement"_s, false},
    }};
    return neuf;
}

const std::array<Raccourci, 8>& boutonsFacturation()
{
    static const std::array<Raccourci, 8> huit = {{
        {u"  Automatique"_s, u"Nouv_Fact"_s, u"facture"_s, false},
        {u"  Manuelle"_s, u"Corr_Fact"_s, u"modifier"_s, false},
        {u"  De régularisation"_s, u"mnu_regul"_s, u"ajuster"_s, false},
        {u"  Simulée"_s, u"FSimul"_s, u"document"_s, false},
        {u"  Factures"_s, u"mnu_s_t"_s, u"liste"_s, false},
        {u"  Bordereaux"_s, u"Mnu_CR"_s, u"bordereau"_s, false},
        {u"  Décomptes"_s, u"MNU_BL"_s, u"decompte"_s, false},
        {u"  Créances"_s, u"MM_CREANCES"_s, u"creances"_s, false},
    }};
    return huit;
}

std::optional<Refus> verifier(Exercice& exercice, const QString& nom)
{
    const Entree* demandee = entree(nom);
    if (!demandee)
        return std::nullopt;
    for (const Condition& condition : demandee->conditions) {
        const bool tenue = std::ranges::any_of(condition.requetes,
                                               [&](const QString& requete) { return exercice.Base().exists(requete); });
        if (!tenue)
            return Refus{condition.message};
    }
    return std::nullopt;
}

} // namespace talor
