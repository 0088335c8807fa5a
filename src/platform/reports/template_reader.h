#pragma once

#include "platform/reports/template.h"
#include "platform/reports/template_xml.h"

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

    Reference resolve(const QString& name);
    Reference fieldReference(const QString& name);
    QString fieldIn(const QString& text);
    void checkGroups();
    void checkTables();

    TemplateXml m_xml;
    Template m_template;
    QMap<QString, QMap<QString, QString>> m_styles;
    double m_fontSize = 9;
    bool m_hasPageWidth = false;
    double m_bodyWidth = 0; ///< between the margins
};

} // namespace reports
