#pragma once

#include "platform/reports/template.h"

#include <QXmlStreamReader>

namespace reports {

/// Reads the XML of one template. What it doesn't know it refuses: a misspelt attribute is an error with its line.
class TemplateReader
{
public:
    TemplateReader(const QByteArray& xml, const QString& name);

    Template read();

private:
    // Each reads one element, standing on its start, to its end.
    void readPage();
    void readStyle();
    void readRowTable();
    void readSum(bool isCount);
    Section readSection();
    Source readSource();
    void readLevel(Section& section, Level level);
    Level readGroupAttributes();
    Band readBand();
    QList<Element> readElements();
    Element readText();
    Element readRule();
    Element readFrame();
    Element readStack();

    void readFontAttributes(Element& element);
    QRectF readPlace(bool reachesMargin);
    Condition readCondition();

    // Attributes of the current element: taking one marks it as known.
    bool has(QStringView attribute) const;
    QString take(QStringView attribute, const QString& otherwise = {});
    QString takeNeeded(QStringView attribute);
    double takeNumber(QStringView attribute, double otherwise);
    double takeLength(QStringView attribute, double otherwise); ///< in millimetres; gives units
    bool takeFlag(QStringView attribute, bool otherwise);
    QRgb takeColor(QStringView attribute, QRgb otherwise);
    template<class T>
    T takeChoice(QStringView attribute, T otherwise, std::initializer_list<std::pair<QStringView, T>> choices);
    void enter();
    void finishAttributes();

    bool nextChild();
    void noChildren();
    Reference resolve(const QString& name);
    Reference fieldReference(const QString& name);
    QString fieldIn(const QString& text);
    void checkGroups();
    void checkTables();

    [[noreturn]] void refuse(const QString& what) const;

    QXmlStreamReader m_xml;
    Template m_template;
    QMap<QString, QString> m_attributes; ///< of the current element, not yet taken
    QMap<QString, QMap<QString, QString>> m_styles;
    double m_fontSize = 9;
    bool m_hasPageWidth = false;
    double m_bodyWidth = 0; ///< between the margins
};

} // namespace reports
