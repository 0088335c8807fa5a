#pragma once

#include "core/configuration.h"
#include "core/installation.h"
#include "platform/store/recordset.h"

#include <array>
#include <memory>

namespace talor {

extern const std::array<QString, 7> NomsJours; ///< from "Dimanche"
extern const std::array<QString, 12> NomsMois; ///< from "Janvier"
extern const std::array<QString, 12> NomsMoisAr;

/// The exercise in view: the open database with the table recordsets that every dialog works on, the year, the
/// parameters of the trade and the trader's identity. The one object that dialogs share.
///
/// The table recordsets are replaced at each `OuvrirBase`; nothing may keep one across it.
class Exercice
{
public:
    Exercice(Installation installation, Configuration configuration, PointeurAnnee pointeur);
    ~Exercice();

    const Installation& installation() const { return m_installation; }
    Configuration& configuration() { return m_configuration; }

    PointeurAnnee pointeur;
    int Annee;                                ///< year of the exercise in view
    QString CheminBase;                       ///< full path of its file
    float Commission = 15;                    ///< percent
    float PrixConsigne = 100;                 ///< dinars a crate
    qint64 EffetSonore = 0;                   ///< 1 plays the sounds
    QString MotAcces;                         ///< access word in force; empty: the exercise operations are open
    quint16 Langue = Configuration::francais; ///< the Arabic texts are never taken

    bool estCourant() const { return Annee == pointeur.anneeCourante(); }
    /// Identity text by its number, 1 to 16.
    const QString& identite(int numero) const { return m_configuration.textes[static_cast<size_t>(numero - 1)]; }

    /// Sets `Annee` and `CheminBase`; the database must be closed.
    void choisirAnnee(int annee);
    /// Opens the file at `CheminBase` and its twenty table recordsets. Throws `store::Error`, with all closed again.
    void OuvrirBase();
    void FermerBase();
    bool estOuvert() const { return m_base != nullptr; }
    store::Database& Base() { return *m_base; }

    /// Loads the three parameters from the first row of `Permn`; an empty table gets its row with the defaults.
    void LireParametres();
    /// Puts identity texts 1, 2 and 3 at the head of the report texts.
    void EcrireEntete();

    store::Recordset Permn, Poissons, Clients, Armateurs, Chalutiers, L_Vente, Bordereaux, Consigne, Decomptes,
        Decomptes0, Marins, Marins0, Agents, Depenses, Recettes, Csse, Familles_C, Tampon1, Factures, textes;

private:
    Installation m_installation;
    Configuration m_configuration;
    std::unique_ptr<store::Database> m_base;
};

} // namespace talor
