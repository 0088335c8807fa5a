#include "reference/f_classm.h"
#include "reference/familles.h"
#include "reference/fichiers.h"
#include "reference/j_client.h"
#include "tests/reference/fichier_a_l_ecran.h"

using namespace Qt::StringLiterals;
using namespace talor;
using controls::Answer;

namespace {

struct j_Client_Test : testing::Test
{
    j_Client_Test()
    {
        for (const QString& denom : {u"Restaurants"_s, u"Grossistes"_s})
            ajouterCategorie(t.exercice, denom);
    }

    void ajouter(const QMap<int, QString>& noms)
    {
        Fiches clients(t.exercice, fichierClients());
        clients.remplir();
        for (auto [numero, nom] : noms.asKeyValueRange())
            ASSERT_TRUE(clients.enregistrer({{u"ordre"_s, QString::number(numero)},
                                             {u"nom"_s, nom},
                                             {u"prenom"_s, u"Ali"_s},
                                             {u"famille"_s, u"1"_s}},
                                            {}));
    }

    ExerciceTemporaire t;
};

struct Familles_Test : testing::Test
{
    Familles_Test()
    {
        for (const QString& denom : {u"Restaurants"_s, u"Grossistes"_s})
            ajouterCategorie(t.exercice, denom);
    }

    /// Opens the choice on a category, works in it, and gives what it answers.
    template<class Travail> std::optional<Categorie> choisir(qint64 actuelle, Travail travail)
    {
        const auto ouvert = whenOpened<Familles>(travail);
        return Familles::demander(nullptr, t.exercice, actuelle);
    }

    static QStringList liste(Familles& d)
    {
        QStringList textes;
        const auto* list = control<QListWidget>(d, u"List1"_s);
        for (int i = 0; i < list->count(); ++i)
            textes.append(list->item(i)->text());
        return textes;
    }

    static QString texte(Familles& d) { return textOf(d, u"Text1"_s); }
    static QString titre(Familles& d) { return textOf(d, u"SSPanel2"_s); }

    ExerciceTemporaire t;
};

const QString question = u"La selection ne correspond pas à la saisie. Voudriez vous reporter "_s;

} // namespace

TEST_F(j_Client_Test, un_client_s_entre_au_clavier_avec_sa_categorie)
{
    FichierALEcran<j_Client> f(t.exercice);
    EXPECT_EQ(f.focus(), u"Text1(0)"_s);
    auto* categorie = control<QLabel>(f.dialogue, u"Label2(3)"_s);
    EXPECT_EQ(categorie->text(), u"Restaurants"_s) << "the first of the table is proposed";
    f.taperSuite({u"a7"_s, u"o'brien"_s, u"sean"_s, u"12, rue des Frères"_s, u"bt. 4"_s, u"021-36"_s, u"02136"_s,
                  u"alger"_s, u"rc02b"_s, u"id"_s, u"art"_s});
    f.touche(Qt::Key_Return);
    EXPECT_EQ(f.focus(), u"Text1(10)"_s) << "Enter does nothing in the last one-line field";
    {
        const auto choix = whenOpened<Familles>([](Familles& d) {
            EXPECT_EQ(textOf(d, u"Text1"_s), u"Restaurants"_s);
            press(d, Qt::Key_Up);
            press(d, Qt::Key_Return);
        });
        f.touche(Qt::Key_F4);
    }
    EXPECT_EQ(categorie->text(), u"Grossistes"_s);
    EXPECT_EQ(categorie->property("tag").toString(), u"2"_s);
    f.ok();

    const QStringList ligne = {u"7"_s, u" O'BRIEN"_s, u" Sean"_s, u" 02136"_s, u" Alger"_s, u" Grossistes"_s};
    for (int colonne = 0; colonne < ligne.size(); ++colonne)
        EXPECT_EQ(f.grille()->text(0, colonne), ligne[colonne]);
    t.exercice.Clients.requery();
    EXPECT_EQ(t.exercice.Clients.text("adr1"), u"12, rue des Frères"_s);
    EXPECT_EQ(t.exercice.Clients.text("RC"), u"RC02B"_s);
    EXPECT_EQ(t.exercice.Clients.text("obs"), u" "_s);
    EXPECT_EQ(t.exercice.Clients.integer("famille"), 2);
}

TEST_F(j_Client_Test, sans_categorie_il_est_refuse)
{
    ajouter({{1, u"AMRANI"_s}});
    t.exercice.Clients.edit();
    t.exercice.Clients.set("famille", 0);
    t.exercice.Clients.update();
    FichierALEcran<j_Client> f(t.exercice);
    ExpectMessages refus{{u"Saisie incomplète"_s, u"ATTENTION"_s}};
    f.touche(Qt::Key_Return);
    f.ok();
    EXPECT_EQ(f.focus(), u"Image1(0)"_s);
    f.touche(Qt::Key_Escape);
    EXPECT_FALSE(f.enSaisie());
    f.touche(Qt::Key_Insert);
    EXPECT_EQ(f.titre(), u"NOUVEAU CLIENT"_s);
    f.touche(Qt::Key_Escape);
}

// Kept on purpose: nothing forbids the deletion, and the numbers shown after it are those of the rows.
TEST_F(j_Client_Test, la_liste_se_trie_et_se_renumerote_apres_une_suppression)
{
    ajouter({{10, u"ZERROUKI"_s}, {20, u"AMRANI"_s}, {30, u"KACI"_s}});
    FichierALEcran<j_Client> f(t.exercice);
    EXPECT_EQ(f.colonne(0), (QStringList{u"20"_s, u"30"_s, u"10"_s})) << "by name at first";
    click(f.dialogue, u"Crecettes(4)"_s);
    EXPECT_EQ(f.colonne(0), (QStringList{u"10"_s, u"20"_s, u"30"_s}));
    {
        ExpectMessages question{{u"Confirmer supression de ligne N° 1"_s, u"Confirmation"_s, Answer::Yes}};
        f.touche(Qt::Key_Delete);
    }
    EXPECT_EQ(f.colonne(0), (QStringList{u"1"_s, u"2"_s}));
    click(f.dialogue, u"Crecettes(5)"_s);
    EXPECT_EQ(f.colonne(0), (QStringList{u"20"_s, u"30"_s}));
    f.touche(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(f.colonne(1), (QStringList{u" KACI"_s, u" AMRANI"_s}));
}

TEST_F(Familles_Test, une_categorie_s_ajoute_se_renomme_et_se_choisit)
{
    const auto choisie = choisir(1, [](Familles& d) {
        EXPECT_EQ(liste(d), (QStringList{u"Grossistes"_s, u"Restaurants"_s}));
        EXPECT_EQ(texte(d), u"Restaurants"_s) << "opens on the client's own";
        press(d, Qt::Key_Insert);
        EXPECT_EQ(titre(d), u"Nouvelle Famille"_s);
        {
            ExpectMessages refus{{u"Saisie omise"_s, u"TALOR"_s}};
            press(d, Qt::Key_Return);
        }
        type(d, u"Text1"_s, u"Œil-de-bœuf"_s);
        press(d, Qt::Key_Return);
        EXPECT_EQ(liste(d), (QStringList{u"Grossistes"_s, u"Œil-de-bœuf"_s, u"Restaurants"_s}));
        press(d, Qt::Key_F2);
        EXPECT_EQ(titre(d), u"Modification"_s);
        EXPECT_EQ(texte(d), u"Œil-de-bœuf"_s);
        type(d, u"Text1"_s, u"O'Brien"_s);
        press(d, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(liste(d), (QStringList{u"Grossistes"_s, u"O'Brien"_s, u"Restaurants"_s}));
        press(d, Qt::Key_F2);
        type(d, u"Text1"_s, u"perdu"_s);
        press(d, Qt::Key_Escape);
        EXPECT_EQ(texte(d), u"O'Brien"_s);
        click(d, u"Image1(3)"_s);
    });
    EXPECT_EQ(choisie, (Categorie{3, u"O'Brien"_s}));
}

TEST_F(Familles_Test, une_suppression_se_refuse_se_confirme_et_vide_la_liste)
{
    t.exercice.Base().execute(u"insert into Clients (famille) values (2)"_s);
    const auto choisie = choisir(2, [this](Familles& d) {
        ExpectMessages messages{{u"Suppression refusée"_s, u"ATTENTION"_s},
                                {u"Confirmer la suppression ?"_s, u"Attention"_s, Answer::No},
                                {u"Confirmer la suppression ?"_s, u"Attention"_s, Answer::Yes},
                                {u"Confirmer la suppression ?"_s, u"Attention"_s, Answer::Yes},
                                {u"Un libellé minimum est requis"_s, u"TALOR"_s}};
        press(d, Qt::Key_Delete);
        press(d, Qt::Key_Down);
        press(d, Qt::Key_Delete);
        EXPECT_EQ(liste(d).size(), 2);
        press(d, Qt::Key_Delete);
        EXPECT_EQ(liste(d), QStringList{u"Grossistes"_s});
        t.exercice.Base().execute(u"Delete * from Clients"_s);
        press(d, Qt::Key_Delete);
        EXPECT_EQ(liste(d), QStringList()) << "with its last client gone";
        press(d, Qt::Key_Delete);
        press(d, Qt::Key_Escape);
    });
    EXPECT_EQ(choisie, std::nullopt);
}

TEST_F(Familles_Test, quitter_avec_un_autre_texte_demande_et_un_non_garde_le_dialogue)
{
    const auto choisie = choisir(2, [](Familles& d) {
        ExpectMessages messages{{question + u"Grossistes"_s, u"Confirmation"_s, Answer::No},
                                {u"Veuillez Ajouter la nouvelle famille"_s, u"TALOR"_s},
                                {question + u"Grossistes"_s, u"Confirmation"_s, Answer::Yes}};
        type(d, u"Text1"_s, u"Mareyeurs"_s);
        EXPECT_EQ(titre(d), u"Nouvelle Famille"_s) << "a text typed over the selection begins a new category";
        click(d, u"Image1(3)"_s);
        EXPECT_TRUE(d.isVisible());
        EXPECT_EQ(texte(d), u"Mareyeurs"_s);
        click(d, u"Image1(3)"_s);
    });
    EXPECT_EQ(choisie, (Categorie{2, u"Grossistes"_s}));
    EXPECT_EQ(t.exercice.Familles_C.recordCount(), 2);
}

TEST(F_Classm, rend_l_ordre_choisi_ou_rien)
{
    const struct
    {
        QList<Qt::Key> touches;
        std::optional<Classement> choisi;
    } cas[] = {
        {{Qt::Key_Return}, Classement::OrdreManuel},
        {{Qt::Key_Down, Qt::Key_Return}, Classement::OrdreAlphabetique},
        {{Qt::Key_Down, Qt::Key_Escape}, std::nullopt},
    };
    for (const auto& c : cas) {
        const auto ouvert = whenOpened<F_Classm>([&](F_Classm& d) {
            for (const Qt::Key touche : c.touches)
                press(d, touche);
        });
        EXPECT_EQ(F_Classm::demander(nullptr), c.choisi);
    }
    EXPECT_EQ(static_cast<int>(Classement::OrdreManuel), 1);
    EXPECT_EQ(static_cast<int>(Classement::OrdreAlphabetique), 2);
}
