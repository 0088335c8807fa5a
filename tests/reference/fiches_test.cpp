#include "reference/categories.h"
#include "reference/fiches.h"
#include "reference/fichiers.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

/// A card with a value in every field that must not be blank.
Fiche ficheComplete(const DescriptionFiche& description)
{
    Fiche fiche;
    for (const Champ& champ : description.champs)
        if (champ.obligatoire)
            fiche[QString::fromLatin1(champ.colonne)] =
                champ.saisie == Saisie::Numero || champ.saisie == Saisie::Choix ? u"1"_s : u"Zohra"_s;
    return fiche;
}

Fiche poisson(int numero, const QString& nom)
{
    return {{u"ordre"_s, QString::number(numero)}, {u"denom"_s, nom}};
}

Fiche client(int numero, const QString& nom)
{
    return {{u"ordre"_s, QString::number(numero)}, {u"nom"_s, nom}, {u"prenom"_s, u"Ali"_s}, {u"famille"_s, u"1"_s}};
}

struct ClientsTest : testing::Test
{
    ClientsTest()
    {
        ajouterCategorie(t.exercice, u"Grossistes"_s);
        clients.remplir();
    }

    ExerciceTemporaire t;
    Fiches clients{t.exercice, fichierClients()};
};

struct ProduitsTest : testing::Test
{
    ProduitsTest() { produits.remplir(); }

    void creer(const QStringList& noms)
    {
        for (const QString& nom : noms)
            ASSERT_TRUE(produits.enregistrer(poisson(produits.nombre() + 1, nom), {}));
    }

    QStringList colonne(int numero) const
    {
        QStringList cellules;
        for (int ligne = 0; ligne < produits.nombre(); ++ligne)
            cellules.append(produits.cellule(ligne, numero));
        return cellules;
    }

    ExerciceTemporaire t;
    Fiches produits{t.exercice, fichierProduits()};
};

} // namespace

class ChaqueFichier : public testing::TestWithParam<const DescriptionFiche& (*)()>
{
protected:
    ExerciceTemporaire t;
    const DescriptionFiche& description = GetParam()();
};

INSTANTIATE_TEST_SUITE_P(Fiches, ChaqueFichier,
                         testing::Values(fichierProduits, fichierArmateurs, fichierChalutiers, fichierClients));

TEST_P(ChaqueFichier, refuse_un_champ_obligatoire_vide_et_n_ecrit_rien)
{
    Fiches fiches(t.exercice, description);
    fiches.remplir();
    for (const Champ& champ : description.champs) {
        Fiche fiche = ficheComplete(description);
        const QString colonne = QString::fromLatin1(champ.colonne);
        fiche[colonne] = u"   "_s;
        const auto faute = fiches.verifier(fiche, {});
        ASSERT_EQ(faute.has_value(), champ.obligatoire) << champ.colonne;
        if (!faute)
            continue;
        EXPECT_EQ(faute->refus, (Refus{u"Saisie incomplète"_s, u"ATTENTION"_s, Icone::Arret}));
        EXPECT_EQ(faute->colonne, colonne);
        EXPECT_FALSE(fiches.enregistrer(fiche, {}));
    }
    EXPECT_EQ((t.exercice.*description.table).recordCount(), 0);
}

TEST_P(ChaqueFichier, rend_chaque_texte_tel_qu_il_fut_tape)
{
    const QStringList textes = {u"O'Brien"_s, u"Œil-de-bœuf"_s, u"مرسى الدجاج"_s, QString(80, u'é'),
                                u"50 % * ? # [a] \"x\" ; -- /*"_s};
    Fiches fiches(t.exercice, description);
    fiches.remplir();
    for (int ligne = 0; ligne < textes.size(); ++ligne) {
        Fiche fiche;
        for (const Champ& champ : description.champs)
            fiche[QString::fromLatin1(champ.colonne)] = champ.saisie == Saisie::Numero || champ.saisie == Saisie::Choix
                                                            ? QString::number(ligne + 1)
                                                            : textes[ligne];
        ASSERT_TRUE(fiches.enregistrer(fiche, {}));
        EXPECT_EQ(*fiches.lire(ligne), fiche);
    }
    fiches.remplir();
    EXPECT_EQ(fiches.nombre(), textes.size());
}

TEST_P(ChaqueFichier, repond_mouvement_altere_quand_la_fiche_a_disparu)
{
    Fiches fiches(t.exercice, description);
    fiches.remplir();
    ASSERT_TRUE(fiches.enregistrer(ficheComplete(description), {}));
    (t.exercice.*description.table).seek(fiches.num(0));
    (t.exercice.*description.table).remove();

    const Refus altere = {u"Mouvement altéré"_s};
    EXPECT_EQ(fiches.lire(0).refus(), altere);
    EXPECT_EQ(fiches.enregistrer(ficheComplete(description), 0).refus(), altere);
    EXPECT_EQ(fiches.supprimer(0), altere);
    EXPECT_EQ((t.exercice.*description.table).recordCount(), 0);
}

TEST_P(ChaqueFichier, change_la_fiche_en_main_sans_toucher_les_autres_ni_les_comptes)
{
    Fiches fiches(t.exercice, description);
    fiches.remplir();
    Fiche fiche = ficheComplete(description);
    for (int numero : {1, 2, 3}) {
        if (description.numerotee())
            fiche[u"ordre"_s] = QString::number(numero);
        ASSERT_TRUE(fiches.enregistrer(fiche, {}));
    }
    store::Recordset& table = t.exercice.*description.table;
    const bool compte = description.table != &Exercice::Poissons;
    if (compte) {
        table.seek(fiches.num(1));
        table.edit();
        table.set("Credit", 1250.5);
        table.update();
    }
    const Fiche voisine = *fiches.lire(2);

    Fiche changee = *fiches.lire(1);
    const QString nom = description.numerotee() && !compte ? u"denom"_s
                        : changee.contains(u"nom"_s)       ? u"nom"_s
                                                           : u"denom"_s;
    changee[nom] = u"  Autre nom "_s;
    EXPECT_EQ(*fiches.enregistrer(changee, 1), 1);
    changee[nom] = u"Autre nom"_s;
    EXPECT_EQ(*fiches.lire(1), changee);
    EXPECT_EQ(*fiches.lire(2), voisine);
    EXPECT_EQ(table.recordCount(), 3);
    if (compte) {
        table.seek(fiches.num(1));
        EXPECT_EQ(table.real("Credit"), 1250.5);
    }
}

TEST(Armateurs, l_observation_vide_est_un_blanc_et_l_ordre_le_compte_des_fiches)
{
    ExerciceTemporaire t;
    for (const DescriptionFiche* description : {&fichierArmateurs(), &fichierChalutiers()}) {
        Fiches fiches(t.exercice, *description);
        fiches.remplir();
        for (int i = 0; i < 3; ++i)
            ASSERT_TRUE(fiches.enregistrer(ficheComplete(*description), {}));
        EXPECT_EQ(fiches.ordre(0), 0);
        EXPECT_EQ(fiches.ordre(2), 2);
        (t.exercice.*description->table).seek(fiches.num(0));
        EXPECT_EQ((t.exercice.*description->table).text("obs"), u" "_s);
        EXPECT_EQ((*fiches.lire(0))[u"obs"_s], QString());

        // A number may be given twice after a deletion; nothing tests it and nothing reports it.
        EXPECT_EQ(fiches.supprimer(0), std::nullopt);
        ASSERT_TRUE(fiches.enregistrer(ficheComplete(*description), {}));
        EXPECT_EQ(fiches.ordre(1), fiches.ordre(2));
        EXPECT_EQ(fiches.numerosRepetes(), QStringList());
    }
}

TEST(Armateurs, un_armateur_qui_a_des_bateaux_se_supprime_et_leur_case_reste_vide)
{
    ExerciceTemporaire t;
    Fiches armateurs(t.exercice, fichierArmateurs());
    armateurs.remplir();
    ASSERT_TRUE(armateurs.enregistrer({{u"nom"_s, u"OULD ALI"_s}, {u"prenom"_s, u"Mourad"_s}}, {}));
    Fiches bateaux(t.exercice, fichierChalutiers());
    bateaux.remplir();
    ASSERT_TRUE(bateaux.enregistrer(
        {{u"denom"_s, u"Sidi Brahim"_s}, {u"Port"_s, u"Ténès"_s}, {u"armateur"_s, QString::number(armateurs.num(0))}},
        {}));
    EXPECT_EQ(bateaux.cellule(0, 2), u" OULD ALI  Mourad"_s);
    EXPECT_EQ(bateaux.cellule(0, 3), u" Ténès"_s);

    EXPECT_EQ(armateurs.supprimer(0), std::nullopt);
    bateaux.remplir();
    EXPECT_EQ(bateaux.cellule(0, 2), QString());
}

TEST(Chalutiers, un_nouveau_bateau_a_ses_lignes_de_travail_qui_lui_survivent)
{
    ExerciceTemporaire t;
    Fiches bateaux(t.exercice, fichierChalutiers());
    bateaux.remplir();
    const Fiche fiche = {{u"denom"_s, u"El Bahri"_s}, {u"Port"_s, u"Ténès"_s}, {u"armateur"_s, u"7"_s}};
    ASSERT_TRUE(bateaux.enregistrer(fiche, {}));
    ASSERT_TRUE(bateaux.enregistrer(fiche, 0)) << "a change brings no second pair";

    const auto lignes = [&](const QString& critere) {
        return t.exercice.Base().scalar(u"select count(*) from "_s + critere, {bateaux.num(0)}).toInt();
    };
    const QStringList criteres = {u"Decomptes0 where Num_Chalutier = ?"_s,
                                  u"Marins0 where Num_Arma = 7 and Num_Chalutier = ?"_s};
    for (const QString& critere : criteres)
        EXPECT_EQ(lignes(critere), 1);
    const qint64 num = bateaux.num(0);
    EXPECT_EQ(bateaux.supprimer(0), std::nullopt);
    EXPECT_EQ(t.exercice.Base().scalar(u"select count(*) from Marins0 where Num_Chalutier = ?"_s, {num}).toInt(), 1);
    EXPECT_EQ(t.exercice.Decomptes0.recordCount(), 2) << "the boat's and the simulation's";
}

TEST(Chalutiers, un_bateau_dont_les_lignes_de_travail_ne_s_ecrivent_pas_n_est_pas_cree)
{
    ExerciceTemporaire t;
    DescriptionFiche description = fichierChalutiers();
    description.apresCreation = [](Exercice& exercice, qint64 num, const Fiche& fiche) {
        fichierChalutiers().apresCreation(exercice, num, fiche);
        exercice.Base().execute(u"insert into Absente (num) values (1)"_s);
    };
    Fiches bateaux(t.exercice, description);
    bateaux.remplir();
    EXPECT_THROW(bateaux.enregistrer(ficheComplete(description), {}), store::Error);
    EXPECT_EQ(bateaux.nombre(), 0);
    EXPECT_EQ(t.exercice.Chalutiers.recordCount(), 0);
    EXPECT_EQ(t.exercice.Marins0.recordCount(), 1);

    Fiches apres(t.exercice, fichierChalutiers());
    apres.remplir();
    EXPECT_TRUE(apres.enregistrer(ficheComplete(description), {})) << "the shared recordset is free again";
}

TEST(Chalutiers, le_premier_armateur_de_la_liste_est_propose)
{
    ExerciceTemporaire t;
    Fiches bateaux(t.exercice, fichierChalutiers());
    EXPECT_EQ(bateaux.vierge(), Fiche());
    Fiches armateurs(t.exercice, fichierArmateurs());
    armateurs.remplir();
    for (const QString& nom : {u"ZERROUKI"_s, u"AMRANI"_s})
        ASSERT_TRUE(armateurs.enregistrer({{u"nom"_s, nom}, {u"prenom"_s, u"Ali"_s}}, {}));
    EXPECT_EQ(bateaux.vierge()[u"armateur"_s], QString::number(armateurs.num(0)));
    EXPECT_EQ(choixArmateurs(t.exercice)[1].texte, u"AMRANI  Ali"_s);
}

TEST_F(ProduitsTest, un_numero_ne_se_donne_pas_deux_fois)
{
    creer({u"Sardine"_s, u"Rouget"_s});
    const Refus repete = {u"Numéro répété"_s};
    EXPECT_EQ(produits.verifier(poisson(2, u"Merlan"_s), {})->refus, repete);
    EXPECT_EQ(produits.verifier(poisson(2, u"Merlan"_s), {})->colonne, u"ordre"_s);
    EXPECT_EQ(produits.verifier(poisson(2, u"Merlan"_s), 0)->refus, repete);
    EXPECT_EQ(produits.verifier({{u"ordre"_s, u"002"_s}, {u"denom"_s, u"Merlan"_s}}, {})->refus, repete);
    EXPECT_EQ(produits.verifier(poisson(2, u"Rouget barbet"_s), 1), std::nullopt) << "the row in hand keeps its own";
    EXPECT_EQ(produits.enregistrer(poisson(1, u"Merlan"_s), {}).refus(), repete);
    EXPECT_EQ(t.exercice.Poissons.recordCount(), 2);

    ASSERT_TRUE(produits.enregistrer(poisson(9, u"Rouget"_s), 1));
    EXPECT_TRUE(produits.enregistrer(poisson(2, u"Merlan"_s), {})) << "a number that was given up is free";
    EXPECT_EQ(colonne(2), (QStringList{u"1"_s, u"9"_s, u"2"_s}));
    produits.remplir();
    EXPECT_EQ(colonne(1), (QStringList{u" Sardine"_s, u" Merlan"_s, u" Rouget"_s}));
}

TEST_F(ProduitsTest, un_produit_vendu_ne_se_supprime_pas)
{
    creer({u"Sardine"_s, u"Rouget"_s, u"Merlan"_s});
    t.exercice.L_Vente.addNew();
    t.exercice.L_Vente.set("Num_Poisson", produits.num(1));
    t.exercice.L_Vente.update();

    const Refus inclus = {u"Ce produit est inclus dans un mouvement"_s};
    EXPECT_EQ(produits.empechement(1), inclus);
    EXPECT_EQ(produits.supprimer(1), inclus);
    EXPECT_EQ(t.exercice.Poissons.recordCount(), 3);
    EXPECT_EQ(produits.supprimer(0), std::nullopt);
    EXPECT_EQ(colonne(0), (QStringList{u"1"_s, u"2"_s})) << "the running number closes up";
    EXPECT_EQ(colonne(2), (QStringList{u"2"_s, u"3"_s}));
}

// Kept on purpose: the two arrows do not treat the numbers alike, and neither writes the table.
TEST_F(ProduitsTest, haut_emporte_le_numero_et_bas_le_laisse_en_place)
{
    creer({u"Sardine"_s, u"Rouget"_s});
    const qint64 sardine = produits.num(0);

    produits.descendre(0);
    EXPECT_EQ(colonne(0), (QStringList{u"2"_s, u"1"_s}));
    EXPECT_EQ(colonne(1), (QStringList{u" Rouget"_s, u" Sardine"_s}));
    EXPECT_EQ(colonne(2), (QStringList{u"1"_s, u"2"_s})) << "the third column stays";
    EXPECT_EQ(produits.num(1), sardine);
    EXPECT_EQ(produits.ordre(1), 2) << "the number of the place, not the card's";

    produits.monter(1);
    EXPECT_EQ(produits.num(0), sardine);
    EXPECT_EQ(produits.ordre(0), 2) << "taken along";

    produits.remplir();
    EXPECT_EQ(colonne(1), (QStringList{u" Sardine"_s, u" Rouget"_s}));
}

// Kept on purpose: what `Bas` left behind is what a correction is compared with.
TEST_F(ProduitsTest, apres_bas_une_correction_se_compare_aux_numeros_des_places)
{
    creer({u"Sardine"_s, u"Rouget"_s});
    produits.descendre(0);
    EXPECT_EQ(produits.verifier(poisson(1, u"Sardine"_s), 1)->refus, Refus{u"Numéro répété"_s});
    ASSERT_TRUE(produits.enregistrer(poisson(2, u"Sardine"_s), 1));
    produits.remplir();
    EXPECT_EQ(produits.numerosRepetes(), QStringList{u"0002"_s}) << "reported on leaving, the next time";
}

TEST_F(ProduitsTest, les_numeros_repetes_se_comparent_sur_quatre_chiffres)
{
    const auto ajouter = [&](const QList<int>& numeros) {
        for (int numero : numeros) {
            t.exercice.Poissons.addNew();
            t.exercice.Poissons.set("ordre", numero);
            t.exercice.Poissons.set("denom", u"x"_s);
            t.exercice.Poissons.update();
        }
        produits.remplir();
    };
    ajouter({1, 2, 12, 120});
    EXPECT_EQ(produits.numerosRepetes(), QStringList());
    ajouter({10012, 20003, 30003, 40003});
    EXPECT_EQ(produits.numerosRepetes(), (QStringList{u"0003"_s, u"0003"_s, u"0012"_s}));
}

TEST_F(ClientsTest, la_liste_va_par_nom_ou_par_numero_et_montre_la_categorie)
{
    for (const Fiche& fiche : {client(3, u"AMRANI"_s), client(1, u"ZERROUKI"_s), client(2, u"ÉLOUED"_s)})
        ASSERT_TRUE(clients.enregistrer(fiche, {}));
    const auto numeros = [&] {
        QList<double> liste;
        for (int ligne = 0; ligne < clients.nombre(); ++ligne)
            liste.append(clients.ordre(ligne));
        return liste;
    };
    EXPECT_EQ(numeros(), (QList<double>{3, 1, 2})) << "a new card takes the last row";
    clients.remplir();
    EXPECT_EQ(numeros(), (QList<double>{3, 2, 1})) << "É sorts with E";
    EXPECT_EQ(clients.cellule(0, 0), u"3"_s);
    EXPECT_EQ(clients.cellule(0, 5), u" Grossistes"_s);
    clients.remplir(Classement::OrdreManuel);
    EXPECT_EQ(numeros(), (QList<double>{1, 2, 3}));
}

TEST_F(ClientsTest, sans_categorie_un_client_n_est_pas_enregistre)
{
    EXPECT_EQ(clients.vierge()[u"famille"_s], u"1"_s);
    Fiche fiche = client(1, u"AMRANI"_s);
    for (const QString& famille : {u""_s, u"0"_s}) {
        fiche[u"famille"_s] = famille;
        EXPECT_EQ(clients.verifier(fiche, {})->colonne, u"famille"_s);
    }
    supprimerCategorie(t.exercice, 1);
    EXPECT_EQ(clients.vierge(), Fiche());
}

// Kept on purpose: a deletion numbers the first column by rows, until the list is filled again.
TEST_F(ClientsTest, un_client_qui_a_un_compte_se_supprime_et_les_numeros_montres_suivent_les_rangs)
{
    for (int numero : {10, 20, 30})
        ASSERT_TRUE(clients.enregistrer(client(numero, u"C%1"_s.arg(numero)), {}));
    t.exercice.L_Vente.addNew();
    t.exercice.L_Vente.set("num_client", clients.num(0));
    t.exercice.L_Vente.update();

    EXPECT_EQ(clients.empechement(0), std::nullopt);
    EXPECT_EQ(clients.supprimer(0), std::nullopt);
    EXPECT_EQ(clients.cellule(0, 0), u"1"_s);
    EXPECT_EQ(clients.cellule(1, 0), u"2"_s);
    EXPECT_EQ(clients.ordre(0), 20);
    clients.remplir();
    EXPECT_EQ(clients.cellule(0, 0), u"20"_s);
}

TEST_F(ClientsTest, les_fleches_echangent_les_six_colonnes)
{
    ASSERT_TRUE(clients.enregistrer(client(1, u"AMRANI"_s), {}));
    ASSERT_TRUE(clients.enregistrer(client(2, u"BENALI"_s), {}));
    clients.monter(1);
    EXPECT_EQ(clients.cellule(0, 0), u"2"_s);
    EXPECT_EQ(clients.cellule(0, 1), u" BENALI"_s);
    EXPECT_EQ(clients.ordre(0), 2);
    clients.descendre(0);
    EXPECT_EQ(clients.cellule(1, 0), u"2"_s);
    EXPECT_EQ(clients.ordre(1), 1);
    EXPECT_EQ((*clients.lire(1))[u"nom"_s], u"BENALI"_s);
}
