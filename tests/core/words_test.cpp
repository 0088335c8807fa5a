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
    const char* mots;
};

} // namespace

TEST(MontantEnLettres, suit_ses_regles_de_zero_aux_centaines_de_millions)
{
    const Cas cas[] = {
        {0, "ZERO DINAR"},
        {1, "UN DINAR"},
        {2, "DEUX DINARS"},
        {9, "NEUF DINARS"},
        {10, "DIX DINARS"},
        {11, "ONZE DINARS"},
        {16, "SEIZE DINARS"},
        {17, "DIX-SEPT DINARS"},
        {19, "DIX-NEUF DINARS"},
        {20, "VINGT  DINARS"},
        {21, "VINGT ET UN DINARS"},
        {22, "VINGT DEUX DINARS"},
        {30, "TRENTE  DINARS"},
        {41, "QUARANTE ET UN DINARS"},
        {55, "CINQUANTE CINQ DINARS"},
        {60, "SOIXANTE  DINARS"},
        {61, "SOIXANTE ET UN DINARS"},
        {69, "SOIXANTE NEUF DINARS"},
        {70, "SOIXANTE DIX DINARS"},
        {71, "SOIXANTE ET ONZE DINARS"},
        {72, "SOIXANTE DOUZE DINARS"},
        {79, "SOIXANTE DIX-NEUF DINARS"},
        {80, "QUATRE-VINGTS DINARS"},
        {81, "QUATRE-VINGT ET UN DINARS"},
        {82, "QUATRE-VINGT DEUX DINARS"},
        {90, "QUATRE-VINGT DIX DINARS"},
        {91, "QUATRE-VINGT ET ONZE DINARS"},
        {99, "QUATRE-VINGT DIX-NEUF DINARS"},
        {100, "CENT DINARS"},
        {101, "CENT UN DINARS"},
        {111, "CENT ONZE DINARS"},
        {180, "CENT QUATRE-VINGTS DINARS"},
        {200, "DEUX CENTS DINARS"},
        {201, "DEUX CENT UN DINARS"},
        {280, "DEUX CENT QUATRE-VINGTS DINARS"},
        {345, "TROIS CENT QUARANTE CINQ DINARS"},
        {900, "NEUF CENTS DINARS"},
        {999, "NEUF CENT QUATRE-VINGT DIX-NEUF DINARS"},
        {1000, "MILLE DINAR"},
        {1001, "MILLE UN DINAR"},
        {1002, "MILLE DEUX DINARS"},
        {1500, "MILLE CINQ CENTS DINARS"},
        {1999, "MILLE NEUF CENT QUATRE-VINGT DIX-NEUF DINARS"},
        {2000, "DEUX MILLE DINAR"},
        {2001, "DEUX MILLE UN DINAR"},
        {6200, "SIX MILLE DEUX CENTS DINARS"},
        {10000, "DIX MILLE DINAR"},
        {21000, "VINGT ET UN MILLE DINAR"},
        {80000, "QUATRE-VINGTS MILLE DINAR"},
        {100000, "CENT MILLE DINAR"},
        {200000, "DEUX CENTS MILLE DINAR"},
        {999999, "NEUF CENT QUATRE-VINGT DIX-NEUF MILLE NEUF CENT QUATRE-VINGT DIX-NEUF DINARS"},
        {1000000, "UN MILLION DINAR"},
        {2000000, "DEUX MILLIONS DINAR"},
        {1000001, "UN MILLION UN DINAR"},
        {1001000, "UN MILLION MILLE DINAR"},
        {80000000, "QUATRE-VINGTS MILLIONS DINAR"},
        {999999999.99, "NEUF CENT QUATRE-VINGT DIX-NEUF MILLIONS NEUF CENT QUATRE-VINGT DIX-NEUF MILLE NEUF CENT "
                       "QUATRE-VINGT DIX-NEUF DINARS ET QUATRE-VINGT DIX-NEUF CENTIMES"},
        {0.5, "ZERO DINAR ET CINQUANTE  CENTIMES"},
        {0.01, "ZERO DINAR ET UN CENTIME"},
        {0.009, "ZERO DINAR"},
        {12.50, "DOUZE DINARS ET CINQUANTE  CENTIMES"},
        {1.99, "UN DINAR ET QUATRE-VINGT DIX-NEUF CENTIMES"},
        {1234.56, "MILLE DEUX CENT TRENTE QUATRE DINARS ET CINQUANTE SIX CENTIMES"},
        {99.80, "QUATRE-VINGT DIX-NEUF DINARS ET QUATRE-VINGTS CENTIMES"},
        {-3, "MOINS TROIS DINARS"},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(motsNus(c.montant), QString::fromUtf8(c.mots)) << c.montant;
}

TEST(MontantEnLettres, chaque_centime_se_lit_comme_il_est_ecrit)
{
    for (int centimes = 1; centimes < 100; ++centimes) {
        qint64 n = centimes;
        const QString attendu = EntierEnLettres(n).trimmed();
        const QString lu = motsNus((u"7."_s + QString::number(centimes).rightJustified(2, u'0')).toDouble());
        EXPECT_TRUE(lu.startsWith(u"SEPT DINARS ET "_s + attendu)) << lu.toStdString();
    }
}

// The S of MILLION and MILLIARD looks at the last hundreds or tens digit written, not at the whole group.
TEST(MontantEnLettres, le_pluriel_de_million_regarde_le_dernier_chiffre_ecrit)
{
    const Cas cas[] = {
        {1e6, "UN MILLION DINAR"},
        {21e6, "VINGT ET UN MILLIONS DINAR"},
        {100e6, "CENT MILLION DINAR"},
        {101e6, "CENT UN MILLION DINAR"},
        {111e6, "CENT ONZE MILLION DINAR"},
        {120e6, "CENT VINGT  MILLIONS DINAR"},
        {160e6, "CENT SOIXANTE  MILLION DINAR"},
        {200e6, "DEUX CENTS MILLIONS DINAR"},
        {2e9, "DEUX MILLIARDS DINAR"},
        {101e9, "CENT UN MILLIARD DINAR"},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(motsNus(c.montant), QString::fromUtf8(c.mots)) << c.montant;
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
