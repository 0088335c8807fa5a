#pragma once

#include <QFrame>

#include <functional>

class QAbstractButton;

namespace talor {

class GrandBouton;
struct Raccourci;

/// Which of a panel's functions can be called now, by the name of their entry.
using Disponible = std::function<bool(const QString& entree)>;

/// The nine large shortcuts of the main window, `Image5(0)` to `Image5(8)` with their captions `Label2`.
class PanneauRaccourcis : public QWidget
{
    Q_OBJECT

public:
    explicit PanneauRaccourcis(QWidget* parent = nullptr);

    /// Disables the shortcuts of what is not available, and hides those that an old exercise does not have.
    void actualiser(const Disponible& disponible, bool exerciceCourant);
    /// Gives the focus to the first shortcut that can be pressed.
    void prendreFocus();

signals:
    void choisi(const QString& entree);

private:
    QList<GrandBouton*> m_boutons;
};

/// `SSPanel1`, the invoices on its left and the listings on its right: eight buttons `SSPanel2`, of which one is lit,
/// and `Image27` that closes it, as Escape does.
class PanneauFacturation : public QFrame
{
    Q_OBJECT

public:
    explicit PanneauFacturation(QWidget* parent = nullptr);

    void actualiser(const Disponible& disponible);
    void prendreFocus();

signals:
    void choisi(const QString& entree);
    void ferme();

private:
    GrandBouton* ajouterBouton(int rang);
    void allumerSeul(const GrandBouton* designe);

    QList<GrandBouton*> m_boutons;
    QAbstractButton* m_fermer;
};

} // namespace talor
