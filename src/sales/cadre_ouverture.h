#pragma once

#include "sales/bordereau_register.h"

#include <QFrame>

class QAbstractButton;
class QComboBox;
class QLabel;
class QToolButton;

namespace controls {
class CommandButton;
class TextField;
} // namespace controls

namespace talor {

/// The frame `SSFrame1` of the register, in which a bordereau is begun or reopened: its number, date and boat. Enter
/// walks from the date to the boat and confirms there. A reopened bordereau is only confirmed.
class CadreOuverture : public QFrame
{
    Q_OBJECT

public:
    CadreOuverture(Exercice& exercice, const RegistreBordereaux& registre, QWidget* dialogue);

    /// Shows a bordereau, with the focus where the entry begins.
    void ouvrir(const CadreBordereau& cadre);
    /// As filled in.
    CadreBordereau cadre() const;
    void viserDate();

    QAbstractButton* annuler() const;

signals:
    void accepte();
    void abandonne();

private:
    CadreBordereau m_ouvert;
    const RegistreBordereaux& m_registre;
    QLabel* m_titre;
    controls::TextField* m_numero;
    controls::TextField* m_date;
    QToolButton* m_calendrier;
    QComboBox* m_bateau;
    QToolButton* m_recherche;
    controls::CommandButton* m_ok;
    controls::CommandButton* m_annuler;
};

} // namespace talor
