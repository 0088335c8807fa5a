#include "temoin.h"

#include "core/schema.h"

#include <QFile>

namespace torture {

using namespace Qt::StringLiterals;

namespace {

template<class Lignes> qint64 dernier(const Lignes& lignes)
{
    return lignes.empty() ? 0 : lignes.rbegin()->first;
}

/// Takes from the file the numbers that the store gives, where they are new ones.
Action completee(Action action, const Livre& connu, const Livre& lu)
{
    switch (action.genre) {
    case Action::Creation:
        action.bordereau = dernier(lu.bordereaux);
        break;
    case Action::Ligne:
        action.ligne = dernier(lu.lignes);
        break;
    case Action::Facture:
        if (dernier(lu.factures) > dernier(connu.factures)) {
            const auto& [num, facture] = *lu.factures.rbegin();
            const bool demande = action.client == 0 || action.client == facture.client;
            action.facture = num;
            action.client = demande ? facture.client : 0;
            action.ordre = facture.ordre;
        }
        break;
    default:
        break;
    }
    return action;
}

} // namespace

void Temoin::entendre(const Annonce& annonce)
{
    if (!annonce.faite) {
        m_enCours = annonce.action;
        return;
    }
    ++m_nbAnnonces;
    m_enCours.reset();
    m_livre.appliquer(annonce.action);
    if (annonce.action.genre == Action::Sortie)
        m_archive = m_livre;
}

QStringList Temoin::confronter(talor::Exercice& exercice)
{
    const QStringList fautesArchive = confronterArchive(exercice);
    const Livre lu = Livre::lire(exercice.Base());
    QStringList fautes = ecarts(m_livre, lu);
    if (!fautes.isEmpty() && m_enCours) {
        Livre suivant = m_livre;
        suivant.appliquer(completee(*m_enCours, m_livre, lu));
        const QStringList apres = ecarts(suivant, lu);
        if (apres.isEmpty()) {
            m_livre = suivant;
            fautes.clear();
        }
    }
    m_enCours.reset();
    return fautes + fautesArchive;
}

QStringList Temoin::confronterArchive(const talor::Exercice& exercice)
{
    const QString chemin = exercice.installation().archiveSortie(exercice.Annee);
    const bool sortieEnCours = m_enCours && m_enCours->genre == Action::Sortie;
    if (!QFile::exists(chemin))
        return m_archive ? QStringList{u"La copie dans Archives a disparu"_s} : QStringList();
    store::Database copie(chemin, talor::schema());
    const Livre lu = Livre::lire(copie);
    if (sortieEnCours && ecarts(m_livre, lu).isEmpty()) {
        m_archive = m_livre;
        return {};
    }
    QStringList fautes = m_archive ? ecarts(*m_archive, lu) : QStringList{u"une copie que personne n'a annoncée"_s};
    for (QString& faute : fautes)
        faute.prepend(u"Archives : "_s);
    return fautes;
}

} // namespace torture
