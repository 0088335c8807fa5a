#include "install/guide.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

/// A guide with so many paragraphs before what is looked at that this comes to stand at every height of a page.
class GuideEssai : public testing::Test
{
protected:
    std::unique_ptr<Guide> guide(int avant, const QString& texte)
    {
        QString markdown = u"# Guide\n\nPour essai.\n\n## Début\n\n"_s;
        for (int i = 0; i < avant; ++i)
            markdown += u"Paragraphe.\n\n"_s;
        auto guide = std::make_unique<Guide>(markdown + texte, dossier.path());
        EXPECT_TRUE(
            guide->ecrire(dossier.filePath(u"g.pdf"_s), QStringLiteral(TALOR_SOURCE_DIR "/assets/talor.svg"), u"1"_s));
        return guide;
    }

    QTemporaryDir dossier;
};

constexpr int premierEssai = 20;
constexpr int dernierEssai = 34;

} // namespace

TEST_F(GuideEssai, un_titre_reste_avec_ce_qui_le_suit_et_une_table_d_un_seul_tenant)
{
    QImage(1280, 500, QImage::Format_RGB32).save(dossier.filePath(u"i.png"_s));
    bool changeDePage = false;
    for (int avant = premierEssai; avant < dernierEssai; ++avant) {
        const auto texte = guide(avant, u"## Titre\n\n### Sous-titre\n\nPhrase.\n\n## Table\n\n"
                                        "| a | b |\n|---|---|\n| un | 1 |\n| deux | 2 |\n| trois | 3 |\n\n"
                                        "Voici :\n\n![Légende](i.png)\n"_s);
        EXPECT_EQ(texte->pageDuTexte(u"Titre"), texte->pageDuTexte(u"Phrase")) << avant;
        EXPECT_EQ(texte->pageDuTexte(u"Sous-titre"), texte->pageDuTexte(u"Phrase")) << avant;
        EXPECT_EQ(texte->pageDuTexte(u"Table"), texte->pageDuTexte(u"un")) << avant;
        EXPECT_EQ(texte->pageDuTexte(u"un"), texte->pageDuTexte(u"trois")) << avant;
        EXPECT_EQ(texte->pageDuTexte(u"Voici"), texte->pageDuTexte(u"Légende")) << avant;
        changeDePage = changeDePage || texte->pageDuTexte(u"Titre") != texte->pageDuTexte(u"Légende");
    }
    EXPECT_TRUE(changeDePage) << "the paragraphs before no longer reach the foot of the page";
}

TEST_F(GuideEssai, une_table_plus_haute_que_la_page_ne_fait_pas_tourner_en_rond)
{
    QString table = u"Ce qui suit :\n\n| a | b |\n|---|---|\n"_s;
    for (int i = 0; i < 120; ++i)
        table += u"| %1 | x |\n"_s.arg(i);
    const auto texte = guide(premierEssai, table + u"\nFin."_s);
    EXPECT_GT(texte->pageDuTexte(u"Fin"), texte->pageDuTexte(u"Ce qui") + 1);
}

TEST_F(GuideEssai, une_image_absente_est_nommee)
{
    const Guide texte(u"# Guide\n\nx\n\n## A\n\n![là](images/rien.png)\n"_s, dossier.path());
    EXPECT_EQ(texte.imagesAbsentes(), QStringList{u"images/rien.png"_s});
}
