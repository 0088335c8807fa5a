#include "reference/q_mos.h"

#include "core/state.h"
#include "platform/controls/grid.h"

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr int nbMois = 12;

int moisDuDebut(const QString& debut)
{
    const auto mois = std::ranges::find_if(
        NomsMois, [&](const QString& nom) { return store::fold(nom).startsWith(store::fold(debut)); });
    return mois == NomsMois.cend() ? -1 : static_cast<int>(mois - NomsMois.cbegin());
}

} // namespace

std::optional<int> Q_Mos::demander(QWidget* parent, int moisInitial)
{
    const std::optional<int> rang = Q_Mos(moisInitial, parent).choisirRang();
    return rang ? std::optional(*rang + 1) : std::nullopt;
}

Q_Mos::Q_Mos(int moisInitial, QWidget* parent)
    : DialogueListe(u"Q_Mos", u"Choix du mois"_s, u"List1", parent)
{
    liste()->setColumns({{u"N°"_s, 500, Qt::AlignHCenter}, {u"Mois"_s, 2600}});
    liste()->setRows(nbMois, [](int rang, int colonne) {
        return colonne == 0 ? QString::number(rang + 1) : NomsMois[static_cast<size_t>(rang)];
    });
    liste()->selectRow(std::clamp(moisInitial, 1, nbMois) - 1);
    setRecherche(moisDuDebut);
}

} // namespace talor
