#include "core/report.h"
#include "core/report_texts.h"
#include "platform/reports/store_source.h"
#include "tests/support/exemples.h"
#include "tests/support/exercice_temporaire.h"
#include "tests/support/print.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

const QDir modeles(QStringLiteral(TALOR_SOURCE_DIR "/reports"));

/// Every text of the document, in the order in which it is drawn.
QString textes(const reports::Document& document)
{
    QString tout;
    for (const reports::Page& page : document.pages())
        for (const reports::TextRun& texte : page.texts)
            tout += texte.text + u'\n';
    return tout;
}

void livrer(const ExerciceTemporaire& t, const QString& modele)
{
    ASSERT_TRUE(QFile::copy(modeles.filePath(modele), t.chemin(modele)));
}

} // namespace

TEST(Etats, chaque_champ_de_chaque_modele_est_dans_l_exercice)
{
    const QStringList fichiers = modeles.entryList({u"*.RPT"_s});
    ASSERT_GE(fichiers.size(), 5);
    for (const QString& fichier : fichiers) {
        const auto modele = reports::Template::load(modeles.filePath(fichier));
        EXPECT_EQ(reports::unknownFields(modele.fields(), schema()), QStringList()) << fichier.toStdString();
    }
}

TEST(Etats, un_modele_absent_ou_abime_est_nomme_et_les_textes_restent)
{
    ExerciceTemporaire t;
    const Etat etat{u"L_CLIENT.RPT"_s, {}, {}, [](Exercice& e) { ecrireTextes(e, {{"ch4", u"Nouveau"_s}}); }};
    ecrireTextes(t.exercice, {{"ch4", u"Ancien"_s}});
    EXPECT_EQ(ComposerEtat(t.exercice, etat).refus().texte, u"Fichier 'L_CLIENT.RPT' absent"_s);
    EXPECT_EQ(t.exercice.textes.text("ch4"), u"Ancien"_s);

    QFile modele(t.chemin(u"L_CLIENT.RPT"_s));
    ASSERT_TRUE(modele.open(QIODevice::WriteOnly));
    modele.write("<report>\n<page>\n");
    modele.close();
    EXPECT_TRUE(ComposerEtat(t.exercice, etat).refus().texte.contains(u"L_CLIENT.RPT"_s));
}

TEST(Etats, les_noms_difficiles_s_impriment_comme_ils_sont_tapes)
{
    ExerciceTemporaire t;
    livrer(t, u"L_ARMATR.RPT"_s);
    const QString quatreVingts = QString(u"BENABDERRAHMANE-"_s).repeated(5);
    const QStringList noms = {u"O'Brien"_s, u"Œil-de-bœuf"_s, u"بن عيسى"_s, u"Leïla Ÿ"_s};
    Exemples exemples(t.exercice);
    for (const QString& nom : noms)
        exemples.armateur(nom);
    exemples.armateur(quatreVingts);

    const auto document = ComposerEtat(t.exercice, {u"L_ARMATR.RPT"_s});
    ASSERT_TRUE(document) << document.refus().texte.toStdString();
    const QString imprime = textes(*document);
    for (const QString& nom : noms)
        EXPECT_TRUE(imprime.contains(nom)) << nom.toStdString();
    // A long name takes several lines; nothing of it is left out.
    EXPECT_TRUE(QString(imprime).remove(u'\n').contains(quatreVingts));
    EXPECT_TRUE(imprime.contains(u"Mandataire Essai"_s));
    EXPECT_EQ(t.exercice.textes.text("ch1"), u"Mandataire Essai"_s);
}
