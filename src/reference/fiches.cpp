#include "reference/fiches.h"

#include "core/helpers.h"

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

Refus mouvementAltere()
{
    return {u"Mouvement altéré"_s};
}

/// Puts a shared recordset back to reading when the write that it began is not finished.
class EcritureEnCours
{
public:
    explicit EcritureEnCours(store::Recordset& table)
        : m_table(table)
    {}
    ~EcritureEnCours()
    {
        if (!m_finie)
            m_table.cancelUpdate();
    }
    EcritureEnCours(const EcritureEnCours&) = delete;
    EcritureEnCours& operator=(const EcritureEnCours&) = delete;

    qint64 finir()
    {
        const qint64 num = m_table.update();
        m_finie = true;
        return num;
    }

private:
    store::Recordset& m_table;
    bool m_finie = false;
};

bool estVide(const Champ& champ, const QString& texte)
{
    return champ.saisie == Saisie::Choix ? ValeurEntiere(texte) == 0 : texte.trimmed().isEmpty();
}

/// What the table holds for the text of a field.
QVariant valeurStockee(const Champ& champ, const QString& texte)
{
    switch (champ.saisie) {
    case Saisie::Numero:
    case Saisie::Choix:
        return ValeurEntiere(texte);
    case Saisie::Memo:
        return texte.trimmed().isEmpty() ? u" "_s : texte.trimmed();
    default:
        return texte.trimmed();
    }
}

/// The text of a field as its control shows it.
QString texteAffiche(const Champ& champ, const store::Recordset& table)
{
    switch (champ.saisie) {
    case Saisie::Numero:
        return NombreSimple(table.real(champ.colonne));
    case Saisie::Choix:
        return table.integer(champ.colonne) == 0 ? QString() : QString::number(table.integer(champ.colonne));
    case Saisie::Memo:
        return table.text(champ.colonne).trimmed();
    default:
        return table.text(champ.colonne);
    }
}

} // namespace

Fiches::Fiches(Exercice& exercice, const DescriptionFiche& description)
    : m_exercice(exercice)
    , m_description(description)
{}

Fiches::Ligne Fiches::lireLigne(const store::Recordset& table, int rang) const
{
    QStringList cellules;
    for (const Colonne& colonne : m_description.colonnes)
        cellules.append(colonne.cellule(m_exercice, table, rang));
    return {cellules, table.num(), m_description.ordonnee ? table.real("ordre") : 0};
}

void Fiches::remplir(Classement classement)
{
    const bool manuel = classement == Classement::OrdreManuel && !m_description.requeteManuelle.isEmpty();
    (m_exercice.*m_description.table).requery();
    m_lignes.clear();
    store::Recordset liste =
        m_exercice.Base().openRecordset(manuel ? m_description.requeteManuelle : m_description.requete);
    for (bool la = liste.moveFirst(); la; la = liste.moveNext())
        m_lignes.append(lireLigne(liste, nombre() + 1));
}

Fiche Fiches::vierge() const
{
    return m_description.vierge ? m_description.vierge(m_exercice) : Fiche();
}

Resultat<Fiche> Fiches::lire(int ligne) const
{
    store::Recordset& table = m_exercice.*m_description.table;
    if (!table.seek(num(ligne)))
        return mouvementAltere();
    Fiche fiche;
    for (const Champ& champ : m_description.champs)
        fiche[QString::fromLatin1(champ.colonne)] = texteAffiche(champ, table);
    return fiche;
}

bool Fiches::numeroPris(const QString& numero, std::optional<int> ligne) const
{
    for (int autre = 0; autre < nombre(); ++autre)
        if (autre != ligne && ordre(autre) == Valeur(numero))
            return true;
    return false;
}

std::optional<Fiches::Faute> Fiches::verifier(const Fiche& fiche, std::optional<int> ligne) const
{
    for (const Champ& champ : m_description.champs) {
        const QString colonne = QString::fromLatin1(champ.colonne);
        if (champ.obligatoire && estVide(champ, fiche.value(colonne)))
            return Faute{{u"Saisie incomplète"_s}, colonne};
    }
    for (const Champ& champ : m_description.champs) {
        const QString colonne = QString::fromLatin1(champ.colonne);
        if (champ.saisie == Saisie::Numero && numeroPris(fiche.value(colonne), ligne))
            return Faute{{u"Numéro répété"_s}, colonne};
    }
    return std::nullopt;
}

void Fiches::ecrireChamps(store::Recordset& table, const Fiche& fiche) const
{
    for (const Champ& champ : m_description.champs)
        table.set(champ.colonne, valeurStockee(champ, fiche.value(QString::fromLatin1(champ.colonne))));
}

qint64 Fiches::creer(const Fiche& fiche)
{
    store::Recordset& table = m_exercice.*m_description.table;
    table.requery();
    table.addNew();
    EcritureEnCours ecriture(table);
    if (m_description.ordonnee)
        table.set("ordre", nombre());
    ecrireChamps(table, fiche);
    const qint64 num = ecriture.finir();
    if (m_description.apresCreation)
        m_description.apresCreation(m_exercice, num, fiche);
    return num;
}

void Fiches::modifier(const Fiche& fiche)
{
    store::Recordset& table = m_exercice.*m_description.table;
    table.edit();
    EcritureEnCours ecriture(table);
    ecrireChamps(table, fiche);
    ecriture.finir();
}

Resultat<int> Fiches::enregistrer(const Fiche& fiche, std::optional<int> ligne)
{
    if (const std::optional<Faute> faute = verifier(fiche, ligne))
        return faute->refus;
    store::Recordset& table = m_exercice.*m_description.table;
    if (ligne && !table.seek(num(*ligne)))
        return mouvementAltere();

    store::Transaction transaction(m_exercice.Base());
    const qint64 numEcrit = ligne ? num(*ligne) : creer(fiche);
    if (ligne)
        modifier(fiche);
    transaction.commit();

    table.seek(numEcrit);
    const int place = ligne.value_or(nombre());
    const Ligne relue = lireLigne(table, place + 1);
    if (ligne)
        m_lignes[place] = relue;
    else
        m_lignes.append(relue);
    return place;
}

std::optional<Refus> Fiches::empechement(int ligne) const
{
    for (const Reference& reference : m_description.references)
        if (m_exercice.Base().exists(reference.requete, {num(ligne)}))
            return reference.refus;
    return std::nullopt;
}

std::optional<Refus> Fiches::supprimer(int ligne)
{
    if (const std::optional<Refus> refus = empechement(ligne))
        return refus;
    store::Recordset& table = m_exercice.*m_description.table;
    if (!table.seek(num(ligne)))
        return mouvementAltere();
    table.remove();
    m_lignes.removeAt(ligne);
    for (int reste = 0; reste < nombre(); ++reste)
        m_lignes[reste].cellules[0] = QString::number(reste + 1);
    return std::nullopt;
}

void Fiches::echanger(int ligne, int voisine)
{
    for (int colonne = 0; colonne < m_description.colonnesEchangees; ++colonne)
        m_lignes[ligne].cellules[colonne].swap(m_lignes[voisine].cellules[colonne]);
    std::swap(m_lignes[ligne].num, m_lignes[voisine].num);
}

void Fiches::monter(int ligne)
{
    echanger(ligne, ligne - 1);
    std::swap(m_lignes[ligne].ordre, m_lignes[ligne - 1].ordre);
}

void Fiches::descendre(int ligne)
{
    echanger(ligne, ligne + 1);
}

QStringList Fiches::numerosRepetes() const
{
    if (!m_description.numerotee())
        return {};
    QStringList numeros;
    for (const Ligne& ligne : m_lignes)
        numeros.append((u"0000"_s + NombreSimple(ligne.ordre)).right(4));
    std::ranges::sort(numeros);
    QStringList repetes;
    for (qsizetype i = 1; i < numeros.size(); ++i)
        if (numeros[i] == numeros[i - 1])
            repetes.append(numeros[i]);
    return repetes;
}

} // namespace talor
