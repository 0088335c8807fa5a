#include "core/words.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

/// The words without their frame: blanks folded where the frame's own padding is not the point.
QString motsNus(double montant)
{
    QString texte;
    for (const QString& ligne : MontantEnLettres(montant)) {
        QString nue = ligne;
        nue.remove(0, 4);
        while (nue.endsWith(u'*'))
            nue.chop(1);
        texte += (texte.isEmpty() ? u""_s : u" "_s) + nue.trimmed();
    }
    return texte;
}

struct Cas
{
    double montant;
    const char16_t* mots;
};

} // namespace

TEST(MontantEnLettres, suit_ses_regles_de_zero_aux_centaines_de_millions)
{
    const Cas cas[] = {
        {0, u"ZERO DINAR"},
        {1, u"UN DINAR"},
        {2, u"DEUX DINARS"},
        {9, u"NEUF DINARS"},
        {10, u"DIX DINARS"},
        {11, u"ONZE DINARS"},
        {16, u"SEIZE DINARS"},
        {17, u"DIX-SEPT DINARS"},
        {19, u"DIX-NEUF DINARS"},
        {20, u"VINGT  DINARS"},
        {21, u"VINGT ET UN DINARS"},
        {22, u"VINGT DEUX DINARS"},
        {30, u"TRENTE  DINARS"},
        {41, u"QUARANTE ET UN DINARS"},
        {55, u"CINQUANTE CINQ DINARS"},
        {60, u"SOIXANTE  DINARS"},
        {61, u"SOIXANTE ET UN DINARS"},
        {69, u"SOIXANTE NEUF DINARS"},
        {70, u"SOIXANTE DIX DINARS"},
        {71, u"SOIXANTE ET ONZE DINARS"},
        {72, u"SOIXANTE DOUZE DINARS"},
        {79, u"SOIXANTE DIX-NEUF DINARS"},
        {80, u"QUATRE-VINGTS DINARS"},
        {81, u"QUATRE-VINGT ET UN DINARS"},
        {82, u"QUATRE-VINGT DEUX DINARS"},
        {90, u"QUATRE-VINGT DIX DINARS"},
        {91, u"QUATRE-VINGT ET ONZE DINARS"},
        {99, u"QUATRE-VINGT DIX-NEUF DINARS"},
        {100, u"CENT DINARS"},
        {101, u"CENT UN DINARS"},
        {111, u"CENT ONZE DINARS"},
        {180, u"CENT QUATRE-VINGTS DINARS"},
        {200, u"DEUX CENTS DINARS"},
        {201, u"DEUX CENT UN DINARS"},
        {280, u"DEUX CENT QUATRE-VINGTS DINARS"},
        {345, u"TROIS CENT QUARANTE CINQ DINARS"},
        {900, u"NEUF CENTS DINARS"},
        {999, u"NEUF CENT QUATRE-VINGT DIX-NEUF DINARS"},
        {1000, u"MILLE DINAR"},
        {1001, u"MILLE UN DINAR"},
        {1002, u"MILLE DEUX DINARS"},
        {1500, u"MILLE CINQ CENTS DINARS"},
        {1999, u"MILLE NEUF CENT QUATRE-VINGT DIX-NEUF DINARS"},
        {2000, u"DEUX MILLE DINAR"},
        {2001, u"DEUX MILLE UN DINAR"},
        {6200, u"SIX MILLE DEUX CENTS DINARS"},
        {10000, u"DIX MILLE DINAR"},
        {21000, u"VINGT ET UN MILLE DINAR"},
        {80000, u"QUATRE-VINGTS MILLE DINAR"},
        {100000, u"CENT MILLE DINAR"},
        {200000, u"DEUX CENTS MILLE DINAR"},
        {999999, u"NEUF CENT QUATRE-VINGT DIX-NEUF MILLE NEUF CENT QUATRE-VINGT DIX-NEUF DINARS"},
        {1000000, u"UN MILLION DINAR"},
        {2000000, u"DEUX MILLIONS DINAR"},
        {1000001, u"UN MILLION UN DINAR"},
        {1001000, u"UN MILLION MILLE DINAR"},
        {80000000, u"QUATRE-VINGTS MILLIONS DINAR"},
        {999999999.99, u"NEUF CENT QUATRE-VINGT DIX-NEUF MILLIONS NEUF CENT QUATRE-VINGT DIX-NEUF MILLE NEUF CENT "
                       u"QUATRE-VINGT DIX-NEUF DINARS ET QUATRE-VINGT DIX-NEUF CENTIMES"},
        {0.5, u"ZERO DINAR ET CINQUANTE  CENTIMES"},
        {0.01, u"ZERO DINAR ET UN CENTIME"},
        {0.009, u"ZERO DINAR"},
        {12.50, u"DOUZE DINARS ET CINQUANTE  CENTIMES"},
        {1.99, u"UN DINAR ET QUATRE-VINGT DIX-NEUF CENTIMES"},
        {1234.56, u"MILLE DEUX CENT TRENTE QUATRE DINARS ET CINQUANTE SIX CENTIMES"},
        {99.80, u"QUATRE-VINGT DIX-NEUF DINARS ET QUATRE-VINGTS CENTIMES"},
        {-3, u"MOINS TROIS DINARS"},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(motsNus(c.montant), QString::fromUtf16(c.mots)) << c.montant;
}

TEST(MontantEnLettres, chaque_centime_se_lit_comme_il_est_ecrit)
{
    for (int centimes = 1; centimes < 100; ++centimes) {
        qint64 n = centimes;
        const QString attendu = EntierEnLettres(n).trimmed();
        const QString lu = motsNus(QString(u"7."_s + QString::number(centimes).rightJustified(2, u'0')).toDouble());
        EXPECT_TRUE(lu.startsWith(u"SEPT DINARS ET "_s + attendu)) << lu.toStdString();
    }
}

// The S of MILLION and MILLIARD looks at the last hundreds or tens digit written, not at the whole group.
TEST(MontantEnLettres, le_pluriel_de_million_regarde_le_dernier_chiffre_ecrit)
{
    const Cas cas[] = {
        {1e6, u"UN MILLION DINAR"},
        {21e6, u"VINGT ET UN MILLIONS DINAR"},
        {100e6, u"CENT MILLION DINAR"},
        {101e6, u"CENT UN MILLION DINAR"},
        {111e6, u"CENT ONZE MILLION DINAR"},
        {120e6, u"CENT VINGT  MILLIONS DINAR"},
        {160e6, u"CENT SOIXANTE  MILLION DINAR"},
        {200e6, u"DEUX CENTS MILLIONS DINAR"},
        {2e9, u"DEUX MILLIARDS DINAR"},
        {101e9, u"CENT UN MILLIARD DINAR"},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(motsNus(c.montant), QString::fromUtf16(c.mots)) << c.montant;
}

TEST(MontantEnLettres, le_pluriel_de_dinar_regarde_les_trois_derniers_chiffres)
{
    EXPECT_TRUE(motsNus(5001).endsWith(u"DINAR"_s));
    EXPECT_TRUE(motsNus(5000).endsWith(u"DINAR"_s));
    EXPECT_TRUE(motsNus(5002).endsWith(u"DINARS"_s));
}

TEST(EncadrerLignes, chaque_ligne_a_son_cadre_et_rien_ne_se_perd_a_la_coupe)
{
    EXPECT_EQ(EncadrerLignes(u"UN DINAR"_s), QStringList{u"*** UN DINAR "_s.leftJustified(68, u'*')});

    const QStringList lignes = MontantEnLettres(777777777.77);
    ASSERT_GT(lignes.size(), 1);
    QStringList mots;
    for (const QString& ligne : lignes) {
        EXPECT_EQ(ligne.size(), 68);
        EXPECT_TRUE(ligne.startsWith(u"*** "_s));
        QString nue = ligne.mid(4);
        nue.remove(u'*');
        EXPECT_LE(nue.trimmed().size(), 60);
        mots += nue.split(u' ', Qt::SkipEmptyParts);
    }
    qint64 n = 777777777;
    EXPECT_TRUE(mots.join(u' ').startsWith(EntierEnLettres(n).simplified()));
    EXPECT_EQ(mots.last(), u"CENTIMES"_s);

    // A line of exactly 60 characters is not cut; one of 61 is, at its last blank.
    EXPECT_EQ(EncadrerLignes(QString(60, u'A')).size(), 1);
    EXPECT_EQ(EncadrerLignes(QString(50, u'A') + u' ' + QString(10, u'B')).size(), 2);
}
