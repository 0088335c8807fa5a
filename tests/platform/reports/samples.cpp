#include "tests/platform/reports/samples.h"

using namespace Qt::StringLiterals;

namespace samples {

namespace {

const QStringList fishNames = {u"Sardine"_s, u"Crevette rouge"_s,  u"Merlan"_s,         u"Rouget de roche"_s,
                               u"Pageot"_s,  u"Poulpe"_s,          u"Espadon"_s,        u"Sépia"_s,
                               u"Bogue"_s,   u"Mérou"_s,           u"Crevette grise"_s, u"Langoustine"_s,
                               u"Anchois"_s, u"Dorade coryphène"_s};

const QStringList surnames = {u"BENALI"_s,  u"HADJ-SADOK"_s, u"MEZIANE"_s, u"O'BRIEN"_s,
                              u"BOUZIDI"_s, u"KACI"_s,       u"ÉLOUARD"_s};
const QStringList firstNames = {u"Mohamed"_s, u"Rachid"_s, u"Aïcha"_s, u"Hervé"_s, u"Noël"_s, u"Farid"_s};
const QStringList towns = {u"Béni Saf"_s, u"Oran"_s, u"Ghazaouet"_s, u"Aïn Témouchent"_s, u"Sidi Bel Abbès"_s};

QString stars(const QString& words)
{
    return (u"*** "_s + words + u" "_s).leftJustified(68, u'*');
}

} // namespace

SampleRow invoiceTexts(int ordre)
{
    return {{u"textes.ch1"_s, u"Mandataire BELHADJ Abdelkader & Fils"_s},
            {u"textes.ch2"_s, u"Commissionnaire en poissons, Halle à marée"_s},
            {u"textes.ch3"_s, u"Port de Béni Saf (46), Wilaya d'Aïn Témouchent"_s},
            {u"textes.ch4"_s, QString()},
            {u"textes.ch5"_s, u"Téléphone  :  043 64 12 07"_s},
            {u"textes.ch6"_s, u"%1 / 2026"_s.arg(ordre)},
            {u"textes.ch9"_s, u"Facture N°"_s},
            {u"textes.ch10"_s, u"Arrêtée la présente facture à la somme de :"_s},
            {u"textes.ch11"_s, stars(u"NEUF CENT QUATRE-VINGT DIX-NEUF MILLE SEPT CENT SOIXANTE"_s)},
            {u"textes.ch12"_s, stars(u"DIX SEPT DINARS ET QUATRE-VINGT DIX-NEUF CENTIMES"_s)},
            {u"textes.ch13"_s, u" "_s},
            {u"textes.ch14"_s, u"12 300.00 "_s},
            {u"textes.ch15"_s, u"999 777.99 "_s}};
}

SampleRow deliveryNoteTexts(int ordre)
{
    SampleRow texts = invoiceTexts(ordre);
    texts[u"textes.ch9"_s] = u"Bon de Livraison N°"_s;
    for (int i = 10; i <= 13; ++i)
        texts[u"textes.ch%1"_s.arg(i)] = QString();
    return texts;
}

SampleRow listTexts()
{
    SampleRow texts = invoiceTexts(1);
    texts[u"textes.ch4"_s] = u"Classement alphabétique"_s;
    return texts;
}

QList<SampleRow> invoiceRows(int num, int ordre, int lines)
{
    QList<SampleRow> rows;
    double total = 0;
    for (int i = 0; i < std::max(lines, 1); ++i) {
        SampleRow row = {{u"Factures.num"_s, num},
                         {u"Factures.ordre"_s, ordre},
                         {u"Factures.Date"_s, u"15/11/2026"_s},
                         {u"Factures.num_client"_s, 7},
                         {u"Clients.nom"_s, u"HADJ-SADOK"_s},
                         {u"Clients.prenom"_s, u"Aïcha"_s},
                         {u"Clients.adr1"_s, u"12, rue de la Pêcherie"_s},
                         {u"Clients.adr2"_s, QString()},
                         {u"Clients.ville"_s, u"Aïn Témouchent"_s},
                         {u"Clients.RC"_s, u"98 B 0123456"_s},
                         {u"Clients.Id_Fisc"_s, u"0998 4600 1234 567"_s},
                         {u"Clients.Article"_s, u"46 01 234 5678"_s}};
        if (lines > 0) {
            const double weight = 12.5 * (i % 9 + 1) + 0.25 * (i % 3), price = 180 + 65.5 * (i % 14);
            total += weight * price;
            row.insert({{u"L_Vente.num"_s, 100 + i},
                        {u"L_Vente.Casiers"_s, i % 9 + 1},
                        {u"L_Vente.poids"_s, weight},
                        {u"L_Vente.PU"_s, price},
                        {u"L_Vente.Total"_s, weight * price},
                        {u"Poissons.denom"_s, fishNames[i % fishNames.size()]}});
        }
        rows.append(row);
    }
    for (SampleRow& row : rows)
        row[u"Factures.Total_HT"_s] = total;
    return rows;
}

QList<SampleRow> slipRows(int lines, int expenses)
{
    SampleRow slip = {{u"L_Vente.num_bordereau"_s, 31},
                      {u"Bordereaux.num"_s, 31},
                      {u"Bordereaux.ordre"_s, 27},
                      {u"Bordereaux.Date"_s, u"15/11/2026"_s},
                      {u"Bordereaux.brut"_s, 1234567.5},
                      {u"Bordereaux.primes"_s, 5000},
                      {u"Bordereaux.Commission"_s, 12.5},
                      {u"Bordereaux.frais"_s, 1250 * expenses},
                      {u"Bordereaux.net"_s, 1234567.5 - 5000 - 153695.94 - 1250 * expenses},
                      {u"Chalutiers.denom"_s, u"Étoile de Ténès"_s},
                      {u"Chalutiers.matricule"_s, u"TN 0417"_s},
                      {u"Chalutiers.Port"_s, u"Ténès"_s},
                      {u"Armateurs.nom"_s, u"BENALI"_s},
                      {u"Armateurs.prenom"_s, u"Mohamed"_s},
                      {u"Armateurs.ville"_s, u"Ténès"_s}};
    for (int i = 1; i <= 10; ++i) {
        slip[u"Bordereaux.Libelle%1"_s.arg(i)] = i == 2 ? QString() : u"Dépense %1"_s.arg(i);
        slip[u"Bordereaux.Frais%1"_s.arg(i)] = i <= expenses ? 1250 : 0;
    }
    QList<SampleRow> rows;
    for (int i = 0; i < lines; ++i) {
        SampleRow row = slip;
        const double weight = i % 5 == 4 ? 0 : 12.5 * (i % 9 + 1), price = 180 + 65.5 * (i % 14);
        row.insert({{u"L_Vente.num"_s, 100 + i},
                    {u"L_Vente.Casiers"_s, i % 9},
                    {u"L_Vente.poids"_s, weight},
                    {u"L_Vente.PU"_s, price},
                    {u"L_Vente.Total"_s, (weight > 0 ? weight : i % 9) * price},
                    {u"Clients.nom"_s, i == 3 ? u"FUMAISON DES TROIS ROCHERS"_s : surnames[i % surnames.size()]},
                    {u"Clients.prenom"_s, i == 3 ? u"E.U.R.L."_s : firstNames[i % firstNames.size()]},
                    {u"Poissons.denom"_s, fishNames[i % fishNames.size()]}});
        rows.append(row);
    }
    return rows;
}

QList<SampleRow> clients(int count)
{
    QList<SampleRow> rows;
    for (int i = 0; i < count; ++i) {
        rows.append({{u"Clients.ordre"_s, i + 1},
                     {u"Clients.nom"_s, surnames[i % surnames.size()]},
                     {u"Clients.prenom"_s, firstNames[i % firstNames.size()]},
                     {u"Clients.adr1"_s, u"%1, rue de la Pêcherie"_s.arg(i + 3)},
                     {u"Clients.adr2"_s, i % 4 ? QString() : u"Bâtiment C, escalier 2, porte 14"_s},
                     {u"Clients.ville"_s, towns[i % towns.size()]},
                     {u"Clients.tel"_s, i % 5 ? u"0550%1"_s.arg(123456 + i * 789) : QString()},
                     {u"Familles_C.denom"_s, i % 3 ? u"Détaillants"_s : u"Conserverie"_s},
                     {u"Clients.Solde"_s, i % 6 ? -1250.5 * (i % 11) : 0.0}});
    }
    if (count > 3) {
        rows[2][u"Clients.nom"_s] = u"SOCIÉTÉ DES PÊCHERIES ET CONSERVERIES DE L'OUEST RÉUNIES"_s;
        rows[3][u"Clients.nom"_s] = u"بن علي"_s;
        rows[3][u"Clients.prenom"_s] = u"محمد"_s;
    }
    return rows;
}

QList<SampleRow> fish()
{
    QList<SampleRow> rows;
    for (int i = 0; i < fishNames.size(); ++i)
        rows.append({{u"Poissons.ordre"_s, double(i + 1)}, {u"Poissons.denom"_s, fishNames[i]}});
    return rows;
}

QList<SampleRow> owners()
{
    QList<SampleRow> rows;
    for (int i = 0; i < 9; ++i) {
        rows.append({{u"Armateurs.ordre"_s, i + 1},
                     {u"Armateurs.nom"_s, surnames[i % surnames.size()]},
                     {u"Armateurs.prenom"_s, firstNames[i % firstNames.size()]},
                     {u"Armateurs.adr1"_s, u"Quai n° %1"_s.arg(i + 1)},
                     {u"Armateurs.adr2"_s, i % 3 ? QString() : u"Port de pêche"_s},
                     {u"Armateurs.ville"_s, towns[i % towns.size()]},
                     {u"Armateurs.tel"_s, u"0661%1"_s.arg(223344 + i * 611)},
                     {u"Armateurs.RC"_s, u"02 A 07%1"_s.arg(1234 + i)},
                     {u"Armateurs.Solde"_s, 184250.75 * i}});
    }
    return rows;
}

QList<SampleRow> boats()
{
    QList<SampleRow> rows;
    for (int i = 0; i < 12; ++i) {
        rows.append({{u"Chalutiers.ordre"_s, i + 1},
                     {u"Chalutiers.denom"_s, i % 2 ? u"Étoile de mer %1"_s.arg(i) : u"Sidi Boucif %1"_s.arg(i)},
                     {u"Chalutiers.matricule"_s, u"BS %1"_s.arg(417 + i * 13)},
                     {u"Chalutiers.Port"_s, towns[i % 3]},
                     {u"Armateurs.nom"_s, i == 5 ? QVariant() : QVariant(surnames[i % surnames.size()])},
                     {u"Armateurs.prenom"_s, i == 5 ? QVariant() : QVariant(firstNames[i % firstNames.size()])},
                     {u"Chalutiers.Solde"_s, i % 4 ? 93120.4 * i : 0.0}});
    }
    return rows;
}

QList<SampleRow> listedInvoices(int count)
{
    QList<SampleRow> rows;
    for (int i = 0; i < count; ++i) {
        const bool isRegularisation = i == 4;
        const double crates = isRegularisation ? 0 : 7 * (i % 20), fish = 18250.5 * (i % 11 + 1);
        rows.append({{u"Csse.num_produit"_s, i + 1},
                     {u"Factures.ordre"_s, isRegularisation ? -1 : i + 1},
                     {u"Factures.Date"_s, u"15/11/2026"_s},
                     {u"Factures.Casiers"_s, isRegularisation ? QVariant() : QVariant(crates)},
                     {u"Factures.Total_HT"_s, fish},
                     {u"Factures.Consigne"_s, crates * 100},
                     {u"Factures.Total"_s, fish + crates * 100},
                     {u"Factures.Flag_R"_s, i % 3 == 0},
                     {u"Clients.nom"_s, surnames[i % surnames.size()]},
                     {u"Clients.prenom"_s, firstNames[i % firstNames.size()]}});
    }
    return rows;
}

MemorySource everything(int lines)
{
    MemorySource source;
    source.tables[u"Permn"_s] = {{{u"Permn.tel"_s, u"043 64 12 07"_s},
                                  {u"Permn.RC"_s, u"46 A 0119999"_s},
                                  {u"Permn.Id_Fisc"_s, u"196302010011223"_s},
                                  {u"Permn.Article"_s, u" "_s}}};
    source.tables[u"textes"_s] = {listTexts()};
    source.tables[u"Factures"_s] = invoiceRows(12, 12, lines);
    source.tables[u"Clients"_s] = clients(70);
    source.tables[u"Poissons"_s] = fish();
    source.tables[u"Armateurs"_s] = owners();
    source.tables[u"Chalutiers"_s] = boats();
    return source;
}

} // namespace samples
