#include "controle.h"

#include "platform/store/maintenance.h"

#include <sqlite3.h>

#include <QFile>

namespace torture {

using namespace Qt::StringLiterals;

namespace {

/// A rule of the books: a query that yields the number of each row that breaks it.
struct Regle
{
    QString nom;
    const char* contraires;
    const char* falsification;
};

const Regle regles[] = {
    {u"une facture est la somme de ses lignes"_s,
     "select f.num from Factures f left join (select Num_Facture n, count(*) c, sum(Total) t, sum(Casiers) k, "
     "min(num_client) c1, max(num_client) c2 from L_Vente group by 1) l on l.n = f.num "
     "where l.n is null or l.c <> f.Nb_lignes or abs(l.t - f.Total_HT) > 0.005 or l.k <> f.Casiers "
     "or abs(f.Consigne - 100 * l.k) > 0.005 or abs(f.Total - f.Total_HT - f.Consigne) > 0.005 "
     "or l.c1 <> f.num_client or l.c2 <> f.num_client",
     "update L_Vente set Total = Total + 1 where num = (select max(num) from L_Vente where Num_Facture <> -1)"},
    {u"une ligne facturée l'est sur une facture qui existe"_s,
     "select num from L_Vente where Num_Facture <> -1 and Num_Facture not in (select num from Factures)",
     "update L_Vente set Num_Facture = 999999 where Num_Facture = -1"},
    {u"une facture a ses lignes"_s, "select num from Factures where num not in (select Num_Facture from L_Vente)",
     "update L_Vente set Num_Facture = -1 where Num_Facture = (select max(num) from Factures)"},
    {u"les factures se suivent sans trou"_s,
     "select count(*) from Factures having count(*) > 0 and (min(ordre) <> 1 or max(ordre) <> count(*) "
     "or count(distinct ordre) <> count(*))",
     "update Factures set ordre = ordre + 1 where num = (select max(num) from Factures)"},
    {u"un client doit la somme de ses factures"_s,
     "select c.num from Clients c left join (select num_client n, sum(Total_HT) t, sum(Casiers) k from Factures "
     "group by 1) f on f.n = c.num where abs(c.Debit - ifnull(f.t, 0)) > 0.005 or abs(c.Solde - c.Credit + c.Debit) "
     "> 0.005 or c.Casiers <> ifnull(f.k, 0) or c.Diff <> c.Casiers - c.Rendu",
     "update Clients set Debit = Debit + 1, Solde = Solde - 1 where num = 1"},
    {u"un bordereau est marqué dès qu'une ligne est facturée, et pas avant"_s,
     "select num from Bordereaux where flag_f <> (num in (select num_bordereau from L_Vente where Num_Facture <> -1))",
     "update Bordereaux set flag_f = 0 where num = (select max(num) from Bordereaux where flag_f = 1)"},
    {u"une ligne a son bordereau"_s, "select num from L_Vente where num_bordereau not in (select num from Bordereaux)",
     "delete from Bordereaux where num = (select max(num_bordereau) from L_Vente)"},
    {u"un bordereau quitté porte tous ses montants"_s,
     "select num from Bordereaux where brut is not null and (abs(MT_Commission - Commission * brut * 0.01) > 0.005 "
     "or abs(MT_Armateur - brut + MT_Commission) > 0.005 "
     "or abs(net - max(0, brut - primes - (brut - primes) * Commission * 0.01 - frais)) > 0.011 "
     "or abs(frais - (Frais1 + Frais2 + Frais3 + Frais4 + Frais5 + Frais6 + Frais7 + Frais8 + Frais9 + Frais10)) "
     "> 0.005) or (brut is null) <> (MT_Armateur is null)",
     "update Bordereaux set MT_Armateur = null where num = (select max(num) from Bordereaux where brut is not null)"},
};

QStringList contraires(sqlite3* base, const Regle& regle)
{
    sqlite3_stmt* requete = nullptr;
    if (sqlite3_prepare_v2(base, regle.contraires, -1, &requete, nullptr) != SQLITE_OK)
        return {regle.nom + u" : "_s + QString::fromUtf8(sqlite3_errmsg(base))};
    QStringList nums;
    int nombre = 0;
    int etat;
    while ((etat = sqlite3_step(requete)) == SQLITE_ROW)
        if (++nombre <= 5)
            nums += QString::number(sqlite3_column_int64(requete, 0));
    const QString echec = etat == SQLITE_DONE ? QString() : QString::fromUtf8(sqlite3_errmsg(base));
    sqlite3_finalize(requete);
    if (!echec.isEmpty())
        return {regle.nom + u" : "_s + echec};
    if (nombre == 0)
        return {};
    return {u"contraire à « %1 » : n° %2 (%3 en tout)"_s.arg(regle.nom, nums.join(u", "_s)).arg(nombre)};
}

} // namespace

QStringList controler(const QString& chemin)
{
    if (QFile::exists(chemin + u"-journal"_s))
        return {u"un journal reste après la fermeture"_s};
    const QStringList integrite = store::checkFile(chemin);
    if (!integrite.isEmpty())
        return integrite;
    sqlite3* base = nullptr;
    QStringList fautes;
    if (sqlite3_open_v2(chemin.toUtf8().constData(), &base, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
        fautes += QString::fromUtf8(sqlite3_errmsg(base));
    for (const Regle& regle : regles)
        fautes += contraires(base, regle);
    sqlite3_close(base);
    return fautes;
}

QList<Falsification> falsifications()
{
    QList<Falsification> liste;
    for (const Regle& regle : regles)
        liste.append({regle.nom, regle.falsification});
    return liste;
}

} // namespace torture
