#include "shell/dossier_donnees.h"

#include "tests/support/print.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

/// A person before the choice, with the answers that he will give.
class ChoixDossier : public testing::Test
{
protected:
    ChoixDossier()
    {
        QDir(racine.path()).mkpath(u"livres"_s);
        for (const QString& nom : {u"TAL00.mdb"_s, u"Facture.RPT"_s}) {
            QFile fichier(racine.filePath(u"livres/"_s + nom));
            EXPECT_TRUE(fichier.open(QIODevice::WriteOnly));
        }
        qputenv("HOME", QFile::encodeName(racine.filePath(u"maison"_s)));
        QDir(racine.path()).mkpath(u"maison"_s);
    }
    ~ChoixDossier() override { qputenv("HOME", m_maison); }

    QString demarrer()
    {
        montres.clear();
        departs.clear();
        questions.clear();
        return choisirDossier(paquet, {[this](const Refus& question) {
                                           questions << question.texte;
                                           return veutLePropose;
                                       },
                                       [this](const Refus& refus) { montres << refus.texte; },
                                       [this](const QString& depart) {
                                           departs << depart;
                                           return reponses.isEmpty() ? QString() : reponses.takeFirst();
                                       }});
    }
    bool pose(const QString& dossier) const { return QFile::exists(dossier + u"/Facture.RPT"_s); }

    QTemporaryDir racine;
    Paquet paquet{racine.filePath(u"livres"_s), racine.filePath(u"reglages/dossier.txt"_s)};
    QString propose = racine.filePath(u"maison/TALOR"_s);
    QString ailleurs = racine.filePath(u"disque/mandat"_s);
    bool veutLePropose = true;
    QStringList reponses, questions, montres, departs;

private:
    QByteArray m_maison = qgetenv("HOME");
};

} // namespace

TEST_F(ChoixDossier, le_dossier_propose_est_pris_d_un_oui_et_n_est_plus_demande)
{
    EXPECT_EQ(demarrer(), propose);
    ASSERT_EQ(questions.size(), 1);
    EXPECT_TRUE(questions[0].contains(propose));
    EXPECT_TRUE(pose(propose));

    EXPECT_EQ(demarrer(), propose);
    EXPECT_TRUE(questions.isEmpty() && departs.isEmpty() && montres.isEmpty());
}

TEST_F(ChoixDossier, un_autre_dossier_est_choisi_et_retenu)
{
    veutLePropose = false;
    reponses = {ailleurs};
    EXPECT_EQ(demarrer(), ailleurs);
    EXPECT_EQ(departs, QStringList{racine.filePath(u"maison"_s)});
    EXPECT_FALSE(QFile::exists(propose));
    EXPECT_EQ(demarrer(), ailleurs);
}

TEST_F(ChoixDossier, renoncer_ne_laisse_rien_et_la_question_revient)
{
    veutLePropose = false;
    EXPECT_EQ(demarrer(), QString());
    EXPECT_FALSE(QFile::exists(propose));
    EXPECT_EQ(demarrer(), QString());
    EXPECT_EQ(questions.size(), 1);
}

TEST_F(ChoixDossier, un_dossier_refuse_est_dit_et_un_autre_demande)
{
    veutLePropose = false;
    const QString impossible = racine.filePath(u"livres/TAL00.mdb/dedans"_s);
    reponses = {impossible, ailleurs};
    EXPECT_EQ(demarrer(), ailleurs);
    ASSERT_EQ(montres.size(), 1);
    EXPECT_TRUE(montres[0].contains(impossible));
}

TEST_F(ChoixDossier, un_dossier_disparu_est_nomme_et_jamais_refait_en_silence)
{
    veutLePropose = false;
    reponses = {ailleurs};
    demarrer();
    ASSERT_TRUE(QDir().rename(ailleurs, racine.filePath(u"disque/autre nom"_s)));

    EXPECT_EQ(demarrer(), QString()); // the person looks for the disk first
    ASSERT_EQ(montres.size(), 1);
    EXPECT_TRUE(montres[0].contains(ailleurs));
    EXPECT_EQ(departs, QStringList{racine.filePath(u"disque"_s)});
    EXPECT_FALSE(QFile::exists(ailleurs));
    EXPECT_EQ(paquet.dossierRetenu(), ailleurs);

    reponses = {racine.filePath(u"disque/autre nom"_s)};
    EXPECT_EQ(demarrer(), racine.filePath(u"disque/autre nom"_s));
    EXPECT_EQ(demarrer(), racine.filePath(u"disque/autre nom"_s));
    EXPECT_TRUE(montres.isEmpty());
}
