#include "core/state.h"

#include "core/report_texts.h"
#include "core/schema.h"

namespace talor {

using namespace Qt::StringLiterals;

const std::array<QString, 7> NomsJours = {u"Dimanche"_s, u"Lundi"_s,    u"Mardi"_s, u"Mercredi"_s,
                                          u"Jeudi"_s,    u"Vendredi"_s, u"Samedi"_s};

const std::array<QString, 12> NomsMois = {u"Janvier"_s,   u"Février"_s, u"Mars"_s,     u"Avril"_s,
                                          u"Mai"_s,       u"Juin"_s,    u"Juillet"_s,  u"Août"_s,
                                          u"Septembre"_s, u"Octobre"_s, u"Novembre"_s, u"Décembre"_s};

const std::array<QString, 12> NomsMoisAr = {u"جانفي"_s,  u"فيفري"_s,  u"مارس"_s,   u"أفريل"_s,
                                            u"ماي"_s,    u"جوان"_s,   u"جويلية"_s, u"أوت"_s,
                                            u"سبتمبر"_s, u"أكتوبر"_s, u"نوفمبر"_s, u"ديسمبر"_s};

namespace {

/// The shared recordsets with their tables, in the order in which they are opened.
struct RecordsetPartage
{
    QString table;
    store::Recordset Exercice::*membre;
};

const std::array<RecordsetPartage, 20> recordsetsPartages = {{
    {u"Permn"_s, &Exercice::Permn},           {u"Poissons"_s, &Exercice::Poissons},
    {u"Clients"_s, &Exercice::Clients},       {u"Armateurs"_s, &Exercice::Armateurs},
    {u"Chalutiers"_s, &Exercice::Chalutiers}, {u"L_Vente"_s, &Exercice::L_Vente},
    {u"Bordereaux"_s, &Exercice::Bordereaux}, {u"Consigne"_s, &Exercice::Consigne},
    {u"Decomptes"_s, &Exercice::Decomptes},   {u"Decomptes0"_s, &Exercice::Decomptes0},
    {u"Marins"_s, &Exercice::Marins},         {u"Marins0"_s, &Exercice::Marins0},
    {u"Agents"_s, &Exercice::Agents},         {u"Depenses"_s, &Exercice::Depenses},
    {u"Recettes"_s, &Exercice::Recettes},     {u"Csse"_s, &Exercice::Csse},
    {u"Familles_C"_s, &Exercice::Familles_C}, {u"Tampon1"_s, &Exercice::Tampon1},
    {u"Factures"_s, &Exercice::Factures},     {u"textes"_s, &Exercice::textes},
}};

} // namespace

Exercice::Exercice(Installation installation, Configuration configuration, PointeurAnnee pointeurAnnee)
    : pointeur(pointeurAnnee)
    , Annee(pointeurAnnee.anneeCourante())
    , m_installation(std::move(installation))
    , m_configuration(std::move(configuration))
{
    choisirAnnee(Annee);
}

Exercice::~Exercice()
{
    FermerBase();
}

void Exercice::choisirAnnee(int annee)
{
    Annee = annee;
    CheminBase = m_installation.base(annee);
}

void Exercice::OuvrirBase()
{
    FermerBase();
    try {
        m_base = std::make_unique<store::Database>(CheminBase, schema());
        for (const RecordsetPartage& partage : recordsetsPartages)
            this->*partage.membre = m_base->openTable(partage.table);
    } catch (...) {
        FermerBase();
        throw;
    }
}

void Exercice::FermerBase()
{
    for (const RecordsetPartage& partage : recordsetsPartages)
        this->*partage.membre = store::Recordset();
    m_base.reset();
}

void Exercice::LireParametres()
{
    Permn.requery();
    if (Permn.eof()) {
        Permn.addNew();
        Permn.set("Commission", 15);
        Permn.set("Consigne", 100);
        Permn.set("TVA", 0);
        Permn.set("nb_x", 0);
        Permn.update();
        Permn.requery();
    }
    Commission = static_cast<float>(Permn.real("Commission"));
    PrixConsigne = static_cast<float>(Permn.real("Consigne"));
    EffetSonore = Permn.integer("nb_x");
}

void Exercice::EcrireEntete()
{
    ecrireTextes(*this, {{"ch1", identite(1)}, {"ch2", identite(2)}, {"ch3", identite(3)}});
}

} // namespace talor
