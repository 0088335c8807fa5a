#pragma once

#include "invoicing/invoice_register.h"
#include "platform/controls/entry_panel.h"

#include <array>

class QAbstractButton;
class QButtonGroup;
class QComboBox;
class QGroupBox;
class QRadioButton;
class QToolButton;

namespace controls {
class TextField;
}

namespace talor {

/// The filter frame `SSFrame1` of the invoices: a client, paid or not, in which order, and of a day or of a period.
/// Each of the two has its own OK and cancel.
class CadreFiltreFactures : public controls::EntryPanel
{
    Q_OBJECT

public:
    /// `jour` is the day that the list opens on. In `Fact_Bis` two buttons step through the clients.
    CadreFiltreFactures(Exercice& exercice, const RegistreFactures& registre, RegistreFactures::Porte porte,
                        const QString& jour);

    /// The focus goes to the date of the kind last asked for.
    void ouvrir();
    /// To the field that a refused filter is about.
    void viserFaute();
    QAbstractButton* annuler() const { return m_annuler; }

signals:
    void accepte(const FiltreFactures& filtre);
    void abandonne();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Genre = FiltreFactures::Genre;

    void creerClient(RegistreFactures::Porte porte);
    QToolButton* creerPas(int index, int pas);
    void montrerPas();
    void chercherClient();
    void creerOptions();
    QGroupBox* creerGenre(Genre genre, const QList<QStringView>& legendes, int premierChamp);
    void creerDates(const QString& jour);
    void accepter(Genre genre);

    Exercice& m_exercice;
    const RegistreFactures& m_registre;
    QComboBox* m_client = nullptr;
    QToolButton* m_precedent = nullptr; ///< in `Fact_Bis` alone
    QToolButton* m_suivant = nullptr;
    QButtonGroup* m_etat = nullptr;
    QRadioButton* m_parClient = nullptr;
    std::array<controls::TextField*, 3> m_dates{}; ///< the day, then the period
    QAbstractButton* m_annuler = nullptr;
    Genre m_genre = Genre::Jour;
};

} // namespace talor
