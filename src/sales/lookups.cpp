#include "sales/lookups.h"

#include "core/helpers.h"

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr int longueurNom = 50;

QString nomEtPrenom(const store::Recordset& client)
{
    return client.text("nom") + u"  "_s + client.text("prenom");
}

QString denomination(const store::Recordset& ligne)
{
    return ligne.text("denom");
}

const Refus ordreIntrouvable{u"Numéro d'ordre introuvable"_s};

} // namespace

template<class Texte> static QList<EntreeListe> lire(Exercice& exercice, const QString& requete, Texte texte)
{
    QList<EntreeListe> entrees;
    for (store::Recordset lignes = exercice.Base().openRecordset(requete); !lignes.eof(); lignes.moveNext())
        entrees.append({lignes.num(), lignes.text("ordre"), texte(lignes)});
    return entrees;
}

ListeChoix ListeChoix::clientsParNom(Exercice& exercice)
{
    return ListeChoix(lire(exercice, u"select * from Clients order by nom,prenom"_s, nomEtPrenom));
}

ListeChoix ListeChoix::clientsParOrdre(Exercice& exercice)
{
    return ListeChoix(lire(exercice, u"select * from Clients order by ordre"_s, nomEtPrenom));
}

ListeChoix ListeChoix::chalutiers(Exercice& exercice)
{
    return ListeChoix(lire(exercice, u"select * from Chalutiers order by ordre"_s, denomination));
}

ListeChoix ListeChoix::poissons(Exercice& exercice)
{
    return ListeChoix(lire(exercice, u"select * from Poissons order by ordre"_s, denomination));
}

ListeChoix::ListeChoix(const QList<EntreeListe>& entrees)
{
    for (const EntreeListe& entree : entrees)
        ajouter(entree);
}

/// Of two entries with one number the first is found.
void ListeChoix::ajouter(const EntreeListe& entree)
{
    const int rang = nombre();
    m_entrees.append(entree);
    if (!m_rangs.contains(entree.num))
        m_rangs.insert(entree.num, rang);
    if (!m_rangsOrdre.contains(entree.ordre))
        m_rangsOrdre.insert(entree.ordre, rang);
}

ListeChoix ListeChoix::avecEnsemble() const
{
    ListeChoix liste = *this;
    liste.ajouter({numEnsemble, QString(), u" Ensemble"_s});
    return liste;
}

QString ListeChoix::nom(int rang) const
{
    return m_entrees[rang].texte.left(longueurNom).trimmed();
}

int ListeChoix::rangDuNum(qint64 num) const
{
    return m_rangs.value(num, -1);
}

QString ListeChoix::texteDuNum(qint64 num, const QString& suffixe) const
{
    const int rang = rangDuNum(num);
    return rang < 0 ? QString() : m_entrees[rang].texte + suffixe;
}

int ListeChoix::rangDuDebut(const QString& debut) const
{
    if (const auto parOrdre = m_rangsOrdre.constFind(debut); parOrdre != m_rangsOrdre.cend())
        return *parOrdre;
    const QString cherche = store::fold(debut);
    const auto parTexte = std::ranges::find_if(
        m_entrees, [&](const EntreeListe& entree) { return store::fold(entree.texte.trimmed()).startsWith(cherche); });
    return parTexte == m_entrees.cend() ? -1 : static_cast<int>(parTexte - m_entrees.cbegin());
}

Resultat<int> ListeChoix::choisirParOrdre(const QString& texte) const
{
    const QString ordre = texte.trimmed();
    if (ordre.isEmpty())
        return Refus{u"Numéro omis"_s, QString(), Icone::Aucune};
    const auto trouve = m_rangsOrdre.constFind(ordre);
    if (trouve == m_rangsOrdre.cend())
        return ordreIntrouvable;
    return *trouve;
}

Resultat<int> ListeChoix::choisirParNum(const QString& texte) const
{
    bool lu = false;
    const int rang = rangDuNum(texte.trimmed().toLongLong(&lu));
    if (!lu || rang < 0)
        return ordreIntrouvable;
    return rang;
}

Resultat<int> ListeChoix::retrouver(qint64 num, const QString& absent) const
{
    const int rang = rangDuNum(num);
    if (rang < 0)
        return Refus{absent};
    return rang;
}

} // namespace talor
