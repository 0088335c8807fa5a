#pragma once

#include "platform/reports/data_source.h"

#include <QMap>

/// A row by "Table.field".
using SampleRow = QMap<QString, QVariant>;

/// Rows set up by a test, told by the table that a query is based on. Selecting and sorting is the store's work: here
/// every row comes as it was put, and what was asked is kept.
class MemorySource : public reports::DataSource
{
public:
    QMap<QString, QList<SampleRow>> tables;

    struct Asked
    {
        QString table;
        QStringList fields, order;
        QString selection;
        QVariantList values;
    };
    QList<Asked> asked;

    std::unique_ptr<reports::RowSource> open(const reports::Query& query) override
    {
        Asked question{query.source->table, query.fields, query.order, {}, {}};
        if (!query.selection.isEmpty())
            question.selection = query.selection.toQuery(&question.values);
        asked.append(question);
        return std::make_unique<Rows>(tables.value(query.source->table), query.fields);
    }

private:
    class Rows : public reports::RowSource
    {
    public:
        Rows(QList<SampleRow> rows, QStringList fields)
            : m_rows(std::move(rows))
            , m_fields(std::move(fields))
        {}
        bool next() override { return ++m_current < m_rows.size(); }
        QVariant value(int field) const override { return m_rows[m_current].value(m_fields[field]); }

    private:
        QList<SampleRow> m_rows;
        QStringList m_fields;
        qsizetype m_current = -1;
    };
};
