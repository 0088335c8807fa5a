#include "shell/fonctions.h"

#include "core/helpers.h"
#include "core/montrer.h"
#include "core/report_window.h"
#include "core/state.h"
#include "invoicing/factura.h"
#include "invoicing/factures.h"
#include "lifecycle/mecano.h"
#include "platform/services/opener.h"
#include "reference/f_classm.h"
#include "reference/j_armateurs.h"
#include "reference/j_chalutiers.h"
#include "reference/j_client.h"
#include "reference/j_prod.h"
#include "reference/rech_rap.h"
#include "sales/edit_bor2.h"
#include "sales/f_bord.h"
#include "sales/j_vente.h"
#include "shell/affichage.h"
#include "shell/aide.h"
#include "shell/form1.h"
#include "shell/identif.h"
#include "shell/listes.h"
#include "shell/new_mps.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

/// Opens a dialog that needs the exercise alone.
template<class Formulaire> std::function<void()> ouvrir(Form1& form1, Exercice& exercice)
{
    return [&form1, &exercice] { Formulaire(exercice, &form1).exec(); };
}

F_Bord::Saisie journalDesVentes(Exercice& exercice)
{
    return [&exercice](QWidget* parent, const DemandeSaisie& demande) { j_vente::saisir(parent, exercice, demande); };
}

/// Asks the order of a list, then prints it.
std::function<void()> imprimerClassee(Form1& form1, Exercice& exercice, Etat (*liste)(Classement))
{
    return [&form1, &exercice, liste] {
        if (const auto classement = F_Classm::demander(&form1))
            ImprimerEtat(&form1, exercice, liste(*classement));
    };
}

void ouvrirGuide(QWidget* parent, const Installation& installation)
{
    const QString guide = installation.guide();
    if (!FichierExiste(guide))
        montrer(parent, {u"Fichier Guide_TALOR.pdf absent! ! !"_s});
    else if (!services::opener::open(guide))
        montrer(parent, {u"Erreur N° 1\nAucun programme n'a pu ouvrir le fichier Guide_TALOR.pdf"_s, u"TALOR"_s});
}

} // namespace

void brancherFonctions(Form1& form1, Exercice& exercice)
{
    form1.brancher(u"mnu_ident"_s, ouvrir<Identif>(form1, exercice));
    form1.brancher(u"mnu_images"_s, [&] { Affichage(exercice.installation(), &form1).exec(); });
    form1.brancher(u"mnu_arma"_s, ouvrir<J_Armateurs>(form1, exercice));
    form1.brancher(u"mnu_Chalutiers"_s, ouvrir<j_Chalutiers>(form1, exercice));
    form1.brancher(u"mnu_sect"_s, ouvrir<J_PROD>(form1, exercice));
    form1.brancher(u"mnu_art"_s, ouvrir<j_Client>(form1, exercice));
    form1.brancher(u"Mnu_CR"_s, ouvrir<Edit_Bor2>(form1, exercice));
    form1.brancher(u"Rech_Rap"_s, [&] { Rech_Rap(exercice, {}, &form1).exec(); });
    form1.brancher(u"mnu_verr"_s, ouvrir<New_MPS>(form1, exercice));
    form1.brancher(u"MBorde"_s, [&] { F_Bord(exercice, journalDesVentes(exercice), &form1).exec(); });
    form1.brancher(u"Nouv_Fact"_s, ouvrir<Factura>(form1, exercice));
    form1.brancher(u"mnu_s_t"_s, ouvrir<FACTURES>(form1, exercice));
    form1.brancher(u"mnu_mecano"_s, [&] {
        if (Mecano::ouvrir(exercice, &form1) == Mecano::Fin::Echoue)
            form1.terminer();
    });

    form1.brancher(u"mnu_LCLIENTS"_s, imprimerClassee(form1, exercice, listeClients));
    form1.brancher(u"mnu_LPoissons"_s, imprimerClassee(form1, exercice, listePoissons));
    form1.brancher(u"mnu_LArmateurs"_s, [&] { ImprimerEtat(&form1, exercice, listeArmateurs()); });
    form1.brancher(u"mnu_Lchalutiers"_s, [&] { ImprimerEtat(&form1, exercice, listeChalutiers()); });

    form1.brancher(u"G_PDF"_s, [&] { ouvrirGuide(&form1, exercice.installation()); });
    form1.brancher(u"mnu_hlp"_s, [&] { montrerAide(&form1); });
    form1.brancher(u"mnu_aprpos"_s, [&] { montrerAPropos(&form1, exercice); });
}

} // namespace talor
