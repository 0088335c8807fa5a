#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace talor;

// A lookup that reads a whole table is fast on the first day and slow in the last month of the year.
TEST(Exercice, chaque_recherche_par_cle_ou_par_filtre_passe_par_un_index)
{
    ExerciceTemporaire t;
    const char* requetes[] = {
        "select * from Clients where num = 4",
        "select * from Bordereaux where num = 4",
        "select * from Factures where num = 4",
        "select * from Familles_C where num = 4",
        "select * from Clients where famille = 2",
        "select * from Clients where ordre = 12",
        "select num_poisson from L_vente where num_poisson = 3",
        "select * from L_Vente where num_bordereau = 5",
        "select * from L_Vente where Num_Facture = -1",
        "select * from L_Vente where Num_Facture = 17",
        "Select Distinct Num_Client From L_Vente where Num_Facture = -1 and Num_Client = 3 and Num_Chalutier = 2",
        "select sum(Casiers) as S1,sum(Total) as S2 from L_Vente  where Num_Facture = -1 and num_client = 3",
        "select distinct Num_Bordereau from L_Vente  where Num_Facture = -1 and num_client = 3",
        "Update  L_Vente  set Num_Facture = 9 where Num_Facture = -1 and num_client = 3",
        "Delete * from L_Vente where Num_Facture = -1 and Num_Bordereau =  4",
        "select * from Bordereaux where  MM = 11 order by ordre",
        "select * from Bordereaux where  date >=#11/01/2026# and date <= #11/30/2026# and num_chalutier = 2",
        "select Factures!num as Num, Factures!ordre as ordre, date, Nom, Prenom from Factures, Clients where date "
        "=#11/02/2026# and num_client = Clients!num order by nom, prenom",
        "select * from Agents where Charge = True",
        "select * from Decomptes0 where Num_Chalutier = 2",
        "select * from Marins0 where Num_Chalutier = 2",
    };
    for (const char* requete : requetes) {
        const QStringList etapes = t.exercice.Base().plan(QString::fromUtf8(requete));
        EXPECT_FALSE(etapes.isEmpty()) << requete;
        for (const QString& etape : etapes)
            EXPECT_FALSE(etape.trimmed().startsWith(u"SCAN"_s)) << requete << "\n" << etape.toStdString();
    }
}
