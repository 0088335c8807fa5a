#pragma once

#include "reference/dialogue_liste.h"
#include "reference/selection.h"

namespace talor {

/// Asks for a client, a boat or a product: one dialog over three tables. `demander` shows it, after the message of an
/// empty table not at all, and returns nothing when the user gave up.
///
///     if (const auto client = Q_Client::demander(this, m_exercice))
///         champ->setText(client->ordre);
class Q_Selection : public DialogueListe
{
    Q_OBJECT

public:
    /// Shows the dialog.
    std::optional<Selection> choisir();

protected:
    Q_Selection(QStringView nom, const QString& titre, const Exercice& exercice, ListeSelection liste, QWidget* parent);

private:
    ListeSelection m_lignes;
};

class Q_Client : public Q_Selection
{
    Q_OBJECT

public:
    static std::optional<Selection> demander(QWidget* parent, Exercice& exercice);

    Q_Client(const Exercice& exercice, ListeSelection liste, QWidget* parent = nullptr);
};

class Q_Bateau : public Q_Selection
{
    Q_OBJECT

public:
    static std::optional<Selection> demander(QWidget* parent, Exercice& exercice);

    Q_Bateau(const Exercice& exercice, ListeSelection liste, QWidget* parent = nullptr);
};

class Q_Poisson : public Q_Selection
{
    Q_OBJECT

public:
    static std::optional<Selection> demander(QWidget* parent, Exercice& exercice);

    Q_Poisson(const Exercice& exercice, ListeSelection liste, QWidget* parent = nullptr);
};

} // namespace talor
