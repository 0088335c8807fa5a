#pragma once

#include "core/report_window.h"
#include "invoicing/invoice_register.h"
#include "platform/controls/dialog.h"

#include <array>

class QLabel;

namespace controls {
class CommandBar;
class CommandButton;
class Grid;
} // namespace controls

namespace talor {

class CadreFiltreFactures;
class CadreImpression;
struct LotFactures;

/// The list of invoices: filtered, marked, printed one by one, in batches and as a listing. What `FACTURES` and
/// `Fact_Bis` have in common. The filter frame and the print panel stand over the list, which keeps its place.
class DialogueFactures : public controls::Dialog
{
    Q_OBJECT

public:
    /// Meaning of the indexes of `Image1`.
    enum Commande
    {
        Filtre,
        Facture,
        Listing,
        Quitter
    };

protected:
    DialogueFactures(QStringView nom, const QString& titre, Exercice& exercice, RegistreFactures::Porte porte,
                     const QString& jour, QWidget* parent);

    controls::CommandButton* commande(Commande index) const;
    QSize sizeHint() const override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* creerTitres();
    void creerListe();
    QWidget* creerSommes();
    QWidget* creerMarques();
    void creerCommandes();

    void montrerListe();
    void montrerCadre(QWidget* cadre, bool ouvert);
    void fermerCadre(QWidget* cadre);
    void viserListe();
    void executer(int index);
    void ouvrirImpression();
    void appliquer(const FiltreFactures& filtre);

    void basculer(int rang);
    void marquer(bool marquee);
    void marquerTout(bool marquee);

    void PrintChoice();
    LotFactures composer(const QList<int>& rangs);

    Exercice& m_exercice;
    RegistreFactures m_registre;
    controls::Grid* m_liste;
    CadreFiltreFactures* m_filtre;
    CadreImpression* m_impression;
    std::array<QLabel*, 2> m_titres{};
    std::array<QLabel*, 3> m_sommes{};
    QLabel* m_nombre = nullptr;
    QList<controls::CommandButton*> m_marques;
    controls::CommandBar* m_commandes;
};

} // namespace talor
