#include "platform/reports/template_reader.h"

#include "platform/reports/error.h"
#include "platform/reports/scanner.h"
#include "platform/reports/units.h"

#include <QColor>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace reports {

Template Template::load(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.exists())
        throw Error(u"Fichier '%1' absent"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        throw Error(u"Fichier '%1' illisible : %2"_s.arg(name, file.errorString()));
    // A batch asks a thousand times for one template.
    static QByteArray lastXml;
    static Template last;
    const QByteArray xml = file.readAll();
    if (xml != lastXml || name != last.name) {
        last = read(xml, name);
        lastXml = xml;
    }
    return last;
}

Template Template::read(const QByteArray& xml, const QString& name)
{
    return TemplateReader(xml, name).read();
}

TemplateReader::TemplateReader(const QByteArray& xml, const QString& name)
    : m_xml(xml)
{
    m_template.name = name;
}

void TemplateReader::refuse(const QString& what) const
{
    throw Error(u"%1, ligne %2 : %3"_s.arg(m_template.name).arg(m_xml.lineNumber()).arg(what));
}

Template TemplateReader::read()
{
    try {
        if (!m_xml.readNextStartElement())
            refuse(u"le fichier n'est pas un modèle d'état"_s);
        if (m_xml.name() != u"report")
            refuse(u"« report » attendu, « %1 » trouvé"_s.arg(m_xml.name()));
        enter();
        m_template.title = take(u"title");
        finishAttributes();
        while (nextChild()) {
            const QString element = m_xml.name().toString();
            if (element == u"page")
                readPage();
            else if (!m_hasPageWidth)
                refuse(u"« page » doit venir en premier"_s);
            else if (element == u"row")
                readRowTable();
            else if (element == u"style")
                readStyle();
            else if (element == u"sum" || element == u"count")
                readSum(element == u"count");
            else if (element == u"page-head")
                m_template.pageHeads.append(readBand());
            else if (element == u"page-foot")
                m_template.pageFoots.append(readBand());
            else if (element == u"section")
                m_template.sections.append(readSection());
            else
                refuse(u"élément « %1 » inconnu"_s.arg(element));
        }
        if (m_template.sections.isEmpty())
            refuse(u"aucune « section »"_s);
        checkGroups();
        checkTables();
    } catch (const Error& error) { // from a condition or a pattern, which know no line
        if (error.text().startsWith(m_template.name + u", ligne"_s))
            throw;
        refuse(error.text());
    }
    return std::move(m_template);
}

// --- what a report is made of ----------------------------------------------------------------------------------------

void TemplateReader::readPage()
{
    enter();
    m_template.pageSize = takeChoice(u"size", QPageSize::A4, {{u"A4", QPageSize::A4}, {u"A5", QPageSize::A5}});
    m_template.landscape = takeChoice(u"orientation", false, {{u"portrait", false}, {u"landscape", true}});
    const double left = takeLength(u"left", 15), top = takeLength(u"top", 12);
    const double right = takeLength(u"right", 15), bottom = takeLength(u"bottom", 12);
    m_template.margins = QMarginsF(left, top, right, bottom);
    m_fontSize = takeNumber(u"font-size", m_fontSize);
    finishAttributes();
    noChildren();

    Page page;
    page.size = m_template.pageSize;
    page.landscape = m_template.landscape;
    m_bodyWidth = page.extent().width() - left - right;
    if (m_bodyWidth <= 0 || page.extent().height() - top - bottom <= 0)
        refuse(u"les marges ne laissent pas de place"_s);
    m_hasPageWidth = true;
}

void TemplateReader::readStyle()
{
    enter();
    const QString name = takeNeeded(u"name");
    for (const QString& attribute : m_attributes.keys()) {
        if (!QStringList{u"size"_s, u"bold"_s, u"italic"_s, u"font"_s, u"color"_s, u"align"_s, u"fit"_s}.contains(
                attribute))
            refuse(u"attribut « %1 » inconnu dans « style »"_s.arg(attribute));
    }
    m_styles[name] = std::exchange(m_attributes, {});
    noChildren();
}

void TemplateReader::readRowTable()
{
    enter();
    m_template.rowTables.append(takeNeeded(u"table"));
    finishAttributes();
    noChildren();
}

void TemplateReader::readSum(bool isCount)
{
    enter();
    Sum sum;
    sum.isCount = isCount;
    sum.name = takeNeeded(u"name");
    const QString of = isCount ? take(u"of") : takeNeeded(u"of");
    Scanner scanner(of);
    while (!scanner.atEnd()) {
        const bool isSubtracted = scanner.accept(u"-");
        if (!isSubtracted && !scanner.accept(u"+") && !sum.parts.isEmpty())
            refuse(u"« + » ou « - » attendu dans « %1 »"_s.arg(of));
        const auto field = scanner.reference();
        if (!field)
            refuse(u"« {Table.champ} » attendu dans « %1 »"_s.arg(of));
        sum.parts.append({fieldReference(*field), isSubtracted});
    }
    sum.group = take(u"reset");
    if (sum.group == u"page")
        sum.reset = Sum::Reset::Page;
    else if (sum.group == u"row")
        sum.reset = Sum::Reset::Row;
    else if (!sum.group.isEmpty())
        sum.reset = Sum::Reset::Group;
    finishAttributes();
    noChildren();
    m_template.sums.append(sum);
}

Section TemplateReader::readSection()
{
    enter();
    Section section;
    section.startsPage = takeFlag(u"new-page", false);
    finishAttributes();
    readLevel(section, Level());
    if (section.source.table.isEmpty())
        refuse(u"section sans « source »"_s);
    if (section.details.isEmpty())
        refuse(u"section sans « detail »"_s);
    return section;
}

Source TemplateReader::readSource()
{
    enter();
    Source source;
    source.table = takeNeeded(u"table");
    Scanner order(take(u"order"));
    while (!order.atEnd()) {
        const bool isDescending = order.accept(u"-");
        const auto field = order.reference();
        if (!field)
            refuse(u"« order » illisible"_s);
        source.order.append((isDescending ? u"-"_s : QString()) + fieldIn(*field));
        order.accept(u",");
    }
    finishAttributes();
    while (nextChild()) {
        if (m_xml.name() != u"join")
            refuse(u"élément « %1 » inconnu dans « source »"_s.arg(m_xml.name()));
        enter();
        Source::Join join;
        join.table = takeNeeded(u"table");
        Scanner on(takeNeeded(u"on"));
        const auto left = on.reference();
        const bool hasSign = on.accept(u"=");
        const auto right = on.reference();
        if (!left || !hasSign || !right || !on.atEnd())
            refuse(u"« on » doit se lire « {Table.champ} = {Table.champ} »"_s);
        join.left = fieldIn(*left);
        join.right = fieldIn(*right);
        finishAttributes();
        noChildren();
        source.joins.append(join);
    }
    return source;
}

/// The content of a section or a group: its bands, and the group or the rows inside it.
void TemplateReader::readLevel(Section& section, Level level)
{
    const qsizetype depth = section.levels.size();
    section.levels.append(std::move(level));
    while (nextChild()) {
        const QString element = m_xml.name().toString();
        if (element == u"head")
            section.levels[depth].heads.append(readBand());
        else if (element == u"columns")
            section.levels[depth].columns.append(readBand());
        else if (element == u"foot")
            section.levels[depth].foots.append(readBand());
        else if (element == u"detail" && section.levels.size() == depth + 1)
            section.details.append(readBand());
        else if (element == u"group" && section.levels.size() == depth + 1 && section.details.isEmpty())
            readLevel(section, readGroupAttributes());
        else if (element == u"source" && depth == 0)
            section.source = readSource();
        else if (element == u"empty" && depth == 0)
            section.emptyBands.append(readBand());
        else
            refuse(u"élément « %1 » inconnu ou mal placé"_s.arg(element));
    }
}

Level TemplateReader::readGroupAttributes()
{
    enter();
    Level level;
    level.name = takeNeeded(u"name");
    Scanner by(takeNeeded(u"by"));
    const auto field = by.reference();
    if (!field || !by.atEnd())
        refuse(u"« by » doit se lire « {Table.champ} »"_s);
    level.by = fieldReference(*field);
    if (const QString order = take(u"order"); !order.isEmpty()) {
        const auto orderField = Scanner(order).reference();
        if (!orderField)
            refuse(u"« order » doit se lire « {Table.champ} »"_s);
        level.orderBy = fieldIn(*orderField);
    }
    level.startsDocument = takeFlag(u"new-document", false);
    level.startsPage = takeFlag(u"new-page", false) || level.startsDocument;
    finishAttributes();
    return level;
}

// --- bands and what they draw ----------------------------------------------------------------------------------------

Band TemplateReader::readBand()
{
    enter();
    Band band;
    band.height = takeLength(u"height", 0);
    band.when = readCondition();
    band.alternate = takeColor(u"alternate", 0);
    band.repeats = takeFlag(u"repeat", false);
    band.keeps = takeFlag(u"keep", true);
    finishAttributes();
    band.elements = readElements();
    return band;
}

QList<Element> TemplateReader::readElements()
{
    QList<Element> elements;
    while (nextChild()) {
        const QString element = m_xml.name().toString();
        if (element == u"text")
            elements.append(readText());
        else if (element == u"rule")
            elements.append(readRule());
        else if (element == u"frame")
            elements.append(readFrame());
        else if (element == u"stack")
            elements.append(readStack());
        else
            refuse(u"élément « %1 » inconnu dans une bande"_s.arg(element));
    }
    return elements;
}

Element TemplateReader::readText()
{
    enter();
    Element element;
    readFontAttributes(element);
    element.place = readPlace(true);
    element.middle = takeChoice(u"valign", false, {{u"top", false}, {u"middle", true}});
    element.when = readCondition();
    finishAttributes();
    const QString text = m_xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
    if (m_xml.hasError())
        refuse(m_xml.errorString());
    element.pattern = Pattern(text, [this](const QString& name) { return resolve(name); });
    return element;
}

Element TemplateReader::readRule()
{
    enter();
    Element element;
    element.kind = Element::Kind::Rule;
    const bool isUpright = has(u"h");
    element.place = readPlace(!isUpright);
    element.penWidth = takeNumber(u"width", 0.5) * unitsPerPoint;
    element.color = takeColor(u"color", 0xFF000000);
    element.stretches = takeFlag(u"stretch", false);
    element.when = readCondition();
    finishAttributes();
    noChildren();
    return element;
}

Element TemplateReader::readFrame()
{
    enter();
    Element element;
    element.kind = Element::Kind::Frame;
    element.place = readPlace(true);
    element.fill = takeColor(u"fill", 0);
    element.penWidth = takeNumber(u"width", element.fill ? 0 : 0.5) * unitsPerPoint;
    element.color = takeColor(u"color", 0xFF000000);
    element.radius = takeLength(u"radius", 0);
    element.stretches = takeFlag(u"stretch", false);
    element.when = readCondition();
    finishAttributes();
    noChildren();
    return element;
}

Element TemplateReader::readStack()
{
    enter();
    Element element;
    element.kind = Element::Kind::Stack;
    element.place = readPlace(true);
    element.below = takeLength(u"below", 0);
    element.when = readCondition();
    finishAttributes();
    while (nextChild()) {
        if (m_xml.name() != u"text")
            refuse(u"« text » attendu dans « stack »"_s);
        element.children.append(readText());
    }
    return element;
}

void TemplateReader::readFontAttributes(Element& element)
{
    if (const QString name = take(u"style"); !name.isEmpty()) {
        const auto style = m_styles.constFind(name);
        if (style == m_styles.constEnd())
            refuse(u"style « %1 » inconnu"_s.arg(name));
        for (auto it = style->begin(); it != style->end(); ++it) {
            if (!m_attributes.contains(it.key())) // what the field says itself comes first
                m_attributes.insert(it.key(), it.value());
        }
    }
    const double size = takeNumber(u"size", m_fontSize);
    if (size < 3 || size > 200)
        refuse(u"taille de caractères hors limites"_s);
    element.font.size = static_cast<quint16>(qRound(size * unitsPerPoint));
    element.font.bold = takeFlag(u"bold", false);
    element.font.italic = takeFlag(u"italic", false);
    element.font.fixedPitch = takeChoice(u"font", false, {{u"sans", false}, {u"mono", true}});
    element.color = takeColor(u"color", 0xFF000000);
    element.align = takeChoice(u"align", Align::Left,
                               {{u"left", Align::Left}, {u"center", Align::Center}, {u"right", Align::Right}});
    element.fit =
        takeChoice(u"fit", Fit::Shrink, {{u"shrink", Fit::Shrink}, {u"elide", Fit::Elide}, {u"wrap", Fit::Wrap}});
}

/// A width that is not given reaches to the right margin, or is nothing for an upright rule.
QRectF TemplateReader::readPlace(bool reachesMargin)
{
    const double x = takeLength(u"x", 0), y = takeLength(u"y", 0);
    const double toMargin = m_bodyWidth - x;
    const double width = has(u"w") ? takeLength(u"w", 0) : reachesMargin ? toMargin : 0;
    const double height = takeLength(u"h", 0);
    if (x < 0 || y < 0 || width < 0 || height < 0)
        refuse(u"place hors de la page"_s);
    if (width > toMargin + 1)
        refuse(u"« %1 » dépasse la marge de droite"_s.arg(m_xml.name()));
    return {x, y, width, height};
}

Condition TemplateReader::readCondition()
{
    Condition condition = Condition::parse(take(u"when"));
    condition.bind([this](const QString& name) { return resolve(name); });
    return condition;
}

// --- attributes ------------------------------------------------------------------------------------------------------

void TemplateReader::enter()
{
    m_attributes.clear();
    for (const QXmlStreamAttribute& attribute : m_xml.attributes())
        m_attributes.insert(attribute.name().toString(), attribute.value().toString());
}

void TemplateReader::finishAttributes()
{
    if (!m_attributes.isEmpty())
        refuse(u"attribut « %1 » inconnu dans « %2 »"_s.arg(m_attributes.firstKey(), m_xml.name()));
}

bool TemplateReader::has(QStringView attribute) const
{
    return m_attributes.contains(attribute.toString());
}

QString TemplateReader::take(QStringView attribute, const QString& otherwise)
{
    return has(attribute) ? m_attributes.take(attribute.toString()) : otherwise;
}

QString TemplateReader::takeNeeded(QStringView attribute)
{
    const QString value = take(attribute);
    if (value.isEmpty())
        refuse(u"« %1 » manque dans « %2 »"_s.arg(attribute, m_xml.name()));
    return value;
}

double TemplateReader::takeNumber(QStringView attribute, double otherwise)
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

double TemplateReader::takeLength(QStringView attribute, double otherwise)
{
    return takeNumber(attribute, otherwise) * unitsPerMillimetre;
}

bool TemplateReader::takeFlag(QStringView attribute, bool otherwise)
{
    return takeChoice(attribute, otherwise, {{u"yes", true}, {u"no", false}});
}

QRgb TemplateReader::takeColor(QStringView attribute, QRgb otherwise)
{
    if (!has(attribute))
        return otherwise;
    const QString value = take(attribute);
    const QColor color(value);
    if (!color.isValid())
        refuse(u"« %1=\"%2\" » n'est pas une couleur"_s.arg(attribute, value));
    return color.rgb();
}

template<class T>
T TemplateReader::takeChoice(QStringView attribute, T otherwise,
                             std::initializer_list<std::pair<QStringView, T>> choices)
{
    if (!has(attribute))
        return otherwise;
    const QString value = take(attribute);
    for (const auto& [name, choice] : choices) {
        if (value == name)
            return choice;
    }
    refuse(u"« %1=\"%2\" » : valeur inconnue"_s.arg(attribute, value));
}

// --- names, and the shape of the file --------------------------------------------------------------------------------

/// Stands on the next child of the current element, or on its end.
bool TemplateReader::nextChild()
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

void TemplateReader::noChildren()
{
    const QString element = m_xml.name().toString();
    if (nextChild())
        refuse(u"« %1 » ne contient rien"_s.arg(element));
}

Reference TemplateReader::resolve(const QString& name)
{
    if (name == u"page")
        return {Reference::Kind::Page};
    if (name == u"pages")
        return {Reference::Kind::Pages};
    if (name == u"today")
        return {Reference::Kind::Today};
    for (int i = 0; i < m_template.sums.size(); ++i) {
        if (m_template.sums[i].name == name)
            return {Reference::Kind::Sum, i};
    }
    return fieldReference(name);
}

Reference TemplateReader::fieldReference(const QString& name)
{
    const QString field = fieldIn(name);
    auto& names = m_template.fieldNames;
    for (int i = 0; i < names.size(); ++i) {
        if (names[i].compare(field, Qt::CaseInsensitive) == 0)
            return {Reference::Kind::Field, i};
    }
    names.append(field);
    return {Reference::Kind::Field, static_cast<int>(names.size()) - 1};
}

QString TemplateReader::fieldIn(const QString& name)
{
    if (!isFieldName(name))
        refuse(u"« {%1} » : ni un champ « {Table.champ} », ni un total du modèle"_s.arg(name));
    return name;
}

/// Sums stand before the groups that they are reset by.
void TemplateReader::checkGroups()
{
    for (const Sum& sum : m_template.sums) {
        const auto hasGroup = [&](const Section& section) {
            return std::any_of(section.levels.begin(), section.levels.end(),
                               [&](const Level& level) { return level.name == sum.group; });
        };
        if (sum.reset == Sum::Reset::Group &&
            std::none_of(m_template.sections.begin(), m_template.sections.end(), hasGroup))
            refuse(u"« reset=\"%1\" » : groupe inconnu"_s.arg(sum.group));
    }
}

/// A field of a table that no source reads would print as a blank for ever.
void TemplateReader::checkTables()
{
    for (const QString& field : m_template.fields()) {
        const QString table = tableOf(field);
        const bool known = m_template.rowTables.contains(table, Qt::CaseInsensitive) ||
                           std::any_of(m_template.sections.begin(), m_template.sections.end(),
                                       [&](const Section& section) { return section.source.contains(table); });
        if (!known)
            refuse(u"« {%1} » : la table « %2 » n'est pas dans les sources"_s.arg(field, table));
    }
}

} // namespace reports
