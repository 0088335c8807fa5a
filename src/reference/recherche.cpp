#include "reference/recherche.h"

#include "reference/categories.h"

#include <QHash>

#include <algorithm>

namespace talor {

using namespace Qt::StringLiterals;

static QList<ClientTrouve> lire(Exercice& exercice, const QString& requete, const QVariantList& valeurs = {})
{
    QHash<qint64, QString> familles;
    for (const Categorie& categorie : listerCategories(exercice))
        familles.insert(categorie.num, categorie.denom);

    QList<ClientTrouve> clients;
    for (store::Recordset lignes = exercice.Base().openRecordset(requete, valeurs); !lignes.eof(); lignes.moveNext())
        clients.append({lignes.num(), lignes.text("ordre"), lignes.text("nom"), lignes.text("prenom"),
                        lignes.text("ville"), familles.value(lignes.integer("famille")), lignes.real("Solde")});
    return clients;
}

QList<ClientTrouve> listerClients(Exercice& exercice)
{
    return lire(exercice, u"select * from Clients order by nom,prenom"_s);
}

Resultat<int> chercherParNumero(const QList<ClientTrouve>& clients, const QString& numero)
{
    const QString cherche = numero.trimmed();
    if (cherche.isEmpty())
        return Refus{u"Numéro omis"_s};
    const auto trouve = std::ranges::find(clients, cherche, &ClientTrouve::ordre);
    if (trouve == clients.cend())
        return Refus{u"Numéro d'ordre introuvable"_s};
    return static_cast<int>(trouve - clients.cbegin());
}

Resultat<QList<ClientTrouve>> chercherParNom(Exercice& exercice, const QString& nom, const QString& prenom)
{
    QString requete = u"Select * from Clients"_s;
    QVariantList valeurs;
    const auto restreindre = [&](const QString& champ, const QString& debut) {
        if (debut.trimmed().isEmpty())
            return;
        requete += (valeurs.isEmpty() ? u" where "_s : u" and "_s) + champ + u" like ?"_s;
        valeurs.append(store::likeLiteral(debut.trimmed()) + u'*');
    };
    restreindre(u"nom"_s, nom);
    restreindre(u"prenom"_s, prenom);
    const QList<ClientTrouve> clients = lire(exercice, requete + u" order by nom,prenom"_s, valeurs);
    if (clients.isEmpty())
        return Refus{u"Aucun client ne répond à ces critères"_s, u"ATTENTION"_s, Icone::Information};
    return clients;
}

} // namespace talor
