#pragma once

#include "core/refus.h"
#include "core/state.h"

namespace talor {

/// A client as the quick search shows him.
struct ClientTrouve
{
    qint64 num;
    QString ordre;
    QString nom;
    QString prenom;
    QString ville;
    QString famille; ///< name of his category
    double Solde;    ///< dinars, negative when he owes
};

/// All clients by name and first name.
QList<ClientTrouve> listerClients(Exercice& exercice);

/// Rank of the client with this number among those listed: "Numéro omis", "Numéro d'ordre introuvable".
Resultat<int> chercherParNumero(const QList<ClientTrouve>& clients, const QString& numero);

/// The clients whose name and first name begin so, in any case and accents; a blank one is not looked at. The
/// characters of a pattern stand for themselves: "Aucun client ne répond à ces critères".
Resultat<QList<ClientTrouve>> chercherParNom(Exercice& exercice, const QString& nom, const QString& prenom);

} // namespace talor
