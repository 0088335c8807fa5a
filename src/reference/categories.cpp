#include "reference/categories.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

const Refus saisieOmise = {u"Saisie omise"_s, u"TALOR"_s, Icone::Information};

} // namespace

QList<Categorie> listerCategories(Exercice& exercice)
{
    exercice.Familles_C.requery();
    QList<Categorie> categories;
    store::Recordset liste = exercice.Base().openRecordset(u"SELECT * FROM FAMILLES_C order by denom"_s);
    for (bool la = liste.moveFirst(); la; la = liste.moveNext())
        categories.append({liste.num(), liste.text("denom")});
    return categories;
}

QString nomCategorie(Exercice& exercice, qint64 num)
{
    return exercice.Familles_C.seek(num) ? exercice.Familles_C.text("denom") : QString();
}

Resultat<qint64> ajouterCategorie(Exercice& exercice, const QString& denom)
{
    if (denom.trimmed().isEmpty())
        return saisieOmise;
    store::Transaction transaction(exercice.Base());
    const qint64 ordre = exercice.Base().scalar(u"select max(ordre) from Familles_C"_s).toLongLong() + 1;
    exercice.Familles_C.addNew();
    exercice.Familles_C.set("ordre", ordre);
    exercice.Familles_C.set("denom", denom.trimmed());
    const qint64 num = exercice.Familles_C.update();
    transaction.commit();
    return num;
}

Resultat<qint64> renommerCategorie(Exercice& exercice, qint64 num, const QString& denom)
{
    if (denom.trimmed().isEmpty())
        return saisieOmise;
    if (!exercice.Familles_C.seek(num))
        return Refus{u"Mouvement altéré"_s};
    exercice.Familles_C.edit();
    exercice.Familles_C.set("denom", denom.trimmed());
    return exercice.Familles_C.update();
}

std::optional<Refus> empechementCategorie(Exercice& exercice, std::optional<qint64> num)
{
    if (!num)
        return Refus{u"Un libellé minimum est requis"_s, u"TALOR"_s, Icone::Information};
    if (exercice.Base().exists(u"SELECT FAMILLE FROM Clients where FAMILLE = ?"_s, {*num}))
        return Refus{u"Suppression refusée"_s};
    return std::nullopt;
}

std::optional<Refus> supprimerCategorie(Exercice& exercice, qint64 num)
{
    if (const std::optional<Refus> refus = empechementCategorie(exercice, num))
        return refus;
    if (!exercice.Familles_C.seek(num))
        return Refus{u"Mouvement altéré"_s};
    exercice.Familles_C.remove();
    return std::nullopt;
}

} // namespace talor
