#include "reference/rech_rap.h"

#include "platform/controls/grid.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/keys.h"
#include "tests/support/messages.h"

#include <QAbstractButton>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace talor;
using controls::Grid;

namespace {

class RechRapTest : public testing::Test
{
protected:
    RechRapTest()
    {
        exemples.client(u"SLIMANI"_s, u"Omar"_s);
        exemples.client(u"O'Brien"_s, u"Pat"_s);
        exemples.client(u"l'Étoile"_s, u"Sarl"_s);
        Exemples::changer(t.exercice.Clients, 3, {{"Solde", -12500}});
    }

    static QString nomEnMain(Rech_Rap& d)
    {
        const auto* grille = control<Grid>(d, u"Grid1"_s);
        return grille->text(grille->currentRow(), 0);
    }

    ExerciceTemporaire t;
    Exemples exemples{t.exercice};
    QList<qint64> zooms;
    Rech_Rap::Zoom zoom = [this](QWidget*, qint64 num) { zooms.append(num); };
};

} // namespace

TEST_F(RechRapTest, le_numero_mene_au_client_et_entree_ouvre_son_compte)
{
    Rech_Rap d(t.exercice, zoom);
    show(d);
    const auto* grille = control<Grid>(d, u"Grid1"_s);
    EXPECT_EQ(grille->text(0, 0), u"l'Étoile"_s) << "by name, case and accents aside";
    EXPECT_EQ(grille->text(0, 4), u"-12 500.00"_s);
    EXPECT_EQ(grille->text(1, 4), QString()) << "nothing owed either way";

    type(d, u"Text1(0)"_s, u"2"_s);
    press(d, Qt::Key_Return);
    EXPECT_EQ(nomEnMain(d), u"O'Brien"_s);
    press(d, Qt::Key_Return);
    click(d, u"Image1(0)"_s);
    EXPECT_EQ(zooms, (QList<qint64>{2, 2}));
}

TEST_F(RechRapTest, le_nom_restreint_la_liste_et_autre_choix_la_rend)
{
    Rech_Rap d(t.exercice, zoom);
    show(d);
    auto* grille = control<Grid>(d, u"Grid1"_s);
    type(d, u"Text1(1)"_s, u"L'ET"_s);
    press(d, Qt::Key_Return);
    EXPECT_EQ(grille->rowCount(), 1);
    EXPECT_EQ(nomEnMain(d), u"l'Étoile"_s);

    click(d, u"Image1(1)"_s);
    EXPECT_EQ(grille->rowCount(), 3);
    EXPECT_EQ(textOf(d, u"Text1(1)"_s), QString());
    type(d, u"Text1(1)"_s, u"o"_s);
    press(d, Qt::Key_Down);
    type(d, u"Text1(2)"_s, u"p"_s);
    press(d, Qt::Key_Return);
    EXPECT_EQ(grille->rowCount(), 1);
    EXPECT_EQ(nomEnMain(d), u"O'Brien"_s);
}

TEST_F(RechRapTest, ce_qui_manque_se_dit_et_la_liste_reste)
{
    ExpectMessages messages{{u"Numéro omis"_s, u"ATTENTION"_s},
                            {u"Numéro d'ordre introuvable"_s, u"ATTENTION"_s},
                            {u"Aucun client ne répond à ces critères"_s, u"ATTENTION"_s}};
    Rech_Rap d(t.exercice, zoom);
    show(d);
    press(d, Qt::Key_Return);
    type(d, u"Text1(0)"_s, u"99"_s);
    click(d, u"Image2(0)"_s);
    type(d, u"Text1(1)"_s, u"*"_s);
    click(d, u"Image2(1)"_s);
    EXPECT_EQ(control<Grid>(d, u"Grid1"_s)->rowCount(), 3);
    EXPECT_EQ(textOf(d, u"Text1(1)"_s), u"*"_s);
    EXPECT_EQ(zooms, QList<qint64>());
}

TEST_F(RechRapTest, sans_compte_de_client_le_zoom_est_ferme)
{
    Rech_Rap d(t.exercice);
    show(d);
    EXPECT_FALSE(control<QAbstractButton>(d, u"Image1(0)"_s)->isEnabled());
    control(d, u"Grid1"_s)->setFocus();
    press(d, Qt::Key_Return);
    EXPECT_TRUE(d.isVisible());
    press(d, Qt::Key_Escape);
    EXPECT_FALSE(d.isVisible());
}
