#include "core/schema.h"

#include "platform/store/database.h"

namespace talor {

using namespace Qt::StringLiterals;
using store::Field;
using store::FieldType;
using store::Table;

namespace {

/// "TALR": the mark by which a file is known as an exercise.
constexpr quint32 marqueExercice = 0x54414C52;
constexpr int versionSchema = 1;

constexpr int nbMarinsMax = 30;

Field champ(const QString& nom, FieldType type, const QVariant& defaut = {})
{
    return {nom, type, defaut};
}

/// Several fields of one type: "nom prenom adr1".
void ajouter(QList<Field>& champs, FieldType type, const QString& noms, const QVariant& defaut = {})
{
    for (const QString& nom : noms.split(u' ', Qt::SkipEmptyParts))
        champs.append(champ(nom, type, defaut));
}

/// A numbered family of fields: FC1 to FC15.
void ajouterFamille(QList<Field>& champs, FieldType type, const QString& racine, int nombre)
{
    for (int i = 1; i <= nombre; ++i)
        champs.append(champ(racine + QString::number(i), type));
}

/// The account that every counterpart keeps; it starts at zero so that a first posting can add to it.
void ajouterCompte(QList<Field>& champs)
{
    ajouter(champs, FieldType::Double, u"Debit Credit Solde"_s, 0.0);
}

Table permn()
{
    QList<Field> c;
    ajouter(c, FieldType::Text, u"tel fax RC Id_Fisc Article compte"_s);
    ajouter(c, FieldType::Single, u"Commission Consigne TVA"_s);
    ajouter(c, FieldType::Long, u"nb_x"_s);
    return {u"Permn"_s, c, {}};
}

Table poissons()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Double, u"ordre"_s);
    ajouter(c, FieldType::Text, u"denom"_s);
    return {u"Poissons"_s, c, {{u"ordre"_s}}};
}

Table famillesC()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Long, u"ordre"_s);
    ajouter(c, FieldType::Text, u"denom"_s);
    ajouterCompte(c);
    ajouter(c, FieldType::Long, u"diff"_s, 0);
    return {u"Familles_C"_s, c, {}};
}

Table clients()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Long, u"ordre"_s);
    ajouter(c, FieldType::Text, u"nom prenom adr1 adr2 ville tel fax RC Id_Fisc Article obs"_s);
    ajouter(c, FieldType::Long, u"famille"_s);
    ajouterCompte(c);
    ajouter(c, FieldType::Long, u"Casiers Rendu Diff"_s, 0);
    return {u"Clients"_s, c, {{u"ordre"_s}, {u"famille"_s}}};
}

Table armateurs()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Long, u"ordre"_s);
    ajouter(c, FieldType::Text, u"nom prenom adr1 adr2 tel fax ville RC Id_Fisc Article obs"_s);
    ajouterCompte(c);
    return {u"Armateurs"_s, c, {{u"ordre"_s}}};
}

Table chalutiers()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Long, u"ordre"_s);
    ajouter(c, FieldType::Text, u"denom Port matricule"_s);
    ajouter(c, FieldType::Long, u"armateur"_s);
    ajouter(c, FieldType::Text, u"obs"_s);
    ajouterCompte(c);
    return {u"Chalutiers"_s, c, {{u"ordre"_s}, {u"armateur"_s}}};
}

Table agents()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Text, u"nom prenom fonction Et_C enf d_entree ss tel"_s);
    ajouter(c, FieldType::YesNo, u"Charge"_s);
    ajouter(c, FieldType::Long, u"famille"_s);
    ajouter(c, FieldType::Text, u"obs"_s);
    ajouterCompte(c);
    return {u"Agents"_s, c, {{u"Charge"_s}, {u"famille"_s}}};
}

Table bordereaux()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Long, u"ordre"_s);
    ajouter(c, FieldType::Date, u"Date"_s);
    ajouter(c, FieldType::Integer, u"MM"_s);
    ajouter(c, FieldType::Long, u"Num_Chalutier Casiers"_s);
    ajouter(c, FieldType::Double, u"brut Commission MT_Commission primes frais net"_s);
    ajouterFamille(c, FieldType::Text, u"Libelle"_s, position::nbFrais);
    ajouterFamille(c, FieldType::Double, u"Frais"_s, position::nbFrais);
    ajouter(c, FieldType::Double, u"MT_Armateur"_s);
    ajouter(c, FieldType::YesNo, u"flag_f flag_d"_s);
    ajouter(c, FieldType::Long, u"ordre_decompte"_s, 0);
    return {u"Bordereaux"_s,
            c,
            {{u"ordre"_s}, {u"Date"_s}, {u"MM"_s}, {u"Num_Chalutier"_s, u"Date"_s}, {u"ordre_decompte"_s}}};
}

Table lignesVente()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Long, u"num_bordereau Num_Chalutier num_client Num_Poisson"_s);
    ajouter(c, FieldType::Date, u"Date"_s);
    ajouter(c, FieldType::Integer, u"MM"_s);
    ajouter(c, FieldType::Long, u"Casiers"_s);
    ajouter(c, FieldType::Double, u"poids PU Total"_s);
    ajouter(c, FieldType::Long, u"Num_Facture"_s, nonFacture);
    return {u"L_Vente"_s, c, {{u"Num_Facture"_s, u"num_client"_s}, {u"num_bordereau"_s}, {u"Num_Poisson"_s}}};
}

Table factures()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Long, u"ordre"_s);
    ajouter(c, FieldType::Date, u"Date"_s);
    ajouter(c, FieldType::Integer, u"MM"_s);
    ajouter(c, FieldType::Long, u"num_client Casiers"_s);
    ajouter(c, FieldType::Double, u"Total_HT Consigne Total"_s);
    ajouter(c, FieldType::Integer, u"Nb_lignes"_s);
    ajouter(c, FieldType::YesNo, u"Flag_R flag_cons"_s);
    ajouter(c, FieldType::Text, u"Ref"_s);
    ajouter(c, FieldType::YesNo, u"flag_Arch"_s);
    return {u"Factures"_s, c, {{u"ordre"_s}, {u"Date"_s}, {u"num_client"_s, u"Date"_s}}};
}

Table consigne()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Long, u"ordre"_s);
    ajouter(c, FieldType::Date, u"Date"_s);
    ajouter(c, FieldType::Integer, u"MM"_s);
    ajouter(c, FieldType::Long, u"num_client sortie Retour"_s);
    ajouter(c, FieldType::Double, u"Recette Depense"_s);
    ajouter(c, FieldType::YesNo, u"flag_Arch"_s);
    return {u"Consigne"_s, c, {{u"ordre"_s}, {u"num_client"_s}, {u"Date"_s}}};
}

Table decomptes(const QString& nom)
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Long, u"ordre Num_Chalutier Num_Arma"_s);
    ajouter(c, FieldType::Date, u"Date0 Date"_s);
    ajouter(c, FieldType::Integer, u"MM"_s);
    ajouter(c, FieldType::Text, u"pourc"_s);
    ajouterFamille(c, FieldType::Double, u"FC"_s, 15);
    ajouterFamille(c, FieldType::Double, u"FM"_s, 7);
    ajouterFamille(c, FieldType::Double, u"RA"_s, 7);
    ajouterFamille(c, FieldType::Double, u"FA"_s, 7);
    ajouterFamille(c, FieldType::Text, u"Div"_s, 6);
    ajouterFamille(c, FieldType::Text, u"Libelle"_s, 10);
    ajouterFamille(c, FieldType::Double, u"Frais"_s, 10);
    ajouterFamille(c, FieldType::Text, u"Peche"_s, 10);
    ajouter(c, FieldType::Integer, u"Nb_peches"_s);
    ajouter(c, FieldType::Double,
            u"Recette Frais_comm Frais_Marin Frais_Arma Rec_Arma Part_Marin Part_Arma net_marin net_arma "
            "Total_Decompte"_s);
    ajouter(c, FieldType::YesNo, u"flag_Arch"_s);
    return {nom, c, {{u"ordre"_s}, {u"Num_Chalutier"_s, u"Date"_s}}};
}

/// `second` is what stands at position 1: the shipowner in the working rows, the settlement in the settled ones.
Table marins(const QString& nom, const QString& second, const QString& autre)
{
    QList<Field> c;
    ajouter(c, FieldType::Long, u"Num_Chalutier"_s);
    ajouter(c, FieldType::Long, second);
    ajouter(c, FieldType::Integer, u"nb_marins"_s);
    for (int i = 1; i <= nbMarinsMax; ++i) {
        const QString rang = QString::number(i);
        ajouter(c, FieldType::Text, u"M"_s + rang + u" Fonct"_s + rang + u" Parts"_s + rang);
        ajouter(c, FieldType::Double, u"Montant"_s + rang);
    }
    ajouter(c, FieldType::Long, autre);
    ajouter(c, FieldType::Counter, u"num"_s);
    return {nom, c, {{u"Num_Chalutier"_s}, {u"Num_decompte"_s}}};
}

Table mouvementsFonds(const QString& nom)
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Date, u"Date"_s);
    ajouter(c, FieldType::Integer, u"MM"_s);
    ajouter(c, FieldType::Double, u"montant"_s);
    ajouter(c, FieldType::Integer, u"mode"_s);
    ajouter(c, FieldType::Text, u"objet ref"_s);
    ajouter(c, FieldType::Integer, u"contrepartie"_s);
    ajouter(c, FieldType::Long, u"num_client Num_Chalutier Num_Arma num_agent num_fourniss"_s);
    ajouter(c, FieldType::Text, u"obs"_s);
    ajouter(c, FieldType::YesNo, u"flag_Arch"_s);
    return {nom,
            c,
            {{u"Date"_s, u"montant"_s},
             {u"num_client"_s, u"montant"_s},
             {u"Num_Chalutier"_s, u"Date"_s},
             {u"num_agent"_s, u"Date"_s},
             {u"contrepartie"_s, u"MM"_s}}};
}

Table mouvementsBanque()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Date, u"Date"_s);
    ajouter(c, FieldType::Text, u"libelle obs ref"_s);
    ajouter(c, FieldType::Integer, u"V_Achat"_s, 0);
    ajouter(c, FieldType::Double, u"Somme"_s);
    ajouter(c, FieldType::YesNo, u"Notif historise"_s);
    return {u"MVMTS"_s, c, {{u"Date"_s, u"Somme"_s}, {u"Notif"_s, u"Date"_s}, {u"historise"_s, u"Date"_s}}};
}

Table imageMouvements()
{
    QList<Field> c;
    ajouter(c, FieldType::Date, u"Date"_s);
    ajouter(c, FieldType::Text, u"libelle obs ref"_s);
    ajouter(c, FieldType::Double, u"Recette Depense"_s);
    return {u"mvmt_image"_s, c, {}};
}

Table annuaire()
{
    QList<Field> c;
    ajouter(c, FieldType::Counter, u"num"_s);
    ajouter(c, FieldType::Text, u"denom Qual ville tel1 tel2 tel3 tel1_bis tel2_bis tel3_bis"_s);
    ajouter(c, FieldType::Integer, u"Type"_s);
    return {u"Annu_Per"_s, c, {{u"Type"_s}}};
}

Table provisoire()
{
    QList<Field> c;
    ajouter(c, FieldType::Long, u"num"_s);
    return {u"Prov"_s, c, {}};
}

Table textes()
{
    QList<Field> c;
    ajouterFamille(c, FieldType::Text, u"ch"_s, 20);
    return {u"textes"_s, c, {}};
}

Table tampon()
{
    QList<Field> c;
    ajouter(c, FieldType::Integer, u"code"_s);
    ajouter(c, FieldType::Text, u"Qualite denom ville tel objet"_s);
    ajouter(c, FieldType::Double, u"Recette Depense Solde"_s);
    return {u"Tampon1"_s, c, {{u"code"_s}}};
}

Table csse()
{
    QList<Field> c;
    ajouter(c, FieldType::Date, u"Date Date2"_s);
    ajouter(c, FieldType::Text, u"t1 t2 t3"_s);
    ajouter(c, FieldType::Double, u"c0 c1 c2 c3 c5"_s);
    ajouter(c, FieldType::Long, u"num_produit"_s);
    return {u"Csse"_s, c, {}};
}

} // namespace

const store::Catalogue& schema()
{
    static const store::Catalogue catalogue(marqueExercice, versionSchema,
                                            {permn(),
                                             poissons(),
                                             famillesC(),
                                             clients(),
                                             armateurs(),
                                             chalutiers(),
                                             agents(),
                                             bordereaux(),
                                             lignesVente(),
                                             factures(),
                                             consigne(),
                                             decomptes(u"Decomptes0"_s),
                                             decomptes(u"Decomptes"_s),
                                             marins(u"Marins0"_s, u"Num_Arma"_s, u"Num_decompte"_s),
                                             marins(u"Marins"_s, u"Num_decompte"_s, u"Num_Arma"_s),
                                             mouvementsFonds(u"Recettes"_s),
                                             mouvementsFonds(u"Depenses"_s),
                                             mouvementsBanque(),
                                             imageMouvements(),
                                             annuaire(),
                                             provisoire(),
                                             textes(),
                                             tampon(),
                                             csse()});
    return catalogue;
}

void creerExerciceVide(const QString& chemin)
{
    store::Database::create(chemin, schema());
    store::Database base(chemin, schema());
    store::Transaction transaction(base);
    base.execute(u"insert into textes (ch1) values (null)"_s);
    base.execute(u"insert into Decomptes0 (Num_Chalutier) values (?)"_s, {chalutierSimulation});
    base.execute(u"insert into Marins0 (Num_Chalutier) values (?)"_s, {chalutierSimulation});
    transaction.commit();
}

} // namespace talor
