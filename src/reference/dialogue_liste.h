#pragma once

#include "platform/controls/dialog.h"

#include <QTimer>

#include <functional>
#include <optional>

class QLabel;

namespace controls {
class CommandBar;
class CommandButton;
class Grid;
} // namespace controls

namespace talor {

/// A list of which one row is taken, by Enter, a double click or `Image1(0)`; Escape and `Image1(1)` take none.
/// `Image1(2)` and `Image1(3)` move one row down and up, and hide at the ends of the list. Typed letters go to the
/// first row that begins so.
class DialogueListe : public controls::Dialog
{
    Q_OBJECT

public:
    /// Shows the dialog; the row taken, from 0.
    std::optional<int> choisirRang();

protected:
    DialogueListe(QStringView nom, const QString& titre, QStringView nomListe, QWidget* parent);

    controls::Grid* liste() const { return m_liste; }
    /// Gives the row that begins so, -1 for none.
    void setRecherche(std::function<int(const QString& debut)> recherche) { m_recherche = std::move(recherche); }

    bool eventFilter(QObject* objet, QEvent* evenement) override;

signals:
    /// A move button was pressed.
    void deplace();

private:
    void executer(int index);
    void deplacer(int pas);
    void actualiserBouts(int rang);
    bool taper(const QString& texte);
    bool effacerFrappe();
    void oublierFrappe();
    void montrerFrappe();

    controls::Grid* m_liste;
    controls::CommandButton* m_descendre;
    controls::CommandButton* m_monter;
    QLabel* m_aide;
    std::function<int(const QString&)> m_recherche;
    QString m_frappe; ///< the letters typed so far
    QTimer m_oubli;
    std::optional<int> m_pris;
};

} // namespace talor
