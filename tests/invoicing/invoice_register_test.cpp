#include "invoicing/invoice_register.h"

#include "core/words.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"
#include "tests/support/registre.h"

using namespace Qt::StringLiterals;
using namespace talor;
using Genre = FiltreFactures::Genre;
using Etat = FiltreFactures::Etat;
using Porte = RegistreFactures::Porte;

namespace {

const QString jour = u"15/06/2026"_s;

class ListeFactures : public testing::Test
{
protected:
    ListeFactures()
        : exercice(t.exercice)
        , exemples(exercice)
    {
        zoulim = exemples.client(u"ZOULIM"_s, u"Ali"_s, u"024 11 22 33"_s);
        amari = exemples.client(u"AMARI"_s, u"Said"_s);
    }

    QString texte(const char* champ)
    {
        exercice.textes.requery();
        return exercice.textes.text(champ);
    }

    ExerciceTemporaire t;
    Exercice& exercice;
    Exemples exemples;
    qint64 zoulim, amari;
};

} // namespace

TEST_F(ListeFactures, un_jour_sans_facture_ouvre_vide_et_la_periode_couvre_toutes_les_factures)
{
    {
        const RegistreFactures vide(exercice, Porte::Registre, jour);
        EXPECT_EQ(vide.premiereDate(), jour);
        EXPECT_EQ(vide.derniereDate(), jour);
    }
    for (const QString& date : {u"20/05/2026"_s, u"03/01/2026"_s, u"01/07/2026"_s})
        exemples.facture({.client = amari, .date = date, .Total_HT = 100});
    const RegistreFactures registre(exercice, Porte::Registre, jour);
    EXPECT_EQ(registre.nbLignes(), 0);
    EXPECT_EQ(registre.sommeTotal(), QString());
    EXPECT_EQ(registre.nombreTotal(), u"Nombre total de facture(s) : 0"_s);
    EXPECT_EQ(registre.premiereDate(), u"03/01/2026"_s);
    EXPECT_EQ(registre.derniereDate(), u"01/07/2026"_s);
    EXPECT_EQ(registre.titre1(), u"Journée du  15/06/2026"_s);
    EXPECT_EQ(registre.titre2(), u"Ensemble des clients"_s);
    EXPECT_EQ(registre.clients()[registre.clients().nombre() - 1].texte, u" Ensemble"_s);
}

TEST_F(ListeFactures, les_factures_du_jour_se_montrent_par_nom_avec_leurs_sommes)
{
    exemples.facture(
        {.client = zoulim, .ordre = 7, .casiers = 12, .Total_HT = 1234567.5, .Consigne = 1200, .reglee = true});
    exemples.regularisation(amari, jour, 500.4);
    exemples.facture({.client = amari, .ordre = 8, .date = u"16/06/2026"_s, .Total_HT = 9});
    const RegistreFactures registre(exercice, Porte::Registre, jour);
    ASSERT_EQ(registre.nbLignes(), 2);
    EXPECT_EQ(ligneDe(registre, 0, nbColonnesFacture),
              QStringList({u"-1"_s, jour, u"AMARI  Said "_s, u" "_s, u""_s, u"500.40 "_s, u".00 "_s, u"500.40 "_s,
                           u""_s, u""_s}));
    EXPECT_EQ(ligneDe(registre, 1, nbColonnesFacture),
              QStringList({u"7"_s, jour, u"ZOULIM  Ali "_s, u"024 11 22 33 "_s, u"12"_s, u"1 234 567.50 "_s,
                           u"1 200.00 "_s, u"1 235 767.50 "_s, u"OUI  "_s, u""_s}));
    EXPECT_EQ(registre.sommeTotalHT(), u"1 235 068 "_s);
    EXPECT_EQ(registre.sommeConsigne(), u"1 200 "_s);
    EXPECT_EQ(registre.sommeTotal(), u"1 236 268 "_s);
    EXPECT_EQ(registre.nombreTotal(), u"Nombre total de facture(s) : 2"_s);

    const RegistreFactures reimpression(exercice, Porte::Reimpression, jour);
    EXPECT_EQ(reimpression.cellule(1, ColFactReglee), u"OUI"_s);
}

TEST_F(ListeFactures, le_filtre_joint_jour_ou_periode_client_et_reglement)
{
    const qint64 a1 = exemples.facture({.client = amari, .ordre = 1, .date = u"01/06/2026"_s, .reglee = true});
    const qint64 z2 = exemples.facture({.client = zoulim, .ordre = 2, .date = u"15/06/2026"_s});
    const qint64 a3 = exemples.facture({.client = amari, .ordre = 3, .date = u"30/06/2026"_s});
    const QString debut = u"01/06/2026"_s, fin = u"30/06/2026"_s;
    struct
    {
        FiltreFactures filtre;
        QList<qint64> lignes;
        QString titre1, titre2;
    } const cas[] = {
        {{Genre::Jour, jour, {}, {}, numEnsemble, Etat::Toutes, true},
         {z2},
         u"Ensemble des factures Journée du  15/06/2026"_s,
         u"Ensemble des clients"_s},
        {{Genre::Periode, {}, debut, fin, numEnsemble, Etat::Toutes, true},
         {a1, a3, z2},
         u"Ensemble des factures du 01/06/2026 au 30/06/2026"_s,
         u"Ensemble des clients"_s},
        {{Genre::Periode, {}, debut, fin, numEnsemble, Etat::Toutes, false},
         {a1, z2, a3},
         u"Ensemble des factures du 01/06/2026 au 30/06/2026"_s,
         u"Ensemble des clients"_s},
        {{Genre::Periode, {}, debut, fin, amari, Etat::NonReglees, true},
         {a3},
         u"Factures non réglées du 01/06/2026 au 30/06/2026"_s,
         u"Client ----> AMARI  Said"_s},
        {{Genre::Periode, {}, debut, fin, numEnsemble, Etat::Reglees, true},
         {a1},
         u"Factures règlées du 01/06/2026 au 30/06/2026"_s,
         u"Ensemble des clients"_s},
    };
    RegistreFactures registre(exercice, Porte::Registre, jour);
    for (const auto& c : cas) {
        EXPECT_FALSE(registre.ApplyFilter(c.filtre));
        EXPECT_EQ(numsDe(registre), c.lignes) << c.titre1.toStdString();
        EXPECT_EQ(registre.titre1(), c.titre1);
        EXPECT_EQ(registre.titre2(), c.titre2);
    }
}

TEST_F(ListeFactures, un_filtre_refuse_laisse_la_liste_comme_elle_est)
{
    exemples.facture({.client = amari, .date = jour});
    RegistreFactures registre(exercice, Porte::Registre, jour);
    const Refus date{u"Date incorrecte"_s}, inversees{u"Dates inversées"_s},
        aucune{u"Aucune Facture ne répond à ces critères"_s, u"ATTENTION"_s, Icone::Information};
    struct
    {
        FiltreFactures filtre;
        Refus refus;
    } const cas[] = {
        {{Genre::Jour, u"15/06"_s, {}, {}, numEnsemble, Etat::Toutes, true}, date},
        {{Genre::Periode, {}, jour, {}, numEnsemble, Etat::Toutes, true}, date},
        {{Genre::Periode, {}, jour, u"15/13/2026"_s, numEnsemble, Etat::Toutes, true}, date},
        {{Genre::Periode, {}, jour, u"14/06/2026"_s, numEnsemble, Etat::Toutes, true}, inversees},
        {{Genre::Jour, u"16/06/2026"_s, {}, {}, numEnsemble, Etat::Toutes, true}, aucune},
        {{Genre::Jour, jour, {}, {}, zoulim, Etat::Toutes, true}, aucune},
        {{Genre::Jour, jour, {}, {}, numEnsemble, Etat::Reglees, true}, aucune},
    };
    for (const auto& c : cas) {
        const auto refus = registre.ApplyFilter(c.filtre);
        ASSERT_TRUE(refus) << c.refus.texte.toStdString();
        EXPECT_EQ(*refus, c.refus);
    }
    EXPECT_EQ(registre.nbLignes(), 1);
    EXPECT_EQ(registre.titre1(), u"Journée du  15/06/2026"_s);
    EXPECT_EQ(registre.choisirClient(999).refus(), Refus{u"Client introuvable"_s});
}

TEST_F(ListeFactures, une_facture_porte_sa_somme_en_lettres_et_un_bon_de_livraison_non)
{
    exercice.Permn.edit();
    exercice.Permn.set("tel", u"024 47 00 00"_s);
    exercice.Permn.update();
    exemples.facture({.client = amari, .ordre = 7, .casiers = 12, .Total_HT = 5000, .Consigne = 1200});
    const QString mots = MontantEnLettres(6200).first();
    for (const Porte porte : {Porte::Registre, Porte::Reimpression}) {
        // What an earlier print may have left behind.
        ecrireTextes(exercice, {{"ch7", u"reste"_s}, {"ch12", u"*** AUTRE SOMME"_s}, {"ch14", u"99.00"_s}});
        RegistreFactures registre(exercice, porte, jour);
        registre.ecrireTextesFacture(0, GenreImpression::Facture);
        EXPECT_EQ(texte("ch5"), u"Téléphone  :  024 47 00 00"_s);
        EXPECT_EQ(texte("ch6"), u"7 / 2026"_s);
        EXPECT_EQ(texte("ch7"), u"reste"_s);
        EXPECT_EQ(texte("ch9"), u"Facture N°"_s);
        EXPECT_EQ(texte("ch10"), u"Arrêtée la présente facture à la somme de :"_s);
        EXPECT_EQ(texte("ch11"), mots);
        EXPECT_EQ(texte("ch12"), QString());
        EXPECT_EQ(texte("ch14"), u"1 200.00 "_s);
        EXPECT_EQ(texte("ch15"), u"6 200.00 "_s);

        registre.ecrireTextesFacture(0, GenreImpression::BonDeLivraison);
        EXPECT_EQ(texte("ch9"), u"Bon de Livraison N°"_s);
        for (const char* champ : {"ch10", "ch11", "ch12", "ch13"})
            EXPECT_EQ(texte(champ), QString()) << champ;
        EXPECT_EQ(texte("ch14"), u"1 200.00 "_s);
        EXPECT_EQ(texte("ch15"), u"6 200.00 "_s);
    }
}

TEST_F(ListeFactures, une_regularisation_s_imprime_sur_son_propre_etat)
{
    const qint64 facture = exemples.facture({.client = zoulim, .ordre = 7, .Total_HT = 900});
    const qint64 regul = exemples.regularisation(amari, jour, 500);
    const RegistreFactures registre(exercice, Porte::Registre, jour);
    EXPECT_EQ(registre.modele(0), u"F_Regul.rpt"_s);
    EXPECT_EQ(registre.formule(0), u"{Factures.num} = "_s + QString::number(regul));
    EXPECT_EQ(registre.modele(1), u"Facture.RPT"_s);
    EXPECT_EQ(registre.formule(1), u"{L_Vente.num_Facture} = "_s + QString::number(facture));

    const TextesEtat textes = registre.TextesFacture(0, GenreImpression::Facture);
    const auto champ = [&](const char* nom) {
        for (const auto& [cle, valeur] : textes)
            if (qstrcmp(cle, nom) == 0)
                return valeur;
        return u"absent"_s;
    };
    EXPECT_EQ(champ("ch5"), u" "_s) << "no telephone known";
    EXPECT_EQ(champ("ch14"), u" "_s) << "no deposit";
    EXPECT_EQ(champ("ch6"), u"-1 / 2026"_s);
}

TEST_F(ListeFactures, les_marques_ne_tiennent_que_jusqu_au_rechargement)
{
    for (int ordre = 1; ordre <= 3; ++ordre)
        exemples.facture({.client = amari, .ordre = ordre});
    RegistreFactures registre(exercice, Porte::Registre, jour);
    EXPECT_EQ(registre.lignesMarquees().refus(), Refus{u"Aucune sélection"_s});
    registre.marquer(2, true);
    registre.marquer(0, true);
    EXPECT_EQ(registre.cellule(2, ColFactImprimer), u"OUI"_s);
    EXPECT_EQ(*registre.lignesMarquees(), QList<int>({0, 2}));
    registre.marquer(0, false);
    EXPECT_EQ(*registre.lignesMarquees(), QList<int>({2}));
    registre.marquerTout(true);
    EXPECT_EQ(*registre.lignesMarquees(), QList<int>({0, 1, 2}));
    registre.charger();
    EXPECT_FALSE(registre.lignesMarquees());
}

TEST_F(ListeFactures, le_listing_remplace_celui_d_avant)
{
    const qint64 a = exemples.facture({.client = zoulim, .ordre = 1});
    const qint64 b = exemples.facture({.client = amari, .ordre = 2});
    exercice.Base().execute(u"insert into Csse (num_produit) values (77)"_s);
    RegistreFactures registre(exercice, Porte::Registre, jour);
    registre.ecrireListing();
    QList<qint64> produits;
    for (store::Recordset csse = exercice.Base().openRecordset(u"select * from csse"_s); !csse.eof(); csse.moveNext())
        produits += csse.integer("num_produit");
    EXPECT_EQ(produits, QList<qint64>({b, a})) << "in the order of the list";
    EXPECT_EQ(texte("ch1"), exercice.identite(1));
    EXPECT_EQ(texte("ch2"), exercice.identite(3));
    EXPECT_EQ(texte("ch3"), exercice.identite(4));
    EXPECT_EQ(texte("ch4"), u"Journée du  15/06/2026"_s);
    EXPECT_EQ(texte("ch5"), u"Ensemble des clients"_s);
}
