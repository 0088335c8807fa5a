#pragma once

#include "shell/shutdown.h"

#include <QHash>
#include <QMainWindow>

#include <functional>

class QStackedWidget;

namespace talor {

class BarreMenus;
class Entete;
class ImageLaterale;
class PanneauFacturation;
class PanneauRaccourcis;

/// The main window: the menu bar, the nine shortcuts, the sub-panel of the invoices, the trader's heading and side
/// pictures. Every function opens from here, as a modal dialog over it, and the process ends with it.
///
/// A function is hooked by one line, under the name of its entry in the menu:
///
///     form1.brancher(u"mnu_sect"_s, [&] { J_PROD(exercice, &form1).exec(); });
///
/// Its entry, and the shortcuts that act as it, are disabled until then. Its preconditions are looked at before it is
/// called, and what the window shows is brought up to date after it.
class Form1 : public QMainWindow
{
    Q_OBJECT

public:
    explicit Form1(Exercice& exercice);
    ~Form1() override;

    void brancher(const QString& entree, const std::function<void()>& fonction);
    /// Does what the entry does when it is chosen; nothing for one that isn't hooked.
    void executer(const QString& entree);

    /// Applies the state of the exercise in view: entries, shortcuts, heading, side pictures.
    void actualiser();

    /// Ends the process after a failure that leaves the exercise closed: no question, no copy into Archives.
    void terminer();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void brancherLesSiennes();
    PanneauFacturation* facturation();
    void ouvrirFacturation();
    void fermerFacturation();
    void actualiserMenus();
    void actualiserImages();
    void montrerPort();
    bool disponible(const QString& entree) const { return m_fonctions.contains(entree); }

    Exercice& m_exercice;
    QHash<QString, std::function<void()>> m_fonctions;
    Resolution m_resolution;
    BarreMenus* m_menus;
    Entete* m_entete;
    ImageLaterale* m_gauche;
    ImageLaterale* m_droite;
    QStackedWidget* m_pages;
    PanneauRaccourcis* m_raccourcis;
    PanneauFacturation* m_facturation = nullptr; ///< made when it is first opened
};

} // namespace talor
