#pragma once

#include "platform/reports/error.h"

#include <QMap>
#include <QRgb>
#include <QXmlStreamReader>

#include <initializer_list>
#include <utility>

namespace reports {

/// Walks through the XML of a template one element at a time. What is wrong with the file is told with its name and
/// line.
class TemplateXml
{
public:
    TemplateXml(const QByteArray& xml, const QString& name);

    /// Stands on the outermost element, which must be the one named.
    void openRoot(QStringView element);
    /// Stands on the next child of the current element, or on its end.
    bool nextChild();
    /// To the end of an element that must be empty.
    void noChildren();
    /// The text of an element that holds nothing else, to its end.
    QString readText();
    QStringView name() const { return m_xml.name(); }

    /// Takes up the attributes of the current element. Taking one marks it as known.
    void enter();
    /// Refuses the attributes that nothing took.
    void finishAttributes();
    const QMap<QString, QString>& attributes() const { return m_attributes; } ///< not yet taken
    QMap<QString, QString> takeAll() { return std::exchange(m_attributes, {}); }
    /// As if the file said so, where it doesn't say otherwise.
    void supply(const QMap<QString, QString>& attributes);

    bool has(QStringView attribute) const;
    QString take(QStringView attribute, const QString& otherwise = {});
    QString takeNeeded(QStringView attribute);
    double takeNumber(QStringView attribute, double otherwise);
    double takeLength(QStringView attribute, double otherwise); ///< in millimetres; gives units
    bool takeFlag(QStringView attribute, bool otherwise);
    QRgb takeColor(QStringView attribute, QRgb otherwise);
    template<class T>
    T takeChoice(QStringView attribute, T otherwise, std::initializer_list<std::pair<QStringView, T>> choices);

    [[noreturn]] void refuse(const QString& what) const;
    /// The same for an error of another, a condition or a pattern, which knows no line. One that has its line stands.
    [[noreturn]] void refuse(const Error& error) const;

private:
    QString linePrefix() const;

    QXmlStreamReader m_xml;
    QString m_name; ///< of the file
    QMap<QString, QString> m_attributes;
};

template<class T>
T TemplateXml::takeChoice(QStringView attribute, T otherwise, std::initializer_list<std::pair<QStringView, T>> choices)
{
    if (!has(attribute))
        return otherwise;
    const QString value = take(attribute);
    for (const auto& [name, choice] : choices) {
        if (value == name)
            return choice;
    }
    refuse(QStringLiteral("« %1=\"%2\" » : valeur inconnue").arg(attribute, value));
}

} // namespace reports
