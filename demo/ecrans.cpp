#include "demo/ecrans.h"

#include "invoicing/fact_bis.h"
#include "invoicing/factura.h"
#include "platform/services/clock.h"
#include "reference/familles.h"
#include "reference/q_date_2.h"
#include "reference/q_filtre.h"
#include "reference/q_mos.h"
#include "reference/q_selection.h"
#include "sales/j_vente.h"
#include "shell/form1.h"
#include "shell/form_v2.h"
#include "tools/calclette.h"

namespace talor::demo {

using namespace Qt::StringLiterals;

QList<Ecran> ecrans(Form1& form1, Exercice& exercice)
{
    /// A function of the menu, by the name of its entry.
    const auto menu = [&](const QString& entree) { return [&form1, entree] { form1.executer(entree); }; };
    const auto saisie = [&] {
        j_vente::saisir(&form1, exercice, {ModeBordereau::Existant, u"15/11/2026"_s, u"1"_s, 1, 1, u"Sidi Brahim"_s});
    };

    return {
        {u"j_vente"_s, saisie},
        {u"j_vente-nouveau"_s, saisie, {u"<Ins>"_s, u"12"_s, u"<Return>"_s, u"3"_s, u"<Return>"_s, u"10"_s}},
        {u"j_vente-correction"_s, saisie, {u"<Down>"_s, u"<F2>"_s}},
        {u"j_vente-frais"_s, saisie, {u"<F6>"_s}},
        {u"j_vente-pave"_s, saisie, {u"<Ins>"_s, u"<F7>"_s, u"12"_s, u"<Return>"_s}},
        {u"Form1"_s, [] {}, {}, false},
        {u"Form1-facturation"_s, menu(u"MFACT"_s), {}, false},
        {u"Message-fin"_s, [&] { form1.close(); }},

        {u"J_PROD"_s, menu(u"mnu_sect"_s), {u"<Down>"_s, u"<Down>"_s}},
        {u"J_PROD-nouveau"_s, menu(u"mnu_sect"_s), {u"<Ins>"_s, u"50"_s, u"<Return>"_s, u"Squille"_s}},
        {u"Message-numero"_s,
         menu(u"mnu_sect"_s),
         {u"<Ins>"_s, u"1"_s, u"<Return>"_s, u"Squille"_s, u"<Ctrl+Return>"_s}},
        {u"J_Armateurs"_s, menu(u"mnu_arma"_s)},
        {u"J_Armateurs-modification"_s, menu(u"mnu_arma"_s), {u"<F2>"_s}},
        {u"j_Chalutiers"_s, menu(u"mnu_Chalutiers"_s)},
        {u"j_Chalutiers-modification"_s, menu(u"mnu_Chalutiers"_s), {u"<Down>"_s, u"<F2>"_s}},
        {u"j_Client"_s, menu(u"mnu_art"_s), {u"<PgDown>"_s}},
        {u"j_Client-modification"_s, menu(u"mnu_art"_s), {u"<Down>"_s, u"<F2>"_s}},
        {u"Message-suppression"_s, menu(u"mnu_art"_s), {u"<Del>"_s}},

        {u"Familles"_s, [&] { Familles::demander(&form1, exercice); }},

        {u"Q_Client"_s, [&] { Q_Client::demander(&form1, exercice); }, {u"ha"_s}},
        {u"Q_Bateau"_s, [&] { Q_Bateau::demander(&form1, exercice); }},
        {u"Q_Poisson"_s, [&] { Q_Poisson::demander(&form1, exercice); }},
        {u"Q_Date_2"_s, [&] { Q_Date_2::demander(&form1); }, {u"<PgUp>"_s}},
        {u"Q_Mos"_s, [&] { Q_Mos::demander(&form1, 11); }},
        {u"Q_Filtre"_s, [&] { Q_Filtre::demander(&form1, exercice); }},
        {u"Q_Filtre-periode"_s, [&] { Q_Filtre::demander(&form1, exercice); }, {u"<Alt+P>"_s}},
        {u"Rech_Rap"_s, menu(u"Rech_Rap"_s)},
        {u"Calclette"_s, [&] { Calclette::demanderChiffres(&form1, exercice); }, {u"12"_s, u"<Return>"_s, u"35.5"_s}},
        {u"Calclette-primes"_s,
         [&] {
             Calclette::demanderPrimes(&form1, exercice, {u"300.00"_s, u"15"_s});
         },
         {u"<Down>"_s}},

        {u"Factura"_s, [&] { Factura(exercice, &form1).exec(); }},
        {u"FACTURES"_s, menu(u"mnu_s_t"_s), {u"<Space>"_s, u"<Down>"_s, u"<Down>"_s, u"<Space>"_s}},
        {u"FACTURES-filtre"_s, menu(u"mnu_s_t"_s), {u"<Ctrl+F>"_s}},
        {u"FACTURES-impression"_s, menu(u"mnu_s_t"_s), {u"<Down>"_s, u"<Ctrl+P>"_s}},
        {u"Fact_Bis"_s,
         [&] { Fact_Bis(exercice, services::clock::todayText(), &form1).exec(); },
         {u"<Ctrl+A>"_s, u"<Ctrl+F>"_s}},
        {u"Apercu-facture"_s, menu(u"mnu_s_t"_s), {u"<Ctrl+P>"_s, u"<Return>"_s}},
        {u"Apercu-bon-de-livraison"_s, menu(u"mnu_s_t"_s), {u"<Ctrl+P>"_s, u"<Alt+L>"_s, u"<Return>"_s}},
        {u"Apercu-liste-factures"_s, menu(u"mnu_s_t"_s), {u"<Ctrl+L>"_s}},

        {u"F_Bord"_s, menu(u"MBorde"_s)},
        {u"F_Bord-nouveau"_s, menu(u"MBorde"_s), {u"<Ins>"_s, u"<Return>"_s}},
        {u"F_Bord-filtre"_s, menu(u"MBorde"_s), {u"<Ctrl+F>"_s}},
        {u"Edit_Bor2"_s, menu(u"Mnu_CR"_s)},
        {u"Apercu-bordereau"_s, menu(u"Mnu_CR"_s), {u"<Ctrl+P>"_s}},

        {u"F_Classm"_s, menu(u"mnu_LCLIENTS"_s)},
        {u"Apercu-clients"_s, menu(u"mnu_LCLIENTS"_s), {u"<Return>"_s}},
        {u"Apercu-armateurs"_s, menu(u"mnu_LArmateurs"_s)},
        {u"Apercu-embarcations"_s, menu(u"mnu_Lchalutiers"_s)},

        {u"Identif"_s, menu(u"mnu_ident"_s)},
        {u"New_MPS"_s, menu(u"mnu_verr"_s), {u"<Return>"_s, u"quai"_s, u"<Return>"_s, u"qua"_s}},
        {u"Message-confirmation"_s,
         menu(u"mnu_verr"_s),
         {u"<Return>"_s, u"quai"_s, u"<Return>"_s, u"port"_s, u"<Return>"_s}},
        {u"Form_v2"_s, [&] { Form_v2::demander(&form1, exercice, Verrou::Exercice); }, {u"port"_s, u"<Return>"_s}},
        {u"Affichage"_s, menu(u"mnu_images"_s)},
        {u"Mecano"_s, menu(u"mnu_mecano"_s)},
        {u"F_HLP"_s, menu(u"mnu_hlp"_s)},
        {u"APropos"_s, menu(u"mnu_aprpos"_s)},
    };
}

} // namespace talor::demo
