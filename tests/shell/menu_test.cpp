#include "shell/menu.h"

#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

struct Ligne
{
    QString table;
    QString champ;
    QVariant valeur;
};

void ajouter(Exercice& exercice, const QList<Ligne>& lignes)
{
    for (const Ligne& ligne : lignes) {
        store::Recordset table = exercice.Base().openTable(ligne.table);
        table.addNew();
        if (!ligne.champ.isEmpty())
            table.set(ligne.champ.toUtf8().constData(), ligne.valeur);
        table.update();
    }
}

QString message(Exercice& exercice, const QString& nom)
{
    const auto refus = verifier(exercice, nom);
    if (!refus)
        return {};
    EXPECT_EQ(*refus, (Refus{refus->texte, u"ATTENTION"_s, Icone::Arret}));
    return refus->texte;
}

/// The tree as a person reads it: an entry a line, two blanks a level.
QString arbre(const QString& parent = {}, int niveau = 0)
{
    QString texte;
    for (const Entree& e : entrees()) {
        if (e.parent == parent)
            texte += QString(2 * niveau, u' ') + e.nom + u' ' + e.libelle + u'\n' + arbre(e.nom, niveau + 1);
    }
    return texte;
}

} // namespace

TEST(Menu, tient_toutes_ses_entrees_a_leur_place)
{
    EXPECT_EQ(arbre(), uR"(mnu_0 &Fichiers
  mnu_param &Paramétrages
    mnu_ident &Identification
    mnu_images Affichage
    mnu_ag A&gents
    mnu_arma &Armateurs
    mnu_Chalutiers &Embarcations
    mnu_sect &Poissons
    mnu_art C&lients
    mnu_annuaire Annuaire Téléph.
  mnu_3 &Exercice
    mnu_cloture &Clôturer l'exercice
    mnu_annule_cl &Annuler derniere clôture
    mnu_autre_exerc &Voir un autre exercice
    mnu_RAZ Remise à Zéro des comptes
  mnu_verr &Verrouillage
  mnu_mecano Réparer la base
  mnu_4 &Archivage
  mnu_import Importation
  mnu_5 &Quitter
mnu_6 &Mouvements
  MBorde Bordereaux
  MFACT Facturation
  Nouv_Fact Automatique
  Corr_Fact Manuelle
  mnu_regul Factures de régularisation
  FSimul Facture simulée
  MDEC Décomptes
mnu_cptes Comptes
  mnu_rec_rliq Client&s
  mnu_vers Encaissement
  mnu_m_ch &Embarcations
  mnu_reglm Règlements
  mnu_charges C&harges
  mnu_Agents Agents &Divers
  mnu_dep_rliq &Mandataire
  mnu_cbanc Compte bancaire
  mnu_Rappr Etat de Rapproch. Bancaire
  mnu_Change Change
mnu_13 &Editions
  mnu_15 &Listes
    mnu_LCLIENTS &Clients
    mnu_LPoissons &Poissons
    mnu_LArmateurs &Armateurs
    mnu_Lchalutiers Cha&Lutiers
  Mnu_CR &Bordereaux
  mnu_s_t &Factures
  MNU_BL &Décomptes
  MM_CREANCES Créances
  mnu_jour Journal de Caisse
  MSM Simulations de Décomptes
mnu_Re Résolution d'écran
  R0 Résolution d'origine
  R1 Petite résolution
  R2 Grande résolution
mnu_ppp &?
  G_PDF Guide PDF
  mnu_hlp Aide
  mnu_aprpos A propos
)"_s);
}

TEST(Menu, un_bouton_agit_comme_une_entree_qui_existe)
{
    for (const Raccourci& r : raccourcis())
        EXPECT_TRUE(entree(r.entree)) << r.libelle.toStdString();
    for (const Raccourci& r : boutonsFacturation())
        EXPECT_TRUE(entree(r.entree)) << r.libelle.toStdString();
}

TEST(Preconditions, sur_un_exercice_vide_chacune_a_son_message)
{
    const struct
    {
        QString entree;
        QString message;
    } cas[] = {
        {u"mnu_Chalutiers"_s, u"Aucun armateur enregistré"_s},
        {u"MBorde"_s, u"Initialisation des Produits de la pêche préalable"_s},
        {u"Nouv_Fact"_s, u"Aucune vente à facturer"_s},
        {u"Corr_Fact"_s, u"Initialisation des Produits de la pêche préalable"_s},
        {u"mnu_regul"_s, u"Initialisation des Clients inexistante"_s},
        {u"FSimul"_s, u"Initialisation des Produits de la pêche préalable"_s},
        {u"MDEC"_s, u"Initialisation des produits inexistante"_s},
        {u"mnu_rec_rliq"_s, u"Initialisation des Produits de la pêche préalable"_s},
        {u"mnu_vers"_s, u"Initialisation des Clients inexistante"_s},
        {u"mnu_m_ch"_s, u"Aucune Embarcation enregistrée"_s},
        {u"mnu_reglm"_s, u"Aucune Embarcation enregistrée"_s},
        {u"mnu_charges"_s, u"Initialisation des Charges inexistante"_s},
        {u"mnu_Agents"_s, u"Initialisation des Agents inexistante"_s},
        {u"Mnu_CR"_s, u"Aucun bordereau enregistré"_s},
        {u"mnu_s_t"_s, u"Aucune Facture enregistrée"_s},
        {u"MNU_BL"_s, u"Aucun décompte enregistré"_s},
        {u"mnu_jour"_s, u"Aucun mouvement de fonds enregistré"_s},
        {u"Rech_Rap"_s, u"Initialisation des Clients inexistante"_s},
        {u"mnu_arma"_s, QString()},
        {u"mnu_art"_s, QString()},
        {u"MM_CREANCES"_s, QString()},
        {u"mnu_LCLIENTS"_s, QString()},
    };
    ExerciceTemporaire t;
    for (const auto& c : cas)
        EXPECT_EQ(message(t.exercice, c.entree), c.message) << c.entree.toStdString();
}

TEST(Preconditions, se_disent_dans_leur_ordre_a_mesure_que_les_fiches_se_remplissent)
{
    ExerciceTemporaire t;
    ajouter(t.exercice, {{u"Poissons"_s, u"denom"_s, u"Sardine"_s}});
    EXPECT_EQ(message(t.exercice, u"MBorde"_s), u"Aucune Embarcation enregistrée"_s);
    EXPECT_EQ(message(t.exercice, u"MDEC"_s), u"Initialisation des Clients inexistante"_s);
    EXPECT_EQ(message(t.exercice, u"FSimul"_s), QString());
    EXPECT_EQ(message(t.exercice, u"mnu_rec_rliq"_s), u"Initialisation des Clients inexistante"_s);

    ajouter(t.exercice, {{u"Chalutiers"_s, u"denom"_s, u"El Djazair"_s}});
    EXPECT_EQ(message(t.exercice, u"MBorde"_s), u"Aucun client enregistré"_s);

    ajouter(t.exercice, {{u"Clients"_s, u"nom"_s, u"Haddad"_s}});
    EXPECT_EQ(message(t.exercice, u"MBorde"_s), QString());
    EXPECT_EQ(message(t.exercice, u"MDEC"_s), u"Aucun armateur enregistré"_s);
    EXPECT_EQ(message(t.exercice, u"mnu_rec_rliq"_s), QString());
}

TEST(Preconditions, une_vente_facturee_n_est_plus_a_facturer)
{
    ExerciceTemporaire t;
    ajouter(t.exercice, {{u"L_Vente"_s, u"Num_Facture"_s, 3}});
    EXPECT_EQ(message(t.exercice, u"Nouv_Fact"_s), u"Aucune vente à facturer"_s);
    ajouter(t.exercice, {{u"L_Vente"_s, {}, {}}});
    EXPECT_EQ(message(t.exercice, u"Nouv_Fact"_s), QString());
}

TEST(Preconditions, un_agent_n_est_pas_une_charge)
{
    ExerciceTemporaire t;
    ajouter(t.exercice, {{u"Agents"_s, u"Charge"_s, false}});
    EXPECT_EQ(message(t.exercice, u"mnu_Agents"_s), QString());
    EXPECT_EQ(message(t.exercice, u"mnu_charges"_s), u"Initialisation des Charges inexistante"_s);
    ajouter(t.exercice, {{u"Agents"_s, u"Charge"_s, true}});
    EXPECT_EQ(message(t.exercice, u"mnu_charges"_s), QString());
}

TEST(Preconditions, une_seule_depense_suffit_au_journal)
{
    for (const QString& table : {u"Recettes"_s, u"Depenses"_s}) {
        ExerciceTemporaire t;
        ajouter(t.exercice, {{table, u"montant"_s, 10}});
        EXPECT_EQ(message(t.exercice, u"mnu_jour"_s), QString());
    }
}
