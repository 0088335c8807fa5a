#include "demo/saison.h"

#include "core/schema.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <functional>

namespace talor::demo {

using namespace Qt::StringLiterals;

namespace {

/// Why a line can't be taken; it leaves the reader as a refusal with the line's number.
struct Faute
{
    QString raison;
};

/// A number as written, its groups of thousands closed up. Only the figures and one point are left in it.
QString nombreEcrit(const QString& texte, const QString& quoi)
{
    static const QRegularExpression entierOuDecimal(u"^\\d+(\\.\\d+)?$"_s);
    QString serre = texte;
    serre.remove(u' ').remove(QChar(0x00A0)).remove(QChar(0x202F));
    if (!serre.isEmpty() && !entierOuDecimal.match(serre).hasMatch())
        throw Faute{quoi + u" « "_s + texte + u" » n'est pas un nombre"_s};
    return serre;
}

QString entierEcrit(const QString& texte, const QString& quoi)
{
    const QString serre = nombreEcrit(texte, quoi);
    if (serre.contains(u'.'))
        throw Faute{quoi + u" « "_s + texte + u" » n'est pas un nombre entier"_s};
    return serre;
}

int numeroEcrit(const QString& texte)
{
    const int numero = entierEcrit(texte, u"N°"_s).toInt();
    if (numero < 1)
        throw Faute{u"N° omis"_s};
    return numero;
}

QString exiger(const QString& texte, const QString& quoi)
{
    if (texte.isEmpty())
        throw Faute{quoi + u" omis"_s};
    return texte;
}

/// Place of the card for which a test holds; without one, a fault.
template<class Fiche, class Test> int placeDe(const QList<Fiche>& fiches, Test test, const QString& absente)
{
    for (int i = 0; i < fiches.size(); ++i)
        if (test(fiches[i]))
            return i;
    throw Faute{absente};
}

/// Reads the lines one by one, each in the section that the last heading in brackets opened.
class Lecteur
{
public:
    void lireLigne(const QString& ligne, int numero)
    {
        m_numero = numero;
        if (ligne.startsWith(u'[')) {
            ouvrirSection(ligne);
            return;
        }
        if (!m_section)
            throw Faute{u"une section entre crochets est attendue avant ce texte"_s};
        m_section(ligne);
    }

    /// Number of the line in hand, or of the line to blame.
    int numero() const { return m_numero; }

    Saison terminer()
    {
        fermerBordereau();
        if (saison.journees.isEmpty())
            throw Faute{u"aucune journée de vente"_s};
        return saison;
    }

private:
    void ouvrirSection(const QString& ligne)
    {
        if (!ligne.endsWith(u']'))
            throw Faute{u"crochet fermant omis"_s};
        const QString titre = ligne.mid(1, ligne.size() - 2).trimmed();
        const QString mot = titre.section(u' ', 0, 0);
        const QString suite = titre.section(u' ', 1).trimmed();
        fermerBordereau();
        if (titre == u"mandataire")
            m_section = [this](const QString& l) { lireMandataire(l); };
        else if (titre == u"catégories")
            m_section = [this](const QString& l) { lireCategorie(l); };
        else if (titre == u"poissons")
            m_section = [this](const QString& l) { lirePoisson(l); };
        else if (titre == u"armateurs")
            m_section = [this](const QString& l) { lireArmateur(l); };
        else if (titre == u"embarcations")
            m_section = [this](const QString& l) { lireEmbarcation(l); };
        else if (titre == u"clients")
            m_section = [this](const QString& l) { lireClient(l); };
        else if (mot == u"journée")
            ouvrirJournee(suite);
        else if (mot == u"bordereau")
            ouvrirBordereau(suite);
        else
            throw Faute{u"section « "_s + titre + u" » inconnue"_s};
    }

    /// The fields of a line, trimmed; missing ones at its end are empty.
    static QStringList champs(const QString& ligne, int nombre)
    {
        QStringList lus;
        for (const QString& champ : ligne.split(u';'))
            lus << champ.trimmed();
        if (lus.size() > nombre)
            throw Faute{QString::number(lus.size()) + u" champs, "_s + QString::number(nombre) +
                        u" au plus attendus"_s};
        while (lus.size() < nombre)
            lus << QString();
        return lus;
    }

    void lireMandataire(const QString& ligne)
    {
        Mandataire& m = saison.mandataire;
        const std::pair<QString, QString*> cles[] = {{u"téléphone"_s, &m.tel},   {u"fax"_s, &m.fax},
                                                     {u"R.C."_s, &m.RC},         {u"id. fiscale"_s, &m.Id_Fisc},
                                                     {u"article"_s, &m.Article}, {u"compte"_s, &m.compte}};
        const qsizetype egal = ligne.indexOf(u'=');
        const QString lue = ligne.left(egal).trimmed();
        for (const auto& [cle, valeur] : cles) {
            if (egal > 0 && lue == cle) {
                *valeur = ligne.mid(egal + 1).trimmed();
                return;
            }
        }
        throw Faute{u"« "_s + lue + u" » inconnu"_s};
    }

    void lireCategorie(const QString& ligne)
    {
        if (saison.categories.contains(ligne))
            throw Faute{u"catégorie « "_s + ligne + u" » répétée"_s};
        saison.categories << ligne;
    }

    void lirePoisson(const QString& ligne)
    {
        const QStringList c = champs(ligne, 2);
        const Poisson lu{numeroEcrit(c[0]), exiger(c[1], u"nom du poisson"_s)};
        for (const Poisson& p : saison.poissons)
            if (p.ordre == lu.ordre || p.denom == lu.denom)
                throw Faute{u"poisson « "_s + ligne.simplified() + u" » répété"_s};
        saison.poissons << lu;
    }

    void lireArmateur(const QString& ligne)
    {
        const QStringList c = champs(ligne, 9);
        exiger(c[0], u"nom de l'armateur"_s);
        exiger(c[1], u"prénom de l'armateur"_s);
        for (const Armateur& a : saison.armateurs)
            if (a.nom == c[0])
                throw Faute{u"armateur « "_s + c[0] + u" » répété"_s};
        saison.armateurs << Armateur{c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7], c[8]};
    }

    void lireEmbarcation(const QString& ligne)
    {
        const QStringList c = champs(ligne, 5);
        exiger(c[0], u"nom de l'embarcation"_s);
        exiger(c[2], u"port"_s);
        for (const Embarcation& e : saison.embarcations)
            if (e.denom == c[0])
                throw Faute{u"embarcation « "_s + c[0] + u" » répétée"_s};
        const int armateur = placeDe(
            saison.armateurs, [&](const Armateur& a) { return a.nom == c[1]; },
            u"armateur « "_s + c[1] + u" » inconnu"_s);
        saison.embarcations << Embarcation{c[0], armateur, c[2], c[3], c[4]};
    }

    void lireClient(const QString& ligne)
    {
        const QStringList c = champs(ligne, 10);
        const int ordre = numeroEcrit(c[0]);
        exiger(c[1], u"nom du client"_s);
        exiger(c[2], u"prénom du client"_s);
        if (!saison.categories.contains(c[3]))
            throw Faute{u"catégorie « "_s + c[3] + u" » inconnue"_s};
        for (const Client& autre : saison.clients)
            if (autre.ordre == ordre)
                throw Faute{u"client N° "_s + c[0] + u" répété"_s};
        saison.clients << Client{ordre, c[1], c[2], c[3], c[4], c[5], c[6], c[7], c[8], c[9]};
    }

    void ouvrirJournee(const QString& texte)
    {
        const QDate date = QDate::fromString(texte, u"dd/MM/yyyy"_s);
        if (!date.isValid())
            throw Faute{u"date « "_s + texte + u" » incorrecte, jj/mm/aaaa attendu"_s};
        if (!saison.journees.isEmpty()) {
            if (date <= saison.journees.last().date)
                throw Faute{u"la journée du "_s + texte + u" ne vient pas après la précédente"_s};
            if (date.year() != saison.annee())
                throw Faute{u"la journée du "_s + texte + u" n'est pas de l'exercice "_s +
                            QString::number(saison.annee())};
        }
        saison.journees << Journee{date, {}};
        m_section = [](const QString&) { throw Faute{u"un bordereau est attendu dans la journée"_s}; };
    }

    void ouvrirBordereau(const QString& nom)
    {
        if (saison.journees.isEmpty())
            throw Faute{u"bordereau hors d'une journée"_s};
        const int place = placeDe(
            saison.embarcations, [&](const Embarcation& e) { return e.denom == nom; },
            u"embarcation « "_s + nom + u" » inconnue"_s);
        m_bordereau = Bordereau{place, {}, {}, {}, {}, m_numero};
        m_section = [this](const QString& ligne) { lireDuBordereau(ligne); };
    }

    void fermerBordereau()
    {
        if (!m_bordereau)
            return;
        if (m_bordereau->lignes.isEmpty()) {
            m_numero = m_bordereau->numeroLigne;
            throw Faute{u"bordereau sans ligne de vente"_s};
        }
        saison.journees.last().bordereaux << *m_bordereau;
        m_bordereau.reset();
    }

    void lireDuBordereau(const QString& ligne)
    {
        const qsizetype egal = ligne.indexOf(u'=');
        if (egal < 0) {
            lireVente(ligne);
            return;
        }
        const QString cle = ligne.left(egal).trimmed();
        const QString valeur = ligne.mid(egal + 1).trimmed();
        if (cle == u"frais")
            lireFrais(valeur);
        else if (cle == u"primes")
            m_bordereau->primes = nombreEcrit(valeur, u"primes"_s);
        else if (cle == u"taux")
            lireTaux(valeur);
        else
            throw Faute{u"« "_s + cle + u" » inconnu : frais, primes ou taux attendu"_s};
    }

    void lireTaux(const QString& valeur)
    {
        m_bordereau->taux = nombreEcrit(valeur, u"taux"_s);
        if (m_bordereau->taux.toDouble() >= 100)
            throw Faute{u"taux « "_s + valeur + u" » : moins de 100 % attendu"_s};
    }

    void lireFrais(const QString& valeur)
    {
        static const QRegularExpression libellePuisMontant(u"^(\\D*[^\\d\\s])\\s+(\\d[\\d .]*)$"_s);
        for (const QString& frais : valeur.split(u';')) {
            const QRegularExpressionMatch m = libellePuisMontant.match(frais.trimmed());
            if (!m.hasMatch())
                throw Faute{u"frais « "_s + frais.trimmed() + u" » : un libellé et un montant attendus"_s};
            m_bordereau->frais << Frais{m.captured(1), nombreEcrit(m.captured(2), u"montant"_s)};
        }
        if (m_bordereau->frais.size() > position::nbFrais)
            throw Faute{u"plus de "_s + QString::number(position::nbFrais) + u" frais"_s};
    }

    void lireVente(const QString& ligne)
    {
        const QStringList c = champs(ligne, 5);
        Ligne lue{placeClient(c[0]),
                  placeDe(
                      saison.poissons, [&](const Poisson& p) { return p.denom == c[1]; },
                      u"poisson « "_s + c[1] + u" » inconnu"_s),
                  entierEcrit(c[2], u"cageots"_s), nombreEcrit(c[3], u"poids"_s), nombreEcrit(c[4], u"P.U."_s)};
        if (lue.cageots.isEmpty() && lue.poids.isEmpty())
            throw Faute{u"ni cageots ni poids"_s};
        if (lue.PU.isEmpty())
            throw Faute{u"P.U. omis"_s};
        m_bordereau->lignes << lue;
    }

    /// "12 BOUZIDI" or "12": the number decides, and the name beside it must be how that buyer's name begins.
    int placeClient(const QString& texte) const
    {
        const QString numero = texte.section(u' ', 0, 0);
        const QString nom = texte.section(u' ', 1).trimmed();
        const int ordre = numeroEcrit(numero);
        const int place = placeDe(
            saison.clients, [&](const Client& client) { return client.ordre == ordre; },
            u"client N° "_s + numero + u" inconnu"_s);
        if (!saison.clients[place].nom.startsWith(nom))
            throw Faute{u"le client N° "_s + numero + u" est « "_s + saison.clients[place].nom + u" », non « "_s + nom +
                        u" »"_s};
        return place;
    }

    Saison saison;
    int m_numero = 0;
    std::function<void(const QString&)> m_section;
    std::optional<Bordereau> m_bordereau;
};

} // namespace

Resultat<Saison> lireSaison(const QString& chemin)
{
    const QString nomFichier = QFileInfo(chemin).fileName();
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        return Refus{u"Fichier '"_s + nomFichier + u"' illisible : "_s + fichier.errorString()};

    Lecteur lecteur;
    try {
        int numero = 0;
        for (const QString& brute : QString::fromUtf8(fichier.readAll()).split(u'\n')) {
            ++numero;
            const QString ligne = brute.trimmed();
            if (!ligne.isEmpty() && !ligne.startsWith(u'#'))
                lecteur.lireLigne(ligne, numero);
        }
        return lecteur.terminer();
    } catch (const Faute& faute) {
        return Refus{u"Fichier '"_s + nomFichier + u"', ligne "_s + QString::number(lecteur.numero()) + u" : "_s +
                     faute.raison};
    }
}

} // namespace talor::demo
