#include "shell/verrou.h"

namespace talor {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t motUtilisateur = 0;
constexpr size_t motExercice = 1;
constexpr size_t troisiemeMot = 2;

QString enCapitales(const QString& mot)
{
    return mot.trimmed().toUpper();
}

} // namespace

std::optional<Autorisation> DemandeMot::essayer(const QString& saisie)
{
    ++m_essais;
    if (estAccepte(enCapitales(saisie)))
        return Autorisation::Acceptee;
    if (essaisRestants() > 0)
        return std::nullopt;
    return m_verrou == Verrou::Programme ? Autorisation::FinProgramme : Autorisation::Refusee;
}

bool DemandeMot::estAccepte(const QString& mot) const
{
    const auto& mots = m_exercice.configuration().mots;
    const QString& attendu = mots[m_verrou == Verrou::Programme ? motUtilisateur : motExercice];
    return mot == enCapitales(attendu) || mot == enCapitales(mots[troisiemeMot]) ||
           mot == enCapitales(m_exercice.MotAcces);
}

ChangementMot::Issue ChangementMot::valider(const QString& actuel, const QString& nouveau, const QString& confirmation)
{
    QString& mot = m_exercice.configuration().mots[motUtilisateur];
    if (enCapitales(actuel) != enCapitales(mot))
        return {{u"Contrôle négatif"_s}, ++m_echecs > echecsMax, Case::Actuel};
    if (enCapitales(nouveau) != enCapitales(confirmation))
        return {{u"Confirmation non concordante"_s}, false, Case::Confirmation};
    const QString garde = enCapitales(nouveau).left(Configuration::motLongueurMax);
    const QString fichier = m_exercice.installation().configuration();
    if (const auto refus = Configuration::ecrireMot(fichier, motUtilisateur, garde))
        return {*refus, false, Case::Nouveau};
    mot = garde;
    return {{u"Sauvegarde effectuée avec succès"_s, u"TALOR"_s, Icone::Information}, true, Case::Actuel};
}

} // namespace talor
