#include "demo/resume.h"

#include "core/helpers.h"

#include <QSaveFile>

namespace talor::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr int largeur = 100;

QString montant(double dinars)
{
    return Format(dinars, u"### ### ##0.00"_s);
}

QString titre(const QString& texte)
{
    return u"\n"_s + texte + u'\n' + QString(texte.size(), u'-') + u'\n';
}

/// A row of the text: its first cell to the left, the others to the right, each in its width.
QString ligne(const QStringList& cellules, const QList<int>& largeurs)
{
    QString texte = u"  "_s;
    for (qsizetype i = 0; i < cellules.size(); ++i)
        texte += i == 0 ? cellules[i].leftJustified(largeurs[i]) : cellules[i].rightJustified(largeurs[i]);
    return texte + u'\n';
}

QString journees(Exercice& exercice)
{
    const QList<int> largeurs = {12, 12, 8, 10, 17, 10, 15, 17};
    QString texte = titre(u"Les journées"_s);
    texte += ligne({u"Journée"_s, u"Bordereaux"_s, u"Lignes"_s, u"Cageots"_s, u"Poisson (DA)"_s, u"Factures"_s,
                    u"Consigne (DA)"_s, u"Factures (DA)"_s},
                   largeurs);
    const auto rangee = [&](const QString& intitule, const QString& condition, const QVariantList& jour) {
        store::Database& base = exercice.Base();
        const auto valeur = [&](const QString& debut) { return base.scalar(debut + condition, jour); };
        texte += ligne({intitule, valeur(u"select count(num) from Bordereaux"_s).toString(),
                        valeur(u"select count(num) from L_Vente"_s).toString(),
                        valeur(u"select sum(Casiers) from L_Vente"_s).toString(),
                        montant(valeur(u"select sum(Total_HT) from Factures"_s).toDouble()),
                        valeur(u"select count(num) from Factures"_s).toString(),
                        montant(valeur(u"select sum(Consigne) from Factures"_s).toDouble()),
                        montant(valeur(u"select sum(Total) from Factures"_s).toDouble())},
                       largeurs);
    };
    store::Recordset jours = exercice.Base().openRecordset(u"select distinct Date from Bordereaux order by Date"_s);
    for (bool la = jours.moveFirst(); la; la = jours.moveNext()) {
        const QString date = jours.text("Date");
        rangee(date, u" where Date = #"_s + DateRequete(date) + u"#"_s, {});
    }
    rangee(u"Ensemble"_s, {}, {});
    return texte;
}

QString embarcations(Exercice& exercice)
{
    const QList<int> largeurs = {20, 12, 16, 18, 22};
    QString texte = titre(u"Les embarcations"_s);
    texte += ligne({u"Embarcation"_s, u"Bordereaux"_s, u"Brut (DA)"_s, u"Commission (DA)"_s, u"Part armateur (DA)"_s},
                   largeurs);
    store::Recordset bateaux = exercice.Base().openRecordset(u"select * from Chalutiers order by ordre"_s);
    for (bool la = bateaux.moveFirst(); la; la = bateaux.moveNext()) {
        const auto valeur = [&](const QString& expression) {
            return exercice.Base().scalar(u"select "_s + expression + u" from Bordereaux where Num_Chalutier = ?"_s,
                                          {bateaux.num()});
        };
        texte += ligne({bateaux.text("denom"), valeur(u"count(num)"_s).toString(),
                        montant(valeur(u"sum(brut)"_s).toDouble()), montant(valeur(u"sum(MT_Commission)"_s).toDouble()),
                        montant(valeur(u"sum(MT_Armateur)"_s).toDouble())},
                       largeurs);
    }
    return texte;
}

QString clients(Exercice& exercice)
{
    const QList<int> largeurs = {36, 10, 18, 10};
    QString texte = titre(u"Les clients, du plus au moins débiteur"_s);
    texte += ligne({u"Client"_s, u"N°"_s, u"Doit (DA)"_s, u"Cageots"_s}, largeurs);
    store::Recordset liste =
        exercice.Base().openRecordset(u"select * from Clients where Debit > 0 order by Debit desc, ordre"_s);
    for (bool la = liste.moveFirst(); la; la = liste.moveNext()) {
        QString nom = liste.text("nom") + u' ' + liste.text("prenom");
        if (nom.size() > largeurs[0])
            nom = nom.left(largeurs[0] - 1) + u'…';
        texte += ligne({nom, liste.text("ordre"), montant(-liste.real("Solde")), liste.text("Diff")}, largeurs);
    }
    return texte;
}

QString fichiers(const Resume& resume, const QDir& dossier, const Exercice& exercice)
{
    const auto rangee = [](const QString& nom, const QString& contenu) {
        return u"  "_s + nom.leftJustified(30) + contenu + u'\n';
    };
    QString texte = titre(u"Les fichiers"_s);
    texte += u"  Dans « "_s + dossier.dirName() + u" » :\n"_s;
    texte += rangee(QFileInfo(exercice.CheminBase).fileName(), u"l'exercice, avec tout ce qui précède"_s);
    for (const Imprime& document : resume.documents)
        texte += rangee(document.fichier, document.contenu + u", %1 page(s)"_s.arg(document.pages));
    for (const QString& image : resume.images)
        texte += rangee(u"ecrans/"_s + image + u".png"_s, {}).trimmed().prepend(u"  "_s) + u'\n';
    return texte;
}

QString verification(const Resume& resume)
{
    QString texte = titre(u"Les livres"_s);
    if (resume.ecarts.isEmpty())
        return texte + u"  Tout concorde, au centime : lignes, factures, montants en lettres, débits des clients,\n"
                       "  cageots, bordereaux, et le fichier de la saison compté à part.\n"_s;
    for (const QString& ecart : resume.ecarts)
        texte += u"  ÉCART  "_s + ecart + u'\n';
    return texte;
}

} // namespace

std::optional<Refus> ecrireResume(Exercice& exercice, const Saison& saison, const Resume& resume, const QDir& dossier)
{
    QString texte = exercice.identite(1) + u", "_s + exercice.identite(3) + u" : une semaine de criée\n"_s;
    texte += QString(largeur, u'=') + u'\n';
    texte += u"\nOnt été saisis, par les fonctions mêmes du programme : %1 poissons, %2 armateurs, %3 embarcations,\n"
             "%4 clients en %5 catégories, puis chaque bordereau ligne par ligne ; chaque journée a été facturée.\n"_s
                 .arg(saison.poissons.size())
                 .arg(saison.armateurs.size())
                 .arg(saison.embarcations.size())
                 .arg(saison.clients.size())
                 .arg(saison.categories.size());
    if (!resume.scenes.isEmpty())
        texte += u"\nAu clavier, dans les fenêtres mêmes :\n  "_s + resume.scenes.join(u"\n  "_s) + u'\n';
    texte += journees(exercice) + embarcations(exercice) + clients(exercice) + verification(resume) +
             fichiers(resume, dossier, exercice);

    QSaveFile fichier(dossier.filePath(u"Resume.txt"_s));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(texte.toUtf8()) < 0 || !fichier.commit())
        return Refus{u"Resume.txt n'a pu être écrit : "_s + fichier.errorString()};
    return std::nullopt;
}

} // namespace talor::demo
