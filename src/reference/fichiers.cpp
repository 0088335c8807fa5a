#include "reference/fichiers.h"

#include "core/helpers.h"
#include "reference/categories.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr int longueurNumero = 9;
constexpr int longueurNom = 100;
constexpr int longueurTelephone = 30;
constexpr int longueurIdentifiant = 50;
constexpr int longueurMemo = 2000;

QString nomComplet(const store::Recordset& table)
{
    return table.text("nom") + u"  "_s + table.text("prenom");
}

/// The working rows on which the boat's settlements are prepared.
void creerLignesDeTravail(Exercice& exercice, qint64 num, const Fiche& fiche)
{
    const qint64 armateur = ValeurEntiere(fiche.value(u"armateur"_s));
    exercice.Base().execute(u"insert into Decomptes0 (Num_Chalutier) values (?)"_s, {num});
    exercice.Base().execute(u"insert into Marins0 (Num_Chalutier, Num_Arma) values (?, ?)"_s, {num, armateur});
}

Fiche premierArmateur(Exercice& exercice)
{
    const QList<EntreeCombo> armateurs = choixArmateurs(exercice);
    return armateurs.isEmpty() ? Fiche() : Fiche{{u"armateur"_s, QString::number(armateurs.first().num)}};
}

Fiche premiereCategorie(Exercice& exercice)
{
    store::Recordset& familles = exercice.Familles_C;
    return familles.requery() ? Fiche{{u"famille"_s, QString::number(familles.num())}} : Fiche();
}

} // namespace

const DescriptionFiche& fichierProduits()
{
    static const DescriptionFiche description = {
        .titre = u"Produits"_s,
        .titreNouveau = u"NOUVEAU PRODUIT"_s,
        .titreModification = u"MODIFICATION"_s,
        .table = &Exercice::Poissons,
        .requete = u"select * from Poissons order by ordre"_s,
        .champs = {{"ordre", 0, u"Numéro"_s, Saisie::Numero, longueurNumero, true},
                   {"denom", 1, u"Désignation"_s, Saisie::Libre, longueurNom, true}},
        .colonnes = {{u"Ordre"_s, 600, celluleRang(), true},
                     {u"Désignation"_s, 3100, celluleTexte("denom"), false, true},
                     {u"N°"_s, 700, celluleNumero(), true}},
        .references = {{u"select num_poisson from L_vente where num_poisson = ?"_s,
                        {u"Ce produit est inclus dans un mouvement"_s}}},
        .invitation =
            Refus{u"Aucun produit enregistré\ninstaller un nouveau produit"_s, u"TALOR"_s, Icone::Information},
        .colonnesEchangees = 2,
    };
    return description;
}

const DescriptionFiche& fichierArmateurs()
{
    static const DescriptionFiche description = {
        .titre = u"Armateurs"_s,
        .titreNouveau = u"Nouvel Armateur"_s,
        .titreModification = u"Modification"_s,
        .table = &Exercice::Armateurs,
        .requete = u"select * from Armateurs order by ordre"_s,
        .champs = {{"nom", 1, u"Nom"_s, Saisie::Majuscules, longueurNom, true, true},
                   {"prenom", 2, u"Prénom"_s, Saisie::Initiale, longueurNom, true, true},
                   {"adr1", 3, u"Adresse"_s, Saisie::Libre, longueurNom},
                   {"adr2", 4, {}, Saisie::Libre, longueurNom},
                   {"tel", 5, u"Téléphone"_s, Saisie::Chiffres, longueurTelephone, false, true},
                   {"fax", 6, u"Fax"_s, Saisie::Libre, longueurTelephone, false, true},
                   {"ville", 7, u"Ville"_s, Saisie::Initiale, longueurNom, false, true},
                   {"RC", 8, u"R.C."_s, Saisie::Majuscules, longueurIdentifiant, false, true},
                   {"Id_Fisc", 9, u"Id. Fiscale"_s, Saisie::Libre, longueurIdentifiant, false, true},
                   {"Article", 10, u"Article"_s, Saisie::Libre, longueurIdentifiant, false, true},
                   {"obs", 11, u"Observations"_s, Saisie::Memo, longueurMemo}},
        .colonnes = {{u"N°"_s, 600, celluleRang(), true},
                     {u"Nom"_s, 2020, celluleTexte("nom")},
                     {u"Prénom"_s, 2020, celluleTexte("prenom")},
                     {u"Tél"_s, 1280, celluleTexte("tel")},
                     {u"Ville"_s, 1700, celluleTexte("ville")}},
        // No test of references, on purpose: the boats of a deleted shipowner show an empty owner.
        .enterVaAuMemo = true,
    };
    return description;
}

const DescriptionFiche& fichierChalutiers()
{
    static const DescriptionFiche description = {
        .titre = u"Embarcations"_s,
        .titreNouveau = u"NOUVELLE  EMBARCATION"_s,
        .titreModification = u"MODIFICATION"_s,
        .table = &Exercice::Chalutiers,
        .requete = u"select * from Chalutiers order by ordre"_s,
        .champs = {{"denom", 1, u"Dénomination"_s, Saisie::Initiale, longueurNom, true},
                   {"Port", 2, u"Port"_s, Saisie::Initiale, longueurNom, true},
                   {"matricule", 3, u"Matricule"_s, Saisie::Initiale, longueurIdentifiant},
                   {"armateur", 1, u"Armateur"_s, Saisie::Choix, 0, false, false, choixArmateurs},
                   {"obs", 4, u"Observations"_s, Saisie::Memo, longueurMemo}},
        .colonnes = {{u"N°"_s, 600, celluleRang(), true},
                     {u"Dénomination"_s, 2020, celluleTexte("denom")},
                     {u"Armateur"_s, 2500,
                      [](Exercice& exercice, const store::Recordset& chalutier, int) {
                          const QString nom = nomArmateur(exercice, chalutier.integer("armateur"));
                          return nom.isEmpty() ? nom : u' ' + nom;
                      }},
                     {u"Port"_s, 1550, celluleTexte("Port")},
                     {u"Matricule"_s, 1550, celluleTexte("matricule")}},
        // No test of references, on purpose; the boat's working rows stay too.
        .vierge = premierArmateur,
        .apresCreation = creerLignesDeTravail,
    };
    return description;
}

const DescriptionFiche& fichierClients()
{
    static const DescriptionFiche description = {
        .titre = u"Clients"_s,
        .titreNouveau = u"NOUVEAU CLIENT"_s,
        .titreModification = u"MODIFICATION"_s,
        .table = &Exercice::Clients,
        .requete = u"select * from Clients order by nom,prenom"_s,
        .requeteManuelle = u"select * from Clients order by ordre"_s,
        .champs = {{"ordre", 0, u"Numéro"_s, Saisie::Numero, longueurNumero, true, true},
                   {"famille", 3, u"Catégorie"_s, Saisie::Choix, 0, true, true},
                   {"nom", 1, u"Nom"_s, Saisie::Majuscules, longueurNom, true, true},
                   {"prenom", 2, u"Prénom"_s, Saisie::Initiale, longueurNom, true, true},
                   {"adr1", 3, u"Adresse"_s, Saisie::Libre, longueurNom},
                   {"adr2", 4, {}, Saisie::Libre, longueurNom},
                   {"tel", 5, u"Téléphone"_s, Saisie::Chiffres, longueurTelephone, false, true},
                   {"fax", 6, u"Fax"_s, Saisie::Libre, longueurTelephone, false, true},
                   {"ville", 7, u"Ville"_s, Saisie::Initiale, longueurNom, false, true},
                   {"RC", 8, u"R.C."_s, Saisie::Majuscules, longueurIdentifiant, false, true},
                   {"Id_Fisc", 9, u"Ident. Fiscale"_s, Saisie::Libre, longueurIdentifiant, false, true},
                   {"Article", 10, u"Article"_s, Saisie::Libre, longueurIdentifiant, false, true},
                   {"obs", 11, u"Observations"_s, Saisie::Memo, longueurMemo}},
        .colonnes = {{u"N°"_s, 600, celluleNumero(), true},
                     {u"Nom"_s, 2020, celluleTexte("nom")},
                     {u"Prénom"_s, 2020, celluleTexte("prenom")},
                     {u"Téléphone"_s, 1170, celluleTexte("tel")},
                     {u"Ville"_s, 1310, celluleTexte("ville")},
                     {u"Catégorie"_s, 1420,
                      [](Exercice& exercice, const store::Recordset& client, int) {
                          return u' ' + nomCategorie(exercice, client.integer("famille"));
                      }}},
        // No test of references, on purpose: a client with sales or an account can be deleted.
        .colonnesEchangees = 6,
        .vierge = premiereCategorie,
    };
    return description;
}

QString nomArmateur(Exercice& exercice, qint64 num)
{
    return exercice.Armateurs.seek(num) ? nomComplet(exercice.Armateurs) : QString();
}

QList<EntreeCombo> choixArmateurs(Exercice& exercice)
{
    QList<EntreeCombo> choix;
    store::Recordset liste = exercice.Base().openRecordset(u"select * from Armateurs order by ordre"_s);
    for (bool la = liste.moveFirst(); la; la = liste.moveNext())
        choix.append({liste.num(), nomComplet(liste)});
    return choix;
}

} // namespace talor
