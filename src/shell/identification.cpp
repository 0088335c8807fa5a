#include "shell/identification.h"

#include "core/helpers.h"
#include "core/schema.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr int commissionParDefaut = 13;
constexpr int consigneParDefaut = 100;
constexpr qint64 sonsVoulus = 1;

struct Taux
{
    Identification::Case rang;
    QByteArray colonne;
    QString masque;
};

const std::array<Taux, 3> lesTaux = {{{Identification::Commission, "Commission", u"##.00"_s},
                                      {Identification::Consigne, "Consigne", u"##.00"_s},
                                      {Identification::TVA, "TVA", u"###"_s}}};

void ajouterLigne(store::Recordset& Permn)
{
    Permn.addNew();
    for (int i = 0; i < position::nbIdentiteFiscale; ++i)
        Permn.set(position::identiteFiscale + i, u" "_s);
    Permn.set("Commission", commissionParDefaut);
    Permn.set("Consigne", consigneParDefaut);
    Permn.set("TVA", 0);
    Permn.update();
}

} // namespace

Identification Identification::lire(Exercice& exercice)
{
    store::Recordset& Permn = exercice.Permn;
    if (!Permn.requery())
        ajouterLigne(Permn);
    exercice.LireParametres();
    Identification lue;
    for (int i = 0; i < position::nbIdentiteFiscale; ++i)
        lue.cases[static_cast<size_t>(i)] = Permn.text(position::identiteFiscale + i);
    for (const Taux& taux : lesTaux)
        lue.cases[taux.rang] = Format(Permn.real(taux.colonne), taux.masque);
    lue.EffetSonore = exercice.EffetSonore == sonsVoulus;
    return lue;
}

void Identification::enregistrer(Exercice& exercice, const Identification& lue) const
{
    if (*this == lue)
        return;
    store::Recordset& Permn = exercice.Permn;
    Permn.edit();
    for (int i = 0; i < position::nbIdentiteFiscale; ++i)
        Permn.set(position::identiteFiscale + i, cases[static_cast<size_t>(i)]);
    for (const Taux& taux : lesTaux)
        Permn.set(taux.colonne, Valeur(cases[taux.rang]));
    Permn.set("nb_x", EffetSonore ? sonsVoulus : 0);
    Permn.update();
    exercice.LireParametres();
}

} // namespace talor
