#include "shell/startup.h"

#include "lifecycle/premier_exercice.h"
#include "tests/support/dossier_programme.h"
#include "tests/support/print.h"

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

/// The screen of a start: what it showed, and the first year that is typed ("" declines).
struct EcranEssai
{
    explicit EcranEssai(const DossierProgramme& dossier, const QString& annee = {})
        : installation(dossier.installation())
        , anneeTapee(annee)
    {}

    Demarrage demarrer()
    {
        return talor::demarrer(installation, {[this] { ++controlesImprimante; },
                                              [this](const Refus& refus) { montres.append(refus.texte); },
                                              [this](const Configuration& configuration) {
                                                  ++questions;
                                                  return repondre(configuration);
                                              }});
    }

    std::optional<PointeurAnnee> repondre(const Configuration& configuration) const
    {
        if (anneeTapee.isEmpty())
            return std::nullopt;
        return *ouvrirPremierExercice(installation, configuration.CodeFichier, anneeTapee);
    }

    Installation installation;
    QString anneeTapee;
    int controlesImprimante = 0;
    int questions = 0;
    QStringList montres;
};

/// The administrator may write everywhere: for a while the process is nobody in particular.
class SansPrivilege
{
public:
    SansPrivilege()
        : m_quittes(geteuid() == 0 && setresuid(65534, 65534, 0) == 0)
    {}
    ~SansPrivilege()
    {
        if (m_quittes && setresuid(0, 0, 0) != 0)
            qFatal("the process has lost its privileges");
    }

    /// False where the system knows nobody but the administrator.
    static bool possible()
    {
        const SansPrivilege essai;
        return geteuid() != 0;
    }

private:
    bool m_quittes;
};

void poserPointeur(const DossierProgramme& dossier, qint16 annee, qint16 clotures)
{
    ASSERT_FALSE((PointeurAnnee{annee, clotures}.ecrire(dossier.chemin(u"TLR.INI"_s))));
}

} // namespace

TEST(Demarrage, un_fichier_absent_arrete_avec_son_message_avant_toute_question)
{
    const struct
    {
        QString fichier;
        QString message;
        bool bip;
    } cas[] = {{u"system.mdw"_s, u"Un fichier system est absent"_s, false},
               {u"TAL00.mdb"_s, u"Fichier système absent"_s, true},
               {u"TAL2_CFG.CFG"_s, u"Fichier système absent"_s, true}};
    for (const auto& c : cas) {
        DossierProgramme dossier;
        dossier.supprimer(c.fichier);
        EcranEssai ecran(dossier, u"2026"_s);
        const Demarrage d = ecran.demarrer();
        EXPECT_EQ(d.issue, Demarrage::Issue::Arrete);
        ASSERT_TRUE(d.message);
        EXPECT_EQ(d.message->texte, c.message);
        EXPECT_EQ(d.bip, c.bip);
        EXPECT_EQ(ecran.questions + ecran.controlesImprimante, 0);
        EXPECT_FALSE(dossier.contient(u"Archives"_s));
    }
}

TEST(Demarrage, une_configuration_etrangere_est_nommee)
{
    DossierProgramme dossier;
    dossier.ecrire(u"TAL2_CFG.CFG"_s, "bonjour");
    const Demarrage d = EcranEssai(dossier, u"2026"_s).demarrer();
    EXPECT_EQ(d.issue, Demarrage::Issue::Arrete);
    ASSERT_TRUE(d.message);
    EXPECT_TRUE(d.message->texte.contains(u"TAL2_CFG.CFG"_s));
}

TEST(Demarrage, la_premiere_fois_l_annee_demandee_fait_son_fichier_et_la_seconde_fois_elle_est_reprise)
{
    DossierProgramme dossier;
    {
        EcranEssai ecran(dossier, u"2026"_s);
        const Demarrage d = ecran.demarrer();
        ASSERT_EQ(d.issue, Demarrage::Issue::Ouvert);
        EXPECT_EQ(ecran.questions, 1);
        EXPECT_EQ(ecran.controlesImprimante, 1);
        EXPECT_EQ(d.exercice->Annee, 2026);
        EXPECT_EQ(d.exercice->CheminBase, dossier.chemin(u"TAL2026.mdb"_s));
        EXPECT_EQ(d.exercice->Commission, 15);
        for (const QString& cree : {u"Archives"_s, u"Photos"_s, u"Poissons"_s, u"TAL2026.mdb"_s})
            EXPECT_TRUE(dossier.contient(cree)) << cree.toStdString();
        EXPECT_EQ(dossier.lire(u"TLR.INI"_s), QByteArray("\xEA\x07\x00\x00", 4));
        d.exercice->Poissons.addNew();
        d.exercice->Poissons.set("denom", u"Sardine"_s);
        d.exercice->Poissons.update();
    }
    EcranEssai ecran(dossier);
    const Demarrage d = ecran.demarrer();
    ASSERT_EQ(d.issue, Demarrage::Issue::Ouvert);
    EXPECT_EQ(ecran.questions, 0);
    EXPECT_EQ(d.exercice->Poissons.recordCount(), 1);
}

TEST(Demarrage, refuser_le_premier_exercice_arrete_sans_rien_laisser)
{
    for (const QByteArray& pointeur : {QByteArray(), QByteArray("\xEA\x07", 2), QByteArray(4, '\0')}) {
        DossierProgramme dossier;
        dossier.ecrire(u"TLR.INI"_s, pointeur);
        EcranEssai ecran(dossier);
        const Demarrage d = ecran.demarrer();
        EXPECT_EQ(d.issue, Demarrage::Issue::Arrete);
        EXPECT_FALSE(d.message);
        EXPECT_EQ(ecran.questions, 1);
        EXPECT_TRUE(ecran.montres.isEmpty());
        EXPECT_FALSE(dossier.contient(u"TAL2026.mdb"_s));
    }
}

TEST(Demarrage, le_pointeur_et_ses_clotures_donnent_l_annee_et_son_fichier_est_copie_s_il_manque)
{
    DossierProgramme dossier;
    poserPointeur(dossier, 2024, 2);
    const Demarrage d = EcranEssai(dossier).demarrer();
    ASSERT_EQ(d.issue, Demarrage::Issue::Ouvert);
    EXPECT_EQ(d.exercice->Annee, 2026);
    EXPECT_TRUE(d.exercice->estCourant());
    EXPECT_TRUE(dossier.contient(u"TAL2026.mdb"_s));
    EXPECT_FALSE(dossier.contient(u"TAL2024.mdb"_s));
}

TEST(Demarrage, un_pointeur_insense_est_nomme_et_l_exercice_initial_demande_de_nouveau)
{
    for (const PointeurAnnee insense :
         {PointeurAnnee{32767, 32767}, PointeurAnnee{-5, 0}, PointeurAnnee{1993, 0}, PointeurAnnee{2020, -30}}) {
        DossierProgramme dossier;
        poserPointeur(dossier, insense.AnneeInitiale, insense.NbClotures);
        EcranEssai ecran(dossier, u"2026"_s);
        const Demarrage d = ecran.demarrer();
        ASSERT_EQ(ecran.montres.size(), 1) << insense.AnneeInitiale;
        EXPECT_TRUE(ecran.montres[0].contains(u"TLR.INI"_s));
        EXPECT_EQ(d.issue, Demarrage::Issue::Ouvert);
    }
}

TEST(Demarrage, une_base_endommagee_mene_a_la_reparation_et_reste_en_place)
{
    DossierProgramme dossier;
    poserPointeur(dossier, 2026, 0);
    const QByteArray reste(5000, 'z');
    dossier.ecrire(u"TAL2026.mdb"_s, reste);
    const Demarrage d = EcranEssai(dossier).demarrer();
    ASSERT_EQ(d.issue, Demarrage::Issue::Endommage);
    EXPECT_EQ(*d.message, (Refus{u"La base de données semble endommagée\nChargement du module de réparation"_s,
                                 u"TALOR"_s, Icone::Avertissement}));
    ASSERT_TRUE(d.exercice);
    EXPECT_FALSE(d.exercice->estOuvert());
    EXPECT_EQ(dossier.lire(u"TAL2026.mdb"_s), reste);
}

TEST(Demarrage, ce_qui_est_protege_contre_l_ecriture_est_nomme_a_la_porte)
{
    if (!SansPrivilege::possible())
        GTEST_SKIP() << "the administrator may write everywhere";
    DossierProgramme dossier;
    poserPointeur(dossier, 2026, 0);
    ASSERT_EQ(EcranEssai(dossier).demarrer().issue, Demarrage::Issue::Ouvert);
    const QString base = dossier.chemin(u"TAL2026.mdb"_s);
    constexpr auto lire = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    constexpr auto parcourir = lire | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    constexpr auto ecrire = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    const auto message = [&] {
        const SansPrivilege privilege;
        const Demarrage d = EcranEssai(dossier).demarrer();
        EXPECT_EQ(d.issue, Demarrage::Issue::Arrete);
        return d.message ? d.message->texte : QString();
    };

    QFile::setPermissions(dossier.chemin({}), parcourir | ecrire);
    QFile::setPermissions(base, lire);
    EXPECT_EQ(message().section(u" :"_s, 0, 0), u"Le fichier « %1 » est protégé contre l'écriture"_s.arg(base));

    QFile::setPermissions(base, lire | ecrire);
    QFile::setPermissions(dossier.chemin({}), parcourir);
    EXPECT_EQ(message().section(u" :"_s, 0, 0),
              u"Le dossier « %1 » est protégé contre l'écriture"_s.arg(QFileInfo(base).path()));

    QFile::setPermissions(dossier.chemin({}), parcourir | ecrire);
    EXPECT_EQ(EcranEssai(dossier).demarrer().issue, Demarrage::Issue::Ouvert);
}

TEST(Demarrage, un_modele_illisible_ne_fait_pas_naitre_d_exercice)
{
    DossierProgramme dossier;
    poserPointeur(dossier, 2026, 0);
    dossier.ecrire(u"TAL00.mdb"_s, "rien");
    const Demarrage d = EcranEssai(dossier).demarrer();
    EXPECT_EQ(d.issue, Demarrage::Issue::Arrete);
    ASSERT_TRUE(d.message);
    EXPECT_TRUE(d.message->texte.contains(u"TAL2026.mdb"_s));
    EXPECT_FALSE(dossier.contient(u"TAL2026.mdb"_s));
}
