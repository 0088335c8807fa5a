#pragma once

#include <QList>
#include <QString>
#include <QVariant>

namespace store {

/// What a field holds. A `Date` is kept as ISO text (yyyy-MM-dd) and handed in and out as dd/MM/yyyy;
/// a `YesNo` as 0 or 1; the whole numbers and the real numbers share SQLite's two numeric classes.
enum class FieldType
{
    Counter,
    Long,
    Integer,
    Single,
    Double,
    Text,
    Date,
    YesNo
};

struct Field
{
    QString name;
    FieldType type;
    QVariant defaultValue; ///< invalid: a row starts with null in this field
};

/// A table as designed: its fields in their order, and one index for every way that rows are looked up.
struct Table
{
    QString name;
    QList<Field> fields;
    QList<QStringList> indexes; ///< the fields of each secondary index, in order

    /// Position of a field by name, in any case; -1 when there is none.
    int position(QStringView fieldName) const;
};

/// All tables of a database. Names are found in any case, as the queries write them.
class Catalogue
{
public:
    Catalogue(quint32 applicationId, int version, QList<Table> tables);

    quint32 applicationId() const { return m_applicationId; }
    int version() const { return m_version; }
    const QList<Table>& tables() const { return m_tables; }
    const Table* find(QStringView tableName) const;

private:
    quint32 m_applicationId;
    int m_version;
    QList<Table> m_tables;
};

} // namespace store
