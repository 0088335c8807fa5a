#include "platform/reports/template_reader.h"

#include "platform/reports/scanner.h"
#include "platform/reports/units.h"

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
    : m_xml(xml, name)
{
    m_template.name = name;
}

Template TemplateReader::read()
{
    try {
        m_xml.openRoot(u"report");
        m_xml.enter();
        m_template.title = m_xml.take(u"title");
        m_xml.finishAttributes();
        while (m_xml.nextChild()) {
            const QString element = m_xml.name().toString();
            if (element == u"page")
                readPage();
            else if (!m_hasPageWidth)
                m_xml.refuse(u"« page » doit venir en premier"_s);
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
                m_xml.refuse(u"élément « %1 » inconnu"_s.arg(element));
        }
        if (m_template.sections.isEmpty())
            m_xml.refuse(u"aucune « section »"_s);
        checkGroups();
        checkTables();
    } catch (const Error& error) { // from a condition or a pattern, which know no line
        m_xml.refuse(error);
    }
    return std::move(m_template);
}

// --- what a report is made of ----------------------------------------------------------------------------------------

void TemplateReader::readPage()
{
    m_xml.enter();
    m_template.pageSize = m_xml.takeChoice(u"size", QPageSize::A4, {{u"A4", QPageSize::A4}, {u"A5", QPageSize::A5}});
    m_template.landscape = m_xml.takeChoice(u"orientation", false, {{u"portrait", false}, {u"landscape", true}});
    const double left = m_xml.takeLength(u"left", 15), top = m_xml.takeLength(u"top", 12);
    const double right = m_xml.takeLength(u"right", 15), bottom = m_xml.takeLength(u"bottom", 12);
    m_template.margins = QMarginsF(left, top, right, bottom);
    m_fontSize = m_xml.takeNumber(u"font-size", m_fontSize);
    m_xml.finishAttributes();
    m_xml.noChildren();

    Page page;
    page.size = m_template.pageSize;
    page.landscape = m_template.landscape;
    m_bodyWidth = page.extent().width() - left - right;
    if (m_bodyWidth <= 0 || page.extent().height() - top - bottom <= 0)
        m_xml.refuse(u"les marges ne laissent pas de place"_s);
    m_hasPageWidth = true;
}

void TemplateReader::readStyle()
{
    m_xml.enter();
    const QString name = m_xml.takeNeeded(u"name");
    for (const QString& attribute : m_xml.attributes().keys()) {
        if (!QStringList{u"size"_s, u"bold"_s, u"italic"_s, u"font"_s, u"color"_s, u"align"_s, u"fit"_s}.contains(
                attribute))
            m_xml.refuse(u"attribut « %1 » inconnu dans « style »"_s.arg(attribute));
    }
    m_styles[name] = m_xml.takeAll();
    m_xml.noChildren();
}

void TemplateReader::readRowTable()
{
    m_xml.enter();
    m_template.rowTables.append(m_xml.takeNeeded(u"table"));
    m_xml.finishAttributes();
    m_xml.noChildren();
}

void TemplateReader::readSum(bool isCount)
{
    m_xml.enter();
    Sum sum;
    sum.isCount = isCount;
    sum.name = m_xml.takeNeeded(u"name");
    const QString of = isCount ? m_xml.take(u"of") : m_xml.takeNeeded(u"of");
    Scanner scanner(of);
    while (!scanner.atEnd()) {
        const bool isSubtracted = scanner.accept(u"-");
        if (!isSubtracted && !scanner.accept(u"+") && !sum.parts.isEmpty())
            m_xml.refuse(u"« + » ou « - » attendu dans « %1 »"_s.arg(of));
        const auto field = scanner.reference();
        if (!field)
            m_xml.refuse(u"« {Table.champ} » attendu dans « %1 »"_s.arg(of));
        sum.parts.append({fieldReference(*field), isSubtracted});
    }
    sum.group = m_xml.take(u"reset");
    if (sum.group == u"page")
        sum.reset = Sum::Reset::Page;
    else if (sum.group == u"row")
        sum.reset = Sum::Reset::Row;
    else if (!sum.group.isEmpty())
        sum.reset = Sum::Reset::Group;
    m_xml.finishAttributes();
    m_xml.noChildren();
    m_template.sums.append(sum);
}

Section TemplateReader::readSection()
{
    m_xml.enter();
    Section section;
    section.startsPage = m_xml.takeFlag(u"new-page", false);
    m_xml.finishAttributes();
    readLevel(section, Level());
    if (section.source.table.isEmpty())
        m_xml.refuse(u"section sans « source »"_s);
    if (section.details.isEmpty())
        m_xml.refuse(u"section sans « detail »"_s);
    return section;
}

Source TemplateReader::readSource()
{
    m_xml.enter();
    Source source;
    source.table = m_xml.takeNeeded(u"table");
    Scanner order(m_xml.take(u"order"));
    while (!order.atEnd()) {
        const bool isDescending = order.accept(u"-");
        const auto field = order.reference();
        if (!field)
            m_xml.refuse(u"« order » illisible"_s);
        source.order.append((isDescending ? u"-"_s : QString()) + fieldIn(*field));
        order.accept(u",");
    }
    m_xml.finishAttributes();
    while (m_xml.nextChild()) {
        if (m_xml.name() != u"join")
            m_xml.refuse(u"élément « %1 » inconnu dans « source »"_s.arg(m_xml.name()));
        m_xml.enter();
        Source::Join join;
        join.table = m_xml.takeNeeded(u"table");
        Scanner on(m_xml.takeNeeded(u"on"));
        const auto left = on.reference();
        const bool hasSign = on.accept(u"=");
        const auto right = on.reference();
        if (!left || !hasSign || !right || !on.atEnd())
            m_xml.refuse(u"« on » doit se lire « {Table.champ} = {Table.champ} »"_s);
        join.left = fieldIn(*left);
        join.right = fieldIn(*right);
        m_xml.finishAttributes();
        m_xml.noChildren();
        source.joins.append(join);
    }
    return source;
}

/// The content of a section or a group: its bands, and the group or the rows inside it.
void TemplateReader::readLevel(Section& section, Level level)
{
    const qsizetype depth = section.levels.size();
    section.levels.append(std::move(level));
    while (m_xml.nextChild()) {
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
            m_xml.refuse(u"élément « %1 » inconnu ou mal placé"_s.arg(element));
    }
}

Level TemplateReader::readGroupAttributes()
{
    m_xml.enter();
    Level level;
    level.name = m_xml.takeNeeded(u"name");
    Scanner by(m_xml.takeNeeded(u"by"));
    const auto field = by.reference();
    if (!field || !by.atEnd())
        m_xml.refuse(u"« by » doit se lire « {Table.champ} »"_s);
    level.by = fieldReference(*field);
    if (const QString order = m_xml.take(u"order"); !order.isEmpty()) {
        const auto orderField = Scanner(order).reference();
        if (!orderField)
            m_xml.refuse(u"« order » doit se lire « {Table.champ} »"_s);
        level.orderBy = fieldIn(*orderField);
    }
    level.startsDocument = m_xml.takeFlag(u"new-document", false);
    level.startsPage = m_xml.takeFlag(u"new-page", false) || level.startsDocument;
    m_xml.finishAttributes();
    return level;
}

// --- bands and what they draw ----------------------------------------------------------------------------------------

Band TemplateReader::readBand()
{
    m_xml.enter();
    Band band;
    band.height = m_xml.takeLength(u"height", 0);
    band.when = readCondition();
    band.alternate = m_xml.takeColor(u"alternate", 0);
    band.repeats = m_xml.takeFlag(u"repeat", false);
    band.keeps = m_xml.takeFlag(u"keep", true);
    m_xml.finishAttributes();
    band.elements = readElements();
    return band;
}

QList<Element> TemplateReader::readElements()
{
    QList<Element> elements;
    while (m_xml.nextChild()) {
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
            m_xml.refuse(u"élément « %1 » inconnu dans une bande"_s.arg(element));
    }
    return elements;
}

Element TemplateReader::readText()
{
    m_xml.enter();
    Element element;
    readFontAttributes(element);
    element.place = readPlace(true);
    element.middle = m_xml.takeChoice(u"valign", false, {{u"top", false}, {u"middle", true}});
    element.when = readCondition();
    m_xml.finishAttributes();
    element.pattern = Pattern(m_xml.readText(), [this](const QString& name) { return resolve(name); });
    return element;
}

Element TemplateReader::readRule()
{
    m_xml.enter();
    Element element;
    element.kind = Element::Kind::Rule;
    const bool isUpright = m_xml.has(u"h");
    element.place = readPlace(!isUpright);
    element.penWidth = m_xml.takeNumber(u"width", 0.5) * unitsPerPoint;
    element.color = m_xml.takeColor(u"color", 0xFF000000);
    element.stretches = m_xml.takeFlag(u"stretch", false);
    element.when = readCondition();
    m_xml.finishAttributes();
    m_xml.noChildren();
    return element;
}

Element TemplateReader::readFrame()
{
    m_xml.enter();
    Element element;
    element.kind = Element::Kind::Frame;
    element.place = readPlace(true);
    element.fill = m_xml.takeColor(u"fill", 0);
    element.penWidth = m_xml.takeNumber(u"width", element.fill ? 0 : 0.5) * unitsPerPoint;
    element.color = m_xml.takeColor(u"color", 0xFF000000);
    element.radius = m_xml.takeLength(u"radius", 0);
    element.stretches = m_xml.takeFlag(u"stretch", false);
    element.when = readCondition();
    m_xml.finishAttributes();
    m_xml.noChildren();
    return element;
}

Element TemplateReader::readStack()
{
    m_xml.enter();
    Element element;
    element.kind = Element::Kind::Stack;
    element.place = readPlace(true);
    element.below = m_xml.takeLength(u"below", 0);
    element.when = readCondition();
    m_xml.finishAttributes();
    while (m_xml.nextChild()) {
        if (m_xml.name() != u"text")
            m_xml.refuse(u"« text » attendu dans « stack »"_s);
        element.children.append(readText());
    }
    return element;
}

void TemplateReader::readFontAttributes(Element& element)
{
    if (const QString name = m_xml.take(u"style"); !name.isEmpty()) {
        const auto style = m_styles.constFind(name);
        if (style == m_styles.constEnd())
            m_xml.refuse(u"style « %1 » inconnu"_s.arg(name));
        m_xml.supply(*style); // what the field says itself comes first
    }
    const double size = m_xml.takeNumber(u"size", m_fontSize);
    if (size < 3 || size > 200)
        m_xml.refuse(u"taille de caractères hors limites"_s);
    element.font.size = static_cast<quint16>(qRound(size * unitsPerPoint));
    element.font.bold = m_xml.takeFlag(u"bold", false);
    element.font.italic = m_xml.takeFlag(u"italic", false);
    element.font.fixedPitch = m_xml.takeChoice(u"font", false, {{u"sans", false}, {u"mono", true}});
    element.color = m_xml.takeColor(u"color", 0xFF000000);
    element.align = m_xml.takeChoice(u"align", Align::Left,
                                     {{u"left", Align::Left}, {u"center", Align::Center}, {u"right", Align::Right}});
    element.fit =
        m_xml.takeChoice(u"fit", Fit::Shrink, {{u"shrink", Fit::Shrink}, {u"elide", Fit::Elide}, {u"wrap", Fit::Wrap}});
}

/// A width that is not given reaches to the right margin, or is nothing for an upright rule.
QRectF TemplateReader::readPlace(bool reachesMargin)
{
    const double x = m_xml.takeLength(u"x", 0), y = m_xml.takeLength(u"y", 0);
    const double toMargin = m_bodyWidth - x;
    const double width = m_xml.has(u"w") ? m_xml.takeLength(u"w", 0) : reachesMargin ? toMargin : 0;
    const double height = m_xml.takeLength(u"h", 0);
    if (x < 0 || y < 0 || width < 0 || height < 0)
        m_xml.refuse(u"place hors de la page"_s);
    if (width > toMargin + 1)
        m_xml.refuse(u"« %1 » dépasse la marge de droite"_s.arg(m_xml.name()));
    return {x, y, width, height};
}

Condition TemplateReader::readCondition()
{
    Condition condition = Condition::parse(m_xml.take(u"when"));
    condition.bind([this](const QString& name) { return resolve(name); });
    return condition;
}

// --- names, and what the file as a whole must hold -------------------------------------------------------------------

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
        m_xml.refuse(u"« {%1} » : ni un champ « {Table.champ} », ni un total du modèle"_s.arg(name));
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
            m_xml.refuse(u"« reset=\"%1\" » : groupe inconnu"_s.arg(sum.group));
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
            m_xml.refuse(u"« {%1} » : la table « %2 » n'est pas dans les sources"_s.arg(field, table));
    }
}

} // namespace reports
