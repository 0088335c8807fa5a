#pragma once

#include "platform/controls/dialog.h"
#include "reference/filtre.h"

#include <array>
#include <optional>

class QButtonGroup;
class QComboBox;
class QTabWidget;

namespace controls {
class TextField;
}

namespace talor {

class Exercice;

/// Asks for the operations to list: a month or a period, and the recent ones, the archived ones or all.
///
///     const auto filtre = Q_Filtre::demander(this, m_exercice);
///     if (filtre && filtre->parMois()) ...
class Q_Filtre : public controls::Dialog
{
    Q_OBJECT

public:
    /// Nothing when the user gave up.
    static std::optional<Filtre> demander(QWidget* parent, const Exercice& exercice);

    explicit Q_Filtre(const Exercice& exercice, QWidget* parent = nullptr);

    const std::optional<Filtre>& choisi() const { return m_choisi; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* creerPageMois();
    QWidget* creerPagePeriode(const Exercice& exercice);
    QWidget* creerArchives();
    void changerPage();
    void avancerMois(int pas);
    void prendre();

    QTabWidget* m_pages;
    QComboBox* m_mois;
    std::array<controls::TextField*, 2> m_dates{};
    QButtonGroup* m_archive;
    std::optional<Filtre> m_choisi;
};

} // namespace talor
