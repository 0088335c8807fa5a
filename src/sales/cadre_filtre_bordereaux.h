#pragma once

#include "sales/bordereau_register.h"

#include <QFrame>

#include <array>

class QAbstractButton;
class QBoxLayout;
class QComboBox;
class QGridLayout;

namespace controls {
class CommandButton;
class TextField;
} // namespace controls

namespace talor {

/// The frame `SSFrame2` in which the bordereaux listed are chosen: of a month or of a period, each with an OK of its
/// own, and of one boat or of all. Ctrl+Enter is the OK of the line that has the focus.
class CadreFiltreBordereaux : public QFrame
{
    Q_OBJECT

public:
    CadreFiltreBordereaux(Exercice& exercice, const RegistreBordereaux& registre, QWidget* dialogue);

    /// Shows what was chosen last, with the focus on the boat.
    void ouvrir();
    /// Puts the focus in the field of a refused filter that is to be typed anew.
    void viser(const FiltreBordereaux& refuse);

    const QList<QAbstractButton*>& annuler() const { return m_annuler; }

signals:
    void accepte(const talor::FiltreBordereaux& filtre);
    void abandonne();

private:
    QBoxLayout* creerBateau(Exercice& exercice, QWidget* dialogue);
    QBoxLayout* creerMois(QWidget* dialogue);
    QBoxLayout* creerPeriode(QWidget* dialogue);
    controls::CommandButton* ajouterOk(QGridLayout* grille, int rang, FiltreBordereaux::Genre genre);
    FiltreBordereaux filtre(FiltreBordereaux::Genre genre) const;
    bool estDansPeriode() const;

    const RegistreBordereaux& m_registre;
    QComboBox* m_bateau;
    QComboBox* m_mois;
    std::array<controls::TextField*, 2> m_dates{};
    controls::CommandButton* m_okMois = nullptr;
    controls::CommandButton* m_okPeriode = nullptr;
    QList<QAbstractButton*> m_annuler;
};

} // namespace talor
