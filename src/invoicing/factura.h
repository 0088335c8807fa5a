#pragma once

#include "invoicing/invoicing.h"
#include "platform/controls/dialog.h"

#include <array>

class QComboBox;
class QGridLayout;

namespace controls {
class CommandButton;
class TextField;
} // namespace controls

namespace talor {

/// Turns the open sale lines into invoices, of one client or of all, then opens them in `Fact_Bis` to be printed.
class Factura : public controls::Dialog
{
    Q_OBJECT

public:
    explicit Factura(Exercice& exercice, QWidget* parent = nullptr);

private:
    /// Who is invoiced: one of a list, or all. The number typed and the combo show the same entry.
    struct Choix
    {
        ListeChoix liste;
        controls::TextField* numero = nullptr;
        QComboBox* combo = nullptr;

        qint64 num() const;
    };
    enum Rang
    {
        Client,
        Bateau,
        nbChoix
    };

    QWidget* creerCriteres();
    void creerChoix(QGridLayout* grille, Rang rang);
    void chercher(Rang rang);
    void poserNum(Rang rang, qint64 num);
    bool prendreNum(Rang rang);
    void executer(int index);
    void facturer();
    void refuser(const Refus& refus, controls::TextField* champ);
    Resultat<BilanFacturation> calculer(const DemandeFacturation& demande);

    Exercice& m_exercice;
    controls::TextField* m_date = nullptr;
    std::array<Choix, nbChoix> m_choix;
    controls::CommandButton* m_facturer = nullptr;
};

} // namespace talor
