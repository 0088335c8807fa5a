#include "reference/categories.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

void ajouterClient(Exercice& exercice, qint64 famille)
{
    exercice.Clients.addNew();
    exercice.Clients.set("nom", u"AMRANI"_s);
    exercice.Clients.set("famille", famille);
    exercice.Clients.update();
}

} // namespace

TEST(Categories, se_listent_par_nom_et_gardent_leur_num)
{
    ExerciceTemporaire t;
    QList<qint64> nums;
    for (const QString& denom : {u" Restaurants "_s, u"Écailleurs"_s, u"Grossistes"_s})
        nums.append(*ajouterCategorie(t.exercice, denom));
    EXPECT_EQ(listerCategories(t.exercice),
              (QList<Categorie>{{nums[1], u"Écailleurs"_s}, {nums[2], u"Grossistes"_s}, {nums[0], u"Restaurants"_s}}));

    EXPECT_EQ(*renommerCategorie(t.exercice, nums[2], u"O'Brien & fils"_s), nums[2]);
    EXPECT_EQ(nomCategorie(t.exercice, nums[2]), u"O'Brien & fils"_s);
    EXPECT_EQ(nomCategorie(t.exercice, 99), QString());
}

TEST(Categories, un_nom_vide_ou_une_categorie_disparue_sont_refuses)
{
    ExerciceTemporaire t;
    const qint64 num = *ajouterCategorie(t.exercice, u"Grossistes"_s);
    const Refus omise = {u"Saisie omise"_s, u"TALOR"_s, Icone::Information};
    EXPECT_EQ(ajouterCategorie(t.exercice, u"  "_s).refus(), omise);
    EXPECT_EQ(renommerCategorie(t.exercice, num, u""_s).refus(), omise);
    EXPECT_EQ(renommerCategorie(t.exercice, 99, u"Mareyeurs"_s).refus(), Refus{u"Mouvement altéré"_s});
    EXPECT_EQ(listerCategories(t.exercice), (QList<Categorie>{{num, u"Grossistes"_s}}));
}

TEST(Categories, ne_se_suppriment_qu_apres_leur_dernier_client)
{
    ExerciceTemporaire t;
    EXPECT_EQ(empechementCategorie(t.exercice, {}),
              (Refus{u"Un libellé minimum est requis"_s, u"TALOR"_s, Icone::Information}));
    const qint64 num = *ajouterCategorie(t.exercice, u"Grossistes"_s);
    ajouterClient(t.exercice, num);
    EXPECT_EQ(supprimerCategorie(t.exercice, num), Refus{u"Suppression refusée"_s});
    EXPECT_EQ(t.exercice.Familles_C.recordCount(), 1);

    t.exercice.Base().execute(u"Delete * from Clients"_s);
    EXPECT_EQ(supprimerCategorie(t.exercice, num), std::nullopt);
    EXPECT_EQ(t.exercice.Familles_C.recordCount(), 0);
}
