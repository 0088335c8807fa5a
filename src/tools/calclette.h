#pragma once

#include "platform/controls/dialog.h"

#include <QList>

#include <optional>

class QLabel;

namespace controls {
class NumberPad;
class TextField;
} // namespace controls

namespace talor {

class Exercice;

/// The figures of a sale line, as typed; empty where none was.
struct Chiffres
{
    QString cageots;
    QString poids;
    QString pu;

    friend bool operator==(const Chiffres&, const Chiffres&) = default;
};

/// The premiums in dinars and the rate of the commission in percent, as typed.
struct PrimesEtTaux
{
    QString primes;
    QString taux; ///< empty where 100 or more was given

    friend bool operator==(const PrimesEtTaux&, const PrimesEtTaux&) = default;
};

/// The number pad of a sale, for a finger, a mouse or the keys. In one use the number typed is moved into the crates,
/// the weight or the unit price; in the other it goes as it is typed into the premiums or the rate.
class Calclette : public controls::Dialog
{
    Q_OBJECT

public:
    enum class Emploi
    {
        Chiffres,
        Primes
    };

    /// Nothing when the user gave up.
    static std::optional<Chiffres> demanderChiffres(QWidget* parent, const Exercice& exercice);
    /// The boxes open on `actuels`.
    static std::optional<PrimesEtTaux> demanderPrimes(QWidget* parent, const Exercice& exercice,
                                                      const PrimesEtTaux& actuels = {});

    Calclette(Emploi emploi, const Exercice& exercice, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool valide() { return exec() == valideCode; }
    QWidget* creerValeurs();
    QWidget* creerCases();
    QWidget* creerPave();
    void suivreClics(const Exercice& exercice);
    void mettreEnMain(int rang);
    void poser(int rang);
    void effacer();
    void entrer();
    void valider();
    bool taperAuPave(const QKeyEvent& event);

    static constexpr int valideCode = 1;

    const Emploi m_emploi;
    controls::NumberPad* m_pave;
    QLabel* m_legende;                   ///< of the box in hand
    QList<QLabel*> m_valeurs;            ///< first use
    QList<controls::TextField*> m_cases; ///< second use
    int m_enMain = 0;
};

} // namespace talor
