#include "demo/scenes.h"

#include "demo/jeu.h"
#include "shell/form1.h"

namespace talor::demo {

using namespace Qt::StringLiterals;

namespace {

/// A buyer who comes for the first time: number, name, first name, address, telephone and town, typed without capitals,
/// which the card puts in.
Scene clientNouveau(Form1& form1)
{
    return {u"Un client nouveau, N° 37, est ouvert au clavier"_s,
            {u"j_Client-nouveau"_s,
             [&] { form1.executer(u"mnu_art"_s); },
             {u"<Ins>"_s, u"37"_s, u"<Return>"_s, u"khaldi"_s, u"<Return>"_s, u"nassim"_s, u"<Return>"_s,
              u"Port de plaisance"_s, u"<Return>"_s, u"<Return>"_s, u"0550000237"_s, u"<Return>"_s, u"<Return>"_s,
              u"tipaza"_s, u"<Ctrl+Return>"_s}},
            [](Exercice& exercice) -> std::optional<QString> {
                store::Recordset client = exercice.Base().openRecordset(u"select * from Clients where ordre = 37"_s);
                const QString fiche = client.eof() ? QString()
                                                   : QStringList{client.text("nom"), client.text("prenom"),
                                                                 client.text("tel"), client.text("ville")}
                                                         .join(u' ');
                if (fiche == u"KHALDI Nassim 0550000237 Tipaza")
                    return std::nullopt;
                return u"client N° 37 : « "_s + fiche + u" »"_s;
            }};
}

/// The keys of one line: five values, each with its Enter, and the Enter that closes the announcement.
QStringList touchesLigne(const Saison& saison, const Ligne& ligne)
{
    QStringList touches;
    for (const QString& valeur :
         {QString::number(saison.clients[ligne.client].ordre), QString::number(saison.poissons[ligne.poisson].ordre),
          ligne.cageots, ligne.poids, ligne.PU})
        touches << valeur << u"<Return>"_s;
    touches.removeAll(QString());
    return touches << u"<Return>"_s;
}

/// F6, then down to the row of each expense; one that takes the place of a "Divers" is given its label first.
QStringList touchesFrais(Exercice& exercice, const QList<Frais>& frais)
{
    QStringList touches{u"<F6>"_s};
    SaisieBordereau vierge(exercice, {});
    int ici = 0;
    for (const Frais& f : frais) {
        const int rang = rangFrais(vierge, f.libelle).value_or(ici);
        for (; ici < rang; ++ici)
            touches << u"<Down>"_s;
        for (; ici > rang; --ici)
            touches << u"<Up>"_s;
        if (vierge.frais()[rang].libelle != f.libelle)
            touches << u"<Left>"_s << f.libelle << u"<Return>"_s;
        touches << f.montant;
        vierge.saisirMontant(rang, f.montant);
    }
    return touches << u"<Ctrl+Return>"_s;
}

QStringList touchesPrimes(const Bordereau& bordereau)
{
    QStringList touches{u"<F5>"_s, bordereau.primes, u"<Return>"_s, bordereau.taux, u"<Return>"_s};
    touches.removeAll(QString());
    return touches;
}

/// The last bordereau of the season, from the register's "Nouveau" to its totals.
Scene bordereauAuClavier(Form1& form1, Exercice& exercice, const Saison& saison)
{
    const Bordereau& bordereau = saison.journees.last().bordereaux.last();
    const QString bateau = saison.embarcations[bordereau.embarcation].denom;
    QStringList touches{u"<Ins>"_s, u"<Return>"_s, bateau.toLower(), u"<Return>"_s};
    for (const Ligne& ligne : bordereau.lignes)
        touches << touchesLigne(saison, ligne);
    touches << u"<Esc>"_s << touchesFrais(exercice, bordereau.frais) << touchesPrimes(bordereau);
    const qint64 lignes = bordereau.lignes.size();
    return {u"Un bordereau de %1 lignes, %2, est saisi au clavier"_s.arg(lignes).arg(bateau),
            {u"j_vente-bordereau"_s, [&] { form1.executer(u"MBorde"_s); }, touches},
            [lignes](Exercice& e) -> std::optional<QString> {
                const qint64 ouvertes =
                    e.Base().scalar(u"select count(num) from L_Vente where Num_Facture = -1"_s).toLongLong();
                const qint64 duBordereau =
                    e.Base()
                        .scalar(
                            u"select count(num) from L_Vente where num_bordereau = (select max(num) from Bordereaux)"_s)
                        .toLongLong();
                if (duBordereau == lignes && ouvertes >= lignes)
                    return std::nullopt;
                return u"%1 lignes au lieu de %2"_s.arg(duBordereau).arg(lignes);
            }};
}

/// The day's invoices, and all of them on paper at once.
Scene facturationAuClavier(Form1& form1)
{
    return {u"La journée est facturée, et ses factures sont imprimées d'un seul lot"_s,
            {u"Apercu-lot"_s,
             [&] { form1.executer(u"Nouv_Fact"_s); },
             {u"<Ctrl+Return>"_s, u"<Return>"_s, u"<Ctrl+A>"_s, u"<Ctrl+P>"_s, u"<Return>"_s}},
            [](Exercice& exercice) -> std::optional<QString> {
                if (exercice.Base().exists(u"select num from L_Vente where Num_Facture = -1"_s))
                    return u"il reste des lignes à facturer"_s;
                return std::nullopt;
            }};
}

} // namespace

QList<Scene> scenes(Form1& form1, Exercice& exercice, const Saison& saison)
{
    return {clientNouveau(form1), bordereauAuClavier(form1, exercice, saison), facturationAuClavier(form1)};
}

} // namespace talor::demo
