#include "sales/f_bord.h"

#include "core/montrer.h"
#include "platform/controls/command_bar.h"
#include "platform/controls/grid.h"
#include "platform/services/clock.h"
#include "sales/cadre_ouverture.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

/// Meaning of the indexes of `Crecettes`.
enum Action
{
    Imprimer,
    Modifier,
    Supprimer,
    Nouveau,
    Filtre,
    Quitter
};

} // namespace

F_Bord::F_Bord(Exercice& exercice, Saisie saisie, QWidget* parent)
    : DialogueBordereaux(u"F_Bord", exercice, RegistreBordereaux::Porte::Registre,
                         {{Imprimer, u"imprimer"_s, u"Imprimer"_s, Qt::CTRL | Qt::Key_P},
                          {Modifier, u"modifier"_s, u"Modifier"_s, Qt::Key_F2},
                          {Supprimer, u"supprimer"_s, u"Supprimer"_s, Qt::Key_Delete},
                          {Nouveau, u"nouveau"_s, u"Nouveau"_s, Qt::Key_Insert},
                          {Filtre, u"filtre"_s, u"Filtre"_s, Qt::CTRL | Qt::Key_F},
                          {Quitter, u"quitter"_s, u"Quitter"_s}},
                         parent)
    , m_saisie(std::move(saisie))
    , m_cadre(new CadreOuverture(exercice, registre(), this))
{
    commandes()->button(Nouveau)->setPrimary();
    ajouterCadre(m_cadre, {m_cadre->annuler()});
    connect(grille(), &controls::Grid::rowActivated, this, &F_Bord::modifier);
    connect(m_cadre, &CadreOuverture::accepte, this, &F_Bord::confirmer);
    connect(m_cadre, &CadreOuverture::abandonne, this, [this] { montrerCadre(nullptr); });
    charger();
}

void F_Bord::executer(int index)
{
    switch (index) {
    case Imprimer:
        return imprimer();
    case Modifier:
        return modifier();
    case Supprimer:
        return supprimer();
    case Nouveau:
        return nouveau();
    case Filtre:
        return ouvrirFiltre();
    case Quitter:
        return leave();
    }
}

void F_Bord::nouveau()
{
    ouvrirCadre(registre().cadreNouveau(services::clock::todayText()));
}

void F_Bord::modifier()
{
    const int rang = grille()->currentRow();
    if (rang < 0)
        return;
    const Resultat<CadreBordereau> cadre = registre().cadreReouverture(rang);
    if (cadre)
        ouvrirCadre(*cadre);
    else
        montrer(this, cadre.refus());
}

void F_Bord::ouvrirCadre(const CadreBordereau& cadre)
{
    montrerCadre(m_cadre);
    m_cadre->ouvrir(cadre);
}

void F_Bord::confirmer()
{
    const Resultat<DemandeSaisie> demande = registre().demande(m_cadre->cadre());
    if (!demande) {
        montrer(this, demande.refus());
        return m_cadre->viserDate();
    }
    m_saisie(this, *demande);
    charger();
}

void F_Bord::supprimer()
{
    const int rang = grille()->currentRow();
    if (rang < 0 || montrerSi(this, registre().refusModification(rang)))
        return;
    if (!talor::confirmer(this, registre().confirmationSuppression(rang)))
        return;
    montrer(this, registre().supprimer(rang));
    charger();
}

} // namespace talor
