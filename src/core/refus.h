#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace talor {

enum class Icone
{
    Aucune,
    Arret,
    Avertissement,
    Information,
    Question
};

/// A message as the program shows it: what logic returns in place of showing it.
struct Refus
{
    QString texte;
    QString titre = QStringLiteral("ATTENTION");
    Icone icone = Icone::Arret;

    friend bool operator==(const Refus&, const Refus&) = default;
};

/// The value of an action, or the refusal that stands in its place.
template<class T> class Resultat
{
public:
    Resultat(T valeur)
        : m_contenu(std::move(valeur))
    {}
    Resultat(Refus refus)
        : m_contenu(std::move(refus))
    {}

    explicit operator bool() const { return std::holds_alternative<T>(m_contenu); }
    const T& operator*() const { return std::get<T>(m_contenu); }
    const T* operator->() const { return &std::get<T>(m_contenu); }
    const Refus& refus() const { return std::get<Refus>(m_contenu); }

private:
    std::variant<T, Refus> m_contenu;
};

} // namespace talor
