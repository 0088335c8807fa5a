#pragma once

#include <QString>

#include <array>

namespace talor {

/// A month laid out in weeks that begin on Saturday, with one day selected. Years go from 1990 to 2100; a step that
/// would leave them is ignored. February has 29 days in every year divisible by 4.
class Calendrier
{
public:
    /// Cells of the six weeks, counted from 1; cell 0 never bears a day.
    static constexpr int nbCellules = 43;
    static constexpr int joursSemaine = 7;
    static constexpr int premiereAnnee = 1990;
    static constexpr int derniereAnnee = 2100;
    static const std::array<QString, joursSemaine> entetes;

    /// Stands on the day of a date text dd/MM/yyyy, on today when it is not one or its year is out of range.
    explicit Calendrier(const QString& date);

    int jour() const { return m_jour; }
    int mois() const { return m_mois; }
    int annee() const { return m_annee; }
    /// The selected day, dd/MM/yyyy.
    QString texte() const;
    /// The selected day in full: "Lundi 15 Juin 2026".
    QString enToutesLettres() const;

    /// Day of the month in each cell, 0 in the cells without one.
    std::array<int, nbCellules> cellules() const;
    /// Cell of a day of the month.
    int cellule(int jour) const { return decalage() + jour; }

    /// Another month or year keeps the selected day where it has it, and takes its last day otherwise.
    void choisirMois(int mois) { aller(m_jour, mois, m_annee); }
    void choisirAnnee(int annee) { aller(m_jour, m_mois, annee); }
    void choisirJour(int jour) { aller(jour, m_mois, m_annee); }
    void avancerMois(int nombre);
    void avancerAnnees(int nombre) { choisirAnnee(m_annee + nombre); }
    void avancerJours(int nombre);

private:
    int decalage() const;
    void aller(int jour, int mois, int annee);

    int m_jour;
    int m_mois;
    int m_annee;
};

} // namespace talor
