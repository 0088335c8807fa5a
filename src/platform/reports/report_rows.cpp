#include "platform/reports/report_rows.h"

#include "platform/reports/error.h"
#include "platform/reports/scanner.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

QStringList parseSortFields(const QStringList& sortFields)
{
    QStringList order;
    for (const QString& text : sortFields) {
        Scanner scanner(text);
        const bool isDescending = scanner.accept(u"-");
        if (!isDescending)
            scanner.accept(u"+");
        const auto field = scanner.reference();
        if (!field || !isFieldName(*field) || !scanner.atEnd())
            throw Error(u"Classement illisible : « %1 »"_s.arg(text));
        order.append((isDescending ? u"-"_s : QString()) + *field);
    }
    return order;
}

QString withoutSign(const QString& orderField)
{
    return orderField.startsWith(u'-') ? orderField.sliced(1) : orderField;
}

} // namespace

ReportRows::ReportRows(const Template& report, DataSource& data, const Request& request)
    : m_report(report)
    , m_data(data)
    , m_selection(Condition::parse(request.selectionFormula))
    , m_sortFields(parseSortFields(request.sortFields))
    , m_constants(std::size_t(report.fieldNames.size()))
{
    checkNames();
    readRowTables();
    m_row = m_next = m_constants;
}

/// What the formula and the order name must be read by one section at least: nothing asked for is passed over.
void ReportRows::checkNames() const
{
    QStringList names = m_selection.names();
    for (const QString& field : m_sortFields)
        names.append(withoutSign(field));
    for (const QString& name : names) {
        const auto has = [&](const Section& section) { return section.source.contains(tableOf(name)); };
        if (!isFieldName(name) || std::none_of(m_report.sections.begin(), m_report.sections.end(), has))
            throw Error(u"Formule : {%1} n'est pas dans les sources de %2"_s.arg(name, m_report.name));
    }
    if (!m_selection.isEmpty() && std::none_of(m_report.sections.begin(), m_report.sections.end(),
                                               [&](const Section& section) { return answers(section); }))
        throw Error(u"Formule : aucune source de %1 n'a tous ses champs"_s.arg(m_report.name));
}

bool ReportRows::answers(const Section& section) const
{
    const QStringList names = m_selection.names();
    return std::all_of(names.begin(), names.end(),
                       [&](const QString& name) { return section.source.contains(tableOf(name)); });
}

void ReportRows::readRowTables()
{
    for (const QString& table : m_report.rowTables) {
        Source source;
        source.table = table;
        Query query;
        query.report = m_report.name;
        query.source = &source;
        const auto places = ask(source, &query);
        if (places.empty())
            continue;
        const auto rows = m_data.open(query);
        if (!rows->next())
            continue;
        for (std::size_t i = 0; i < places.size(); ++i)
            m_constants[places[i]] = rows->value(static_cast<int>(i));
    }
}

/// Puts the report's fields that this source has into the query.
std::vector<std::size_t> ReportRows::ask(const Source& source, Query* query) const
{
    std::vector<std::size_t> places;
    for (qsizetype i = 0; i < m_report.fieldNames.size(); ++i) {
        if (source.contains(tableOf(m_report.fieldNames[i]))) {
            query->fields.append(m_report.fieldNames[i]);
            places.push_back(static_cast<std::size_t>(i));
        }
    }
    return places;
}

/// Groups come first: their rows must stand together whatever the order asked for.
QStringList ReportRows::orderOf(const Section& section) const
{
    QStringList order;
    for (const Level& level : section.levels) {
        if (!level.orderBy.isEmpty())
            order.append(level.orderBy);
        if (level.by.index >= 0)
            order.append(m_report.fieldNames[level.by.index]);
    }
    QStringList own;
    for (const QString& field : m_sortFields) {
        if (section.source.contains(tableOf(withoutSign(field))))
            own.append(field);
    }
    order += own.isEmpty() ? section.source.order : own;
    order.removeDuplicates();
    return order;
}

void ReportRows::open(const Section& section)
{
    m_section = &section;
    m_row = m_next = m_constants;
    Query query;
    query.report = m_report.name;
    query.source = &section.source;
    query.selection = m_selection;
    query.order = orderOf(section);
    m_places = ask(section.source, &query);
    m_rows = m_data.open(query);
    readNext();
}

void ReportRows::advance()
{
    std::swap(m_row, m_next);
    readNext();
}

void ReportRows::readNext()
{
    m_hasNext = m_rows->next();
    if (!m_hasNext)
        return;
    for (std::size_t i = 0; i < m_places.size(); ++i)
        m_next[m_places[i]] = m_rows->value(static_cast<int>(i));
}

int ReportRows::firstLevelToClose() const
{
    if (!m_hasNext)
        return 0;
    const auto& levels = m_section->levels;
    for (qsizetype i = 1; i < levels.size(); ++i) {
        const auto place = static_cast<std::size_t>(levels[i].by.index);
        if (m_row[place] != m_next[place])
            return static_cast<int>(i);
    }
    return static_cast<int>(levels.size());
}

} // namespace reports
