#include "platform/reports/template_xml.h"

#include "platform/reports/units.h"

#include <QColor>

#include <cmath>

using namespace Qt::StringLiterals;

namespace reports {

TemplateXml::TemplateXml(const QByteArray& xml, const QString& name)
    : m_xml(xml)
    , m_name(name)
{}

void TemplateXml::refuse(const QString& what) const
{
    throw Error(linePrefix() + u"%1 : %2"_s.arg(m_xml.lineNumber()).arg(what));
}

void TemplateXml::refuse(const Error& error) const
{
    if (error.text().startsWith(linePrefix()))
        throw error;
    refuse(error.text());
}

QString TemplateXml::linePrefix() const
{
    return m_name + u", ligne "_s;
}

// --- elements --------------------------------------------------------------------------------------------------------

void TemplateXml::openRoot(QStringView element)
{
    if (!m_xml.readNextStartElement())
        refuse(u"le fichier n'est pas un modèle d'état"_s);
    if (m_xml.name() != element)
        refuse(u"« %1 » attendu, « %2 » trouvé"_s.arg(element, m_xml.name()));
}

bool TemplateXml::nextChild()
{
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::EndElement:
            return false;
        case QXmlStreamReader::Characters:
            if (!m_xml.isWhitespace())
                refuse(u"texte « %1 » hors d'un champ"_s.arg(m_xml.text().trimmed()));
            break;
        default:
            break;
        }
    }
    refuse(m_xml.errorString());
}

void TemplateXml::noChildren()
{
    const QString element = m_xml.name().toString();
    if (nextChild())
        refuse(u"« %1 » ne contient rien"_s.arg(element));
}

QString TemplateXml::readText()
{
    const QString text = m_xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
    if (m_xml.hasError())
        refuse(m_xml.errorString());
    return text;
}

// --- attributes ------------------------------------------------------------------------------------------------------

void TemplateXml::enter()
{
    m_attributes.clear();
    for (const QXmlStreamAttribute& attribute : m_xml.attributes())
        m_attributes.insert(attribute.name().toString(), attribute.value().toString());
}

void TemplateXml::finishAttributes()
{
    if (!m_attributes.isEmpty())
        refuse(u"attribut « %1 » inconnu dans « %2 »"_s.arg(m_attributes.firstKey(), m_xml.name()));
}

void TemplateXml::supply(const QMap<QString, QString>& attributes)
{
    for (auto it = attributes.begin(); it != attributes.end(); ++it) {
        if (!m_attributes.contains(it.key()))
            m_attributes.insert(it.key(), it.value());
    }
}

bool TemplateXml::has(QStringView attribute) const
{
    return m_attributes.contains(attribute.toString());
}

QString TemplateXml::take(QStringView attribute, const QString& otherwise)
{
    return has(attribute) ? m_attributes.take(attribute.toString()) : otherwise;
}

QString TemplateXml::takeNeeded(QStringView attribute)
{
    const QString value = take(attribute);
    if (value.isEmpty())
        refuse(u"« %1 » manque dans « %2 »"_s.arg(attribute, m_xml.name()));
    return value;
}

double TemplateXml::takeNumber(QStringView attribute, double otherwise)
{
    if (!has(attribute))
        return otherwise;
    const QString value = take(attribute);
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        refuse(u"« %1=\"%2\" » n'est pas un nombre"_s.arg(attribute, value));
    return number;
}

double TemplateXml::takeLength(QStringView attribute, double otherwise)
{
    return takeNumber(attribute, otherwise) * unitsPerMillimetre;
}

bool TemplateXml::takeFlag(QStringView attribute, bool otherwise)
{
    return takeChoice(attribute, otherwise, {{u"yes", true}, {u"no", false}});
}

QRgb TemplateXml::takeColor(QStringView attribute, QRgb otherwise)
{
    if (!has(attribute))
        return otherwise;
    const QString value = take(attribute);
    const QColor color(value);
    if (!color.isValid())
        refuse(u"« %1=\"%2\" » n'est pas une couleur"_s.arg(attribute, value));
    return color.rgb();
}

} // namespace reports
