#include "platform/reports/store_source.h"

#include "platform/reports/error.h"
#include "platform/reports/layout.h"
#include "platform/reports/scanner.h"
#include "platform/store/recordset.h"

using namespace Qt::StringLiterals;

namespace reports {

namespace {

class StoreRows : public RowSource
{
public:
    explicit StoreRows(store::Recordset rows)
        : m_rows(std::move(rows))
    {}

    bool next() override
    {
        if (m_isFirst) {
            m_isFirst = false;
            return !m_rows.eof();
        }
        return m_rows.moveNext();
    }

    QVariant value(int field) const override { return m_rows.value(field); }

private:
    store::Recordset m_rows;
    bool m_isFirst = true;
};

QString inDialect(QString field)
{
    return field.replace(u'.', u'!');
}

} // namespace

QString queryText(const Query& query, QVariantList* values)
{
    QStringList fields;
    for (int i = 0; i < query.fields.size(); ++i)
        fields.append(u"%1 as c%2"_s.arg(inDialect(query.fields[i])).arg(i));
    QString text = u"select %1 from %2"_s.arg(fields.join(u", "), query.source->table);
    for (const Source::Join& join : query.source->joins)
        text += u" left join %1 on %2 = %3"_s.arg(join.table, inDialect(join.left), inDialect(join.right));
    if (!query.selection.isEmpty())
        text += u" where "_s + query.selection.toQuery(values);

    QStringList order;
    for (const QString& field : query.order)
        order.append(field.startsWith(u'-') ? inDialect(field.sliced(1)) + u" desc"_s : inDialect(field));
    if (!order.isEmpty())
        text += u" order by "_s + order.join(u", ");
    return text;
}

QStringList unknownFields(const QStringList& names, const store::Catalogue& catalogue)
{
    QStringList unknown;
    for (const QString& name : names) {
        const QString tableName = tableOf(name);
        const store::Table* table = catalogue.find(tableName);
        if (!table || table->position(QStringView(name).sliced(tableName.size() + 1)) < 0)
            unknown.append(name);
    }
    return unknown;
}

std::unique_ptr<RowSource> StoreSource::open(const Query& query)
{
    QStringList names = query.fields + query.selection.names();
    for (const QString& field : query.order)
        names.append(field.startsWith(u'-') ? field.sliced(1) : field);
    for (const Source::Join& join : query.source->joins)
        names << join.left << join.right;
    if (const QStringList unknown = unknownFields(names, m_database.catalogue()); !unknown.isEmpty())
        throw Error(u"Champ inconnu : {%1} dans %2"_s.arg(unknown.first(), query.report));

    QVariantList values;
    const QString text = queryText(query, &values);
    return std::make_unique<StoreRows>(m_database.openRecordset(text, values));
}

Document layOut(const Template& report, store::Database& database, const Request& request)
{
    StoreSource source(database);
    return layOut(report, source, request);
}

Document layOut(store::Database& database, const Request& request)
{
    return layOut(Template::load(request.templatePath), database, request);
}

} // namespace reports
