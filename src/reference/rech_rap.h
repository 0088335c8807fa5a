#pragma once

#include "platform/controls/dialog.h"
#include "reference/recherche.h"

#include <functional>

namespace controls {
class CommandBar;
class CommandButton;
class Grid;
class TextField;
} // namespace controls

namespace talor {

/// The quick search of a client, by number or by the beginning of the name. It opens the account of the one found.
///
///     Rech_Rap(exercice, [&](QWidget* parent, qint64 num) { M_CLIENT::zoomer(parent, exercice, num); }, this).exec();
class Rech_Rap : public controls::Dialog
{
    Q_OBJECT

public:
    /// Shows the account of the client `num`; without it "ZOOM" is disabled.
    using Zoom = std::function<void(QWidget* parent, qint64 num)>;

    explicit Rech_Rap(Exercice& exercice, Zoom zoom = {}, QWidget* parent = nullptr);

private:
    QWidget* creerChamps();
    void executer(int index);
    void montrerClients(const QList<ClientTrouve>& clients);
    void chercherNumero();
    void chercherNom();
    void refuser(const Refus& refus, controls::TextField* champ);
    void zoomer();
    void autreChoix();

    Exercice& m_exercice;
    Zoom m_zoom;
    controls::TextField* m_numero;
    controls::TextField* m_nom;
    controls::TextField* m_prenom;
    controls::Grid* m_liste;
    controls::CommandButton* m_boutonZoom = nullptr;
    QList<ClientTrouve> m_clients; ///< as listed
};

} // namespace talor
