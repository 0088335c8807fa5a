#include "invoicing/invoicing.h"

#include "core/helpers.h"
#include "core/typed_dates.h"

#include <charconv>

namespace talor {

using namespace Qt::StringLiterals;

namespace requetesFacturation {

const QString sommes =
    u"select sum(Casiers) as S1,sum(Total) as S2,count(*) as S3 from L_Vente  where Num_Facture = -1 and num_client = ?"_s;
const QString marques = u"Update Bordereaux set flag_f = True where flag_f = False and num in "
                        "(select Num_Bordereau from L_Vente  where Num_Facture = -1 and num_client = ?)"_s;
const QString lignes = u"Update  L_Vente  set Num_Facture = ? where Num_Facture = -1 and num_client = ?"_s;

} // namespace requetesFacturation

namespace {

/// Open lines of a client, summed; a sum is null where no line holds a value.
struct LignesOuvertes
{
    QVariant Casiers;
    QVariant Total_HT;
    qint64 Nb_lignes;
};

LignesOuvertes sommer(store::Database& base, qint64 client)
{
    const store::Recordset sommes = base.openRecordset(requetesFacturation::sommes, {client});
    return {sommes.value("S1"), sommes.value("S2"), sommes.integer("S3")};
}

/// The price of a crate as it was typed: widened as it is, 19.6 in single precision would be 19.600000381.
double prixCageot(float prix)
{
    char chiffres[64];
    const char* const fin = std::to_chars(std::begin(chiffres), std::end(chiffres), prix).ptr;
    double saisi = prix;
    std::from_chars(chiffres, fin, saisi);
    return saisi;
}

qint64 ajouterFacture(Exercice& exercice, qint64 client, qint64 ordre, const QString& date,
                      const LignesOuvertes& lignes)
{
    store::Recordset& factures = exercice.Factures;
    factures.addNew();
    factures.set("ordre", ordre);
    factures.set("Date", date);
    factures.set("MM", MoisDe(date));
    factures.set("num_client", client);
    double consigne = 0;
    if (!lignes.Casiers.isNull()) {
        consigne = lignes.Casiers.toDouble() * prixCageot(exercice.PrixConsigne);
        factures.set("Casiers", lignes.Casiers);
        factures.set("Consigne", consigne);
    }
    if (!lignes.Total_HT.isNull())
        factures.set("Total_HT", lignes.Total_HT);
    factures.set("Total", lignes.Total_HT.toDouble() + consigne);
    factures.set("Nb_lignes", lignes.Nb_lignes);
    return factures.update();
}

void debiterClient(Exercice& exercice, qint64 client, const LignesOuvertes& lignes)
{
    store::Recordset& clients = exercice.Clients;
    if (!clients.seek(client))
        return;
    const double debit = clients.real("Debit") + lignes.Total_HT.toDouble();
    const qint64 casiers = clients.integer("Casiers") + lignes.Casiers.toLongLong();
    clients.edit();
    clients.set("Debit", debit);
    clients.set("Solde", clients.real("Credit") - debit);
    clients.set("Casiers", casiers);
    clients.set("Diff", casiers - clients.integer("Rendu"));
    clients.update();
}

Refus tropDeCageots(Exercice& exercice, qint64 client)
{
    const bool trouve = exercice.Clients.seek(client);
    const QString nom =
        trouve ? exercice.Clients.text("nom") + u' ' + exercice.Clients.text("prenom") : u"n° %1"_s.arg(client);
    return {u"Le total des cageots du client %1 dépasse %2 : sa facture n'est pas établie"_s.arg(nom.trimmed())
                .arg(cageotsMaxFacture)};
}

/// Who has open lines, in the order in which they are invoiced.
QList<qint64> clientsAFacturer(store::Database& base, const DemandeFacturation& demande)
{
    QString requete = u"Select Distinct Num_Client From L_Vente where Num_Facture = -1"_s;
    if (demande.client != numEnsemble)
        requete += u" and Num_Client = "_s + QString::number(demande.client);
    if (demande.chalutier != numEnsemble)
        requete += u" and Num_Chalutier = "_s + QString::number(demande.chalutier);
    QList<qint64> clients;
    for (store::Recordset lignes = base.openRecordset(requete); !lignes.eof(); lignes.moveNext())
        if (!lignes.isNull("Num_Client"))
            clients.append(lignes.integer("Num_Client"));
    return clients;
}

} // namespace

Resultat<BilanFacturation> InvoiceAll(Exercice& exercice, const DemandeFacturation& demande,
                                      const ProgressionFacturation& progression)
{
    const QString date = demande.date.trimmed();
    if (!dateComplete(date))
        return Refus{u"Date incorrecte"_s};
    store::Database& base = exercice.Base();
    const QList<qint64> clients = clientsAFacturer(base, demande);
    if (clients.isEmpty())
        return Refus{u"Aucune vente selon ces critères"_s};

    BilanFacturation bilan;
    qint64 ordre = base.scalar(u"select max(ordre) from Factures"_s).toLongLong();
    for (int fait = 0; fait < clients.size(); ++fait) {
        if (progression && !progression(fait, static_cast<int>(clients.size()))) {
            bilan.interrompue = true;
            break;
        }
        if (const auto refus = InvoiceClient(exercice, clients[fait], ordre + 1, date)) {
            bilan.refus.append(*refus);
            continue;
        }
        ++ordre;
        ++bilan.nbFactures;
    }
    bilan.message = {QString::number(bilan.nbFactures) + u" Facture(s) calculées"_s, u"TALOR"_s, Icone::Information};
    if (bilan.interrompue)
        bilan.message.texte = u"Facturation interrompue : %1 sur %2"_s.arg(bilan.message.texte).arg(clients.size());
    return bilan;
}

std::optional<Refus> InvoiceClient(Exercice& exercice, qint64 client, qint64 ordre, const QString& date)
{
    store::Database& base = exercice.Base();
    store::Transaction transaction(base);
    const LignesOuvertes lignes = sommer(base, client);
    if (lignes.Casiers.toLongLong() > cageotsMaxFacture)
        return tropDeCageots(exercice, client);
    const qint64 facture = ajouterFacture(exercice, client, ordre, date, lignes);
    base.execute(requetesFacturation::marques, {client});
    base.execute(requetesFacturation::lignes, {facture, client});
    debiterClient(exercice, client, lignes);
    transaction.commit();
    return {};
}

} // namespace talor
