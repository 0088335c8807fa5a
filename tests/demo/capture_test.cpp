#include "demo/capture.h"

#include "tests/support/print.h"

#include <QDialog>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace talor::demo;

namespace {

/// A dialog of a given width with a field and a button that opens a smaller one over it. Leaving it is refused at
/// first.
class Dialogue : public QDialog
{
public:
    explicit Dialogue(int largeur)
        : champ(new QLineEdit)
    {
        setObjectName(u"D%1"_s.arg(largeur));
        setFixedSize(largeur, 80);
        auto* colonne = new QVBoxLayout(this);
        auto* bouton = new QPushButton(u"&Zoom"_s);
        bouton->setAutoDefault(false);
        colonne->addWidget(champ);
        colonne->addWidget(bouton);
        connect(bouton, &QPushButton::clicked, this, [largeur] { Dialogue(largeur / 2).exec(); });
    }

    void reject() override
    {
        if (++sorties > 1)
            QDialog::reject();
    }

    QLineEdit* champ;
    int sorties = 0;
};

class CaptureTest : public testing::Test
{
protected:
    CaptureTest()
    {
        fenetre.setObjectName(u"Form1"_s);
        fenetre.resize(640, 480);
        fenetre.show();
    }

    QImage image(const QString& nom) const { return QImage(dossier.filePath(nom + u".png"_s)); }

    QTemporaryDir dossier;
    QWidget fenetre;
    Photographe photographe{fenetre, QDir(dossier.path())};
};

} // namespace

TEST_F(CaptureTest, prend_la_fenetre_de_devant_apres_les_touches_et_ferme_tout)
{
    QString saisi;
    const auto ouvrir = [&] {
        Dialogue dialogue(400);
        dialogue.exec();
        saisi = dialogue.champ->text();
    };
    EXPECT_EQ(photographe.prendre({u"D400-un"_s, ouvrir, {u"Œil 12"_s, u"<Backspace>"_s}}), std::nullopt);
    EXPECT_EQ(image(u"D400-un"_s).width(), 400);
    EXPECT_EQ(saisi, u"Œil 1"_s);

    EXPECT_EQ(photographe.prendre({u"D200"_s, ouvrir, {u"<Tab>"_s, u"<Space>"_s}}), std::nullopt);
    EXPECT_EQ(image(u"D200"_s).width(), 200);

    EXPECT_EQ(photographe.prendre({u"Form1"_s, [] {}, {}, false}), std::nullopt);
    EXPECT_EQ(image(u"Form1"_s).size(), QSize(640, 480));
}

TEST_F(CaptureTest, dit_quel_ecran_ne_s_est_pas_ouvert)
{
    const std::optional<QString> faute = photographe.prendre({u"absent"_s, [] {}});
    ASSERT_TRUE(faute);
    EXPECT_EQ(*faute, u"l'écran « absent » ne s'est pas ouvert"_s);
    // And the next one is taken as if nothing had been.
    EXPECT_EQ(photographe.prendre({u"D300"_s, [] { Dialogue(300).exec(); }}), std::nullopt);
    EXPECT_EQ(image(u"D300"_s).width(), 300);
}

TEST_F(CaptureTest, dit_quelle_image_n_a_pu_etre_ecrite)
{
    Photographe ailleurs(fenetre, QDir(dossier.filePath(u"nulle/part"_s)));
    const std::optional<QString> faute = ailleurs.prendre({u"D300-perdue"_s, [] { Dialogue(300).exec(); }});
    ASSERT_TRUE(faute);
    EXPECT_TRUE(faute->contains(u"perdue.png"_s));
}

TEST_F(CaptureTest, ne_prend_pas_une_fenetre_pour_une_autre)
{
    const std::optional<QString> faute = photographe.prendre({u"D400"_s, [] { Dialogue(300).exec(); }});
    ASSERT_TRUE(faute);
    EXPECT_TRUE(faute->contains(u"« D300 »"_s)) << faute->toStdString();
    EXPECT_FALSE(QFile::exists(dossier.filePath(u"D400.png"_s)));
}
