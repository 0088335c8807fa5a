#include "sales/bordereau_register.h"

#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/panne.h"
#include "tests/support/print.h"
#include "tests/support/registre.h"

using namespace Qt::StringLiterals;
using namespace talor;
using Genre = FiltreBordereaux::Genre;
using Porte = RegistreBordereaux::Porte;

namespace {

class Registre : public testing::Test
{
protected:
    Registre()
        : exercice(t.exercice)
        , exemples(exercice)
    {
        amal = exemples.chalutier(u"AMAL"_s);
        nadjet = exemples.chalutier(u"NADJET"_s);
    }

    ExerciceTemporaire t;
    Exercice& exercice;
    Exemples exemples;
    qint64 amal, nadjet;
};

} // namespace

TEST_F(Registre, un_zero_se_montre_vide_et_la_commission_se_calcule)
{
    const qint64 plein = exemples.bordereau(u"02/03/2026"_s, nadjet);
    Exemples::changer(exercice.Bordereaux, plein,
                      {{"Casiers", 120},
                       {"brut", 123456.5},
                       {"primes", 1000},
                       {"Commission", 15},
                       {"MT_Commission", 99},
                       {"frais", 12.3},
                       {"net", 98765},
                       {"flag_f", true},
                       {"ordre_decompte", 7}});
    exemples.bordereau(u"03/03/2026"_s, 999);
    Exemples::changer(exercice.Bordereaux, exemples.bordereau(u"04/03/2026"_s, amal),
                      {{"Num_Chalutier", QVariant()}, {"brut", 500}, {"flag_f", true}});
    Exemples::changer(exercice.Bordereaux, exemples.bordereau(u"05/03/2026"_s, amal),
                      {{"brut", 500}, {"primes", 800}, {"Commission", 10}});

    RegistreBordereaux registre(exercice, Porte::Registre);
    registre.LoadRegister();
    const QString vide;
    ASSERT_EQ(registre.nbLignes(), 4);
    EXPECT_EQ(ligneDe(registre, 0, nbColonnesBordereau),
              QStringList({u"1"_s, u"02/03/2026"_s, u"NADJET "_s, u"120"_s, u"123 456.50 "_s, u"1 000.00 "_s,
                           u"18 368.48 "_s, u"12.30 "_s, u"98 765.00 "_s, u"OUI"_s, u"7"_s}));
    EXPECT_EQ(ligneDe(registre, 1, nbColonnesBordereau),
              QStringList({u"2"_s, u"03/03/2026"_s, u" "_s, vide, vide, vide, vide, vide, vide, vide, vide}));
    EXPECT_EQ(ligneDe(registre, 2, nbColonnesBordereau),
              QStringList({u"3"_s, u"04/03/2026"_s, vide, vide, vide, vide, vide, vide, vide, vide, vide}));
    EXPECT_EQ(registre.cellule(3, ColBordCommission), vide) << "a commission below zero is not shown";
}

TEST_F(Registre, la_liste_va_par_date_et_le_filtre_par_numero)
{
    const qint64 mars = exemples.bordereau(u"10/03/2026"_s, nadjet);
    const qint64 fevrier = exemples.bordereau(u"20/02/2026"_s, nadjet);
    const qint64 debutMars = exemples.bordereau(u"01/03/2026"_s, amal);
    RegistreBordereaux registre(exercice, Porte::Registre);
    registre.LoadRegister();
    EXPECT_EQ(numsDe(registre), QList<qint64>({fevrier, debutMars, mars}));
    EXPECT_EQ(registre.titre1(), u"Ensemble des Bordereaux"_s);
    EXPECT_EQ(registre.titre2(), u"Ensemble des embarcations"_s);

    struct
    {
        FiltreBordereaux filtre;
        QList<qint64> lignes;
        QString titre1, titre2;
    } const cas[] = {
        {{Genre::Mois, 3, {}, {}, numEnsemble},
         {mars, debutMars},
         u"Bordereaux du mois de Mars"_s,
         u"Ensemble des Embarcations"_s},
        {{Genre::Mois, 3, {}, {}, amal}, {debutMars}, u"Bordereaux du mois de Mars"_s, u"Chalutier   ----> AMAL"_s},
        {{Genre::Periode, 1, u"20/02/2026"_s, u"01/03/2026"_s, numEnsemble},
         {fevrier, debutMars},
         u"Période du 20/02/2026  au 01/03/2026"_s,
         u"Ensemble des Embarcations"_s},
        {{Genre::Periode, 1, u"10/03/2026"_s, u"10/03/2026"_s, nadjet},
         {mars},
         u"Période du 10/03/2026  au 10/03/2026"_s,
         u"Chalutier   ----> NADJET"_s},
    };
    for (const auto& c : cas) {
        EXPECT_FALSE(registre.filtrer(c.filtre));
        EXPECT_EQ(numsDe(registre), c.lignes) << c.titre1.toStdString();
        EXPECT_EQ(registre.titre1(), c.titre1);
        EXPECT_EQ(registre.titre2(), c.titre2);
        EXPECT_EQ(registre.cadreNouveau(u"11/03/2026"_s).numero, QString::number(c.lignes.size() + 1))
            << "the number proposed counts the rows listed";
    }
    registre.LoadRegister();
    EXPECT_EQ(numsDe(registre), QList<qint64>({mars})) << "the filter stays for the next loading";
}

TEST_F(Registre, un_filtre_refuse_laisse_la_liste_comme_elle_est)
{
    exemples.bordereau(u"10/03/2026"_s, nadjet);
    RegistreBordereaux registre(exercice, Porte::Registre);
    registre.LoadRegister();
    const Refus incomplete{u"Saisie incomplète"_s}, inversees{u"Dates inversées"_s},
        aucun{u"Aucun enregistrement pour cette période"_s, u"ATTENTION"_s, Icone::Information};
    struct
    {
        FiltreBordereaux filtre;
        Refus refus;
    } const cas[] = {
        {{Genre::Periode, 1, u""_s, u"10/03/2026"_s, numEnsemble}, incomplete},
        {{Genre::Periode, 1, u"10/03/2026"_s, u"10/03/202"_s, numEnsemble}, incomplete},
        {{Genre::Periode, 1, u"10/03/2026"_s, u"aa/bb/cccc"_s, numEnsemble}, incomplete},
        {{Genre::Periode, 1, u"02/04/2026"_s, u"30/03/2026"_s, numEnsemble}, inversees},
        {{Genre::Periode, 1, u"11/03/2026"_s, u"30/03/2026"_s, numEnsemble}, aucun},
        {{Genre::Periode, 1, u"1'/03/2026"_s, u"30/03/2026"_s, numEnsemble}, incomplete},
        {{Genre::Mois, 3, {}, {}, amal}, aucun},
        {{Genre::Mois, 12, {}, {}, numEnsemble}, aucun},
    };
    for (const auto& c : cas) {
        const auto refus = registre.filtrer(c.filtre);
        ASSERT_TRUE(refus) << c.refus.texte.toStdString();
        EXPECT_EQ(*refus, c.refus);
    }
    EXPECT_EQ(registre.nbLignes(), 1);
    EXPECT_EQ(registre.titre1(), u"Ensemble des Bordereaux"_s);
    EXPECT_EQ(registre.choisirEmbarcation(999).refus(), Refus{u"Embarcation introuvable"_s});
}

TEST_F(Registre, un_exercice_vide_propose_le_bordereau_1)
{
    RegistreBordereaux registre(exercice, Porte::Registre);
    registre.LoadRegister();
    const CadreBordereau cadre = registre.cadreNouveau(u"10/03/2026"_s);
    EXPECT_EQ(cadre.numero, u"1"_s);
    EXPECT_EQ(cadre.legende, u"Nouveau bordereau"_s);
    const auto demande = registre.demande(cadre);
    ASSERT_TRUE(demande);
    EXPECT_EQ(demande->mode, ModeBordereau::Nouveau);
    EXPECT_EQ(demande->date, u"10/03/2026"_s);
    EXPECT_EQ(demande->numero, u"1"_s);
    EXPECT_EQ(demande->Num_Chalutier, amal);
    EXPECT_EQ(demande->nomChalutier, u"AMAL"_s);
    EXPECT_EQ(exercice.Bordereaux.recordCount(), 0) << "the row is created by the entry alone";
    for (const QString& date : {u""_s, u"1/03/2026"_s, u"31/02/2026"_s}) {
        CadreBordereau faux = cadre;
        faux.date = date;
        EXPECT_EQ(registre.demande(faux).refus(), (Refus{u"Date incorrecte"_s, u"TALOR"_s, Icone::Avertissement}));
    }
}

TEST_F(Registre, un_bordereau_se_rouvre_sous_son_numero_meme_si_son_bateau_a_disparu)
{
    exemples.bordereau(u"10/03/2026"_s, nadjet);
    const qint64 num = exemples.bordereau(u"09/03/2026"_s, 999);
    RegistreBordereaux registre(exercice, Porte::Registre);
    registre.LoadRegister();
    const auto cadre = registre.cadreReouverture(0);
    ASSERT_TRUE(cadre);
    EXPECT_EQ(cadre->legende, u"Ancien bordereau"_s);
    const auto demande = registre.demande(*cadre);
    ASSERT_TRUE(demande);
    EXPECT_EQ(demande->mode, ModeBordereau::Existant);
    EXPECT_EQ(demande->num, num);
    EXPECT_EQ(demande->numero, u"2"_s);
    EXPECT_EQ(demande->Num_Chalutier, 999);
    EXPECT_EQ(demande->nomChalutier, QString());
}

TEST_F(Registre, facture_ou_decompte_un_bordereau_ne_se_rouvre_ni_ne_se_supprime)
{
    struct
    {
        bool flag_f;
        int ordre_decompte;
        QString refus;
    } const cas[] = {
        {true, 0, u"Bordereau facturé"_s}, {true, 3, u"Bordereau facturé"_s}, {false, 3, u"Bordereau décompté"_s}};
    for (const auto& c : cas)
        Exemples::changer(exercice.Bordereaux, exemples.bordereau(u"10/03/2026"_s, nadjet),
                          {{"flag_f", c.flag_f}, {"ordre_decompte", c.ordre_decompte}});
    RegistreBordereaux registre(exercice, Porte::Registre);
    registre.LoadRegister();
    for (int rang = 0; rang < 3; ++rang) {
        EXPECT_EQ(registre.refusModification(rang), Refus{cas[rang].refus});
        EXPECT_EQ(registre.cadreReouverture(rang).refus(), Refus{cas[rang].refus});
        EXPECT_EQ(registre.supprimer(rang), Refus{cas[rang].refus});
    }
    EXPECT_EQ(exercice.Bordereaux.recordCount(), 3);
}

TEST_F(Registre, supprimer_emporte_le_bordereau_et_ses_lignes_ouvertes)
{
    const qint64 garde = exemples.bordereau(u"09/03/2026"_s, nadjet);
    const qint64 efface = exemples.bordereau(u"10/03/2026"_s, nadjet);
    const qint64 ligneGardee = exemples.ligne({.bordereau = garde});
    const qint64 ligneFacturee = exemples.ligne({.bordereau = efface});
    exemples.ligne({.bordereau = efface});
    exercice.Base().execute(u"Update L_Vente set Num_Facture = 5 where num = ?"_s, {ligneFacturee});
    RegistreBordereaux registre(exercice, Porte::Registre);
    registre.LoadRegister();
    EXPECT_EQ(registre.confirmationSuppression(1),
              (Refus{u"Confirmer supression de la ligne N° 2"_s, u"Confirmation"_s, Icone::Question}));
    EXPECT_EQ(registre.supprimer(1), (Refus{u"Bordereau supprimé avec succès"_s, u"TALOR"_s, Icone::Information}));
    registre.LoadRegister();
    EXPECT_EQ(numsDe(registre), QList<qint64>({garde}));
    EXPECT_EQ(exercice.L_Vente.recordCount(), 2);
    EXPECT_TRUE(exercice.L_Vente.seek(ligneGardee));
    EXPECT_TRUE(exercice.L_Vente.seek(ligneFacturee));
}

TEST_F(Registre, une_panne_pendant_la_suppression_laisse_tout)
{
    const qint64 num = exemples.bordereau(u"10/03/2026"_s, nadjet);
    exemples.ligne({.bordereau = num});
    provoquerPanne(exercice, "delete on Bordereaux", "true");
    RegistreBordereaux registre(exercice, Porte::Registre);
    registre.LoadRegister();
    EXPECT_THROW(registre.supprimer(0), store::Error);
    EXPECT_EQ(exercice.L_Vente.recordCount(), 1);
    EXPECT_EQ(exercice.Bordereaux.recordCount(), 1);
}

TEST_F(Registre, l_edition_met_ses_titres_sur_le_papier_et_le_registre_non)
{
    const qint64 num = exemples.bordereau(u"10/03/2026"_s, nadjet);
    Exemples::changer(exercice.Bordereaux, num,
                      {{"brut", 12001000}, {"primes", 1000}, {"Commission", 15}, {"MT_Commission", 1800150}});
    RegistreBordereaux registre(exercice, Porte::Registre);
    registre.LoadRegister();
    EXPECT_EQ(registre.formule(0), u"{L_Vente.num_bordereau} = "_s + QString::number(num));
    registre.ecrireTextes(0);
    exercice.textes.requery();
    EXPECT_EQ(exercice.textes.text("ch4"), QString());
    EXPECT_EQ(exercice.textes.text("ch6"), u"1 800 000.00"_s) << "the premiums deducted first";

    RegistreBordereaux edition(exercice, Porte::Edition);
    edition.LoadRegister();
    ASSERT_FALSE(edition.filtrer({Genre::Mois, 3, {}, {}, nadjet}));
    edition.ecrireTextes(0);
    exercice.textes.requery();
    EXPECT_EQ(exercice.textes.text("ch4"), u"Bordereaux du mois de Mars"_s);
    EXPECT_EQ(exercice.textes.text("ch5"), u"Chalutier   ----> NADJET"_s);
    EXPECT_EQ(exercice.textes.recordCount(), 1);
}

TEST_F(Registre, un_bateau_se_trouve_par_son_numero_ou_ses_premieres_lettres)
{
    for (const char16_t* nom : {u"ÉTOILE", u"12 AVRIL", u"Nadia"})
        exemples.chalutier(QString::fromUtf16(nom));
    const ListeChoix liste = ListeChoix::chalutiers(exercice).avecEnsemble();
    const std::pair<QString, int> cas[] = {{u"2"_s, 1},  {u"5"_s, 4},  {u"na"_s, 1}, {u"nadi"_s, 4}, {u"etoi"_s, 2},
                                           {u"12"_s, 3}, {u"en"_s, 5}, {u"1"_s, 0},  {u"x"_s, -1},   {u"99"_s, -1}};
    for (const auto& [frappe, rang] : cas)
        EXPECT_EQ(liste.rangDuDebut(frappe), rang) << frappe.toStdString();
}
