#include "shell/dossier_donnees.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

Refus bienvenue(const QString& propose)
{
    return {u"Bienvenue dans TALOR.\n\nVos ventes, vos factures et leurs copies seront gardées dans le dossier\n« "_s +
                propose + u" ».\n\nVoulez-vous de ce dossier ? Non en fait choisir un autre."_s,
            u"TALOR"_s, Icone::Question};
}

/// The nearest folder above a lost one: where to begin looking for it.
QString dernierExistant(const QString& perdu)
{
    QString dossier = perdu;
    while (!QFileInfo(dossier).isDir() && !QDir(dossier).isRoot())
        dossier = QFileInfo(dossier).path();
    return dossier;
}

} // namespace

QString choisirDossier(const Paquet& paquet, const EcranDossier& ecran)
{
    const QString retenu = paquet.dossierRetenu();
    QString choisi;
    if (retenu.isEmpty()) {
        const QString propose = Paquet::dossierPropose();
        choisi = ecran.confirmer(bienvenue(propose)) ? propose : ecran.choisir(QDir::homePath());
    } else {
        auto refus = Paquet::verifier(retenu);
        if (!refus)
            refus = paquet.deposer(retenu);
        if (!refus)
            return retenu;
        ecran.montrer(*refus);
        choisi = ecran.choisir(dernierExistant(retenu));
    }
    while (!choisi.isEmpty()) {
        const QString dossier = Paquet::dossierPour(choisi);
        const auto refus = paquet.deposer(dossier);
        if (!refus) {
            if (const auto oubli = paquet.retenir(dossier))
                ecran.montrer(*oubli);
            return dossier;
        }
        ecran.montrer(*refus);
        choisi = ecran.choisir(dernierExistant(choisi));
    }
    return {};
}

} // namespace talor
