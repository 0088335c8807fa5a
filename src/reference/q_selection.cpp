#include "reference/q_selection.h"

#include "core/jouer.h"
#include "core/montrer.h"
#include "platform/controls/grid.h"

namespace talor {

using namespace Qt::StringLiterals;

template<class Dialogue>
static std::optional<Selection> demanderSur(QWidget* parent, Exercice& exercice, const TableSelection& table)
{
    const Resultat<ListeSelection> liste = ListeSelection::lire(exercice, table);
    if (!liste) {
        montrer(parent, liste.refus());
        return std::nullopt;
    }
    return Dialogue(exercice, *liste, parent).choisir();
}

Q_Selection::Q_Selection(QStringView nom, const QString& titre, const Exercice& exercice, ListeSelection lignes,
                         QWidget* parent)
    : DialogueListe(nom, titre, u"Grid1", parent)
    , m_lignes(std::move(lignes))
{
    QList<controls::Column> colonnes;
    for (const ColonneSelection& colonne : m_lignes.table().colonnes)
        colonnes.append({colonne.titre, colonne.largeur, colonne.centree ? Qt::AlignHCenter : Qt::AlignLeft});
    colonnes.first().stretches = true;
    liste()->setColumns(colonnes);
    liste()->setRows(m_lignes.nombre(), [this](int rang, int colonne) { return m_lignes.cellule(rang, colonne); });
    liste()->selectRow(0);
    setRecherche([this](const QString& debut) { return m_lignes.rangDuDebut(debut); });
    connect(this, &DialogueListe::deplace, this, [&exercice] { JouerTouche(exercice); });
}

std::optional<Selection> Q_Selection::choisir()
{
    const std::optional<int> rang = choisirRang();
    return rang ? std::optional(m_lignes[*rang]) : std::nullopt;
}

Q_Client::Q_Client(const Exercice& exercice, ListeSelection liste, QWidget* parent)
    : Q_Selection(u"Q_Client", u"Choix du client"_s, exercice, std::move(liste), parent)
{}

std::optional<Selection> Q_Client::demander(QWidget* parent, Exercice& exercice)
{
    return demanderSur<Q_Client>(parent, exercice, selectionClients());
}

Q_Bateau::Q_Bateau(const Exercice& exercice, ListeSelection liste, QWidget* parent)
    : Q_Selection(u"Q_Bateau", u"Choix de l'embarcation"_s, exercice, std::move(liste), parent)
{}

std::optional<Selection> Q_Bateau::demander(QWidget* parent, Exercice& exercice)
{
    return demanderSur<Q_Bateau>(parent, exercice, selectionBateaux());
}

Q_Poisson::Q_Poisson(const Exercice& exercice, ListeSelection liste, QWidget* parent)
    : Q_Selection(u"Q_Poisson", u"Choix du produit"_s, exercice, std::move(liste), parent)
{}

std::optional<Selection> Q_Poisson::demander(QWidget* parent, Exercice& exercice)
{
    return demanderSur<Q_Poisson>(parent, exercice, selectionPoissons());
}

} // namespace talor
