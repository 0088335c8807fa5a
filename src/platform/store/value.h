#pragma once

#include "platform/store/catalogue.h"

#include <QByteArray>

#include <optional>
#include <variant>
#include <vector>

struct sqlite3_stmt;

/// Values as the file holds them, and their way in from and out to the program.
namespace store {

/// Null, whole number, real number or text (in UTF-8; a date in ISO form).
using Value = std::variant<std::monostate, qint64, double, QByteArray>;
using Values = std::vector<Value>;

/// A value handed to a query; next to a Date field (`date`) the text dd/MM/yyyy stands for a date.
/// Throws `Error::BadValue` for what SQLite has no class for, or a number that is none.
Value queryValue(const QVariant& value, bool date);

/// A value for a field: whole numbers are rounded half to even, an empty text leaves a Date null, a flag is never null.
/// Throws `Error::BadValue` where the field cannot hold it.
Value fieldValue(const Field& field, const QVariant& value);

void bindValue(sqlite3_stmt* statement, int parameter, const Value& value);

/// A value on its way out, held by a statement on a row or by a `Value`; good until either changes.
struct Cell
{
    enum Kind
    {
        Null,
        Whole,
        Real,
        Text
    } kind = Null;
    qint64 whole = 0;
    double real = 0;
    QByteArrayView bytes;

    Cell() = default;
    Cell(sqlite3_stmt* statement, int column);
    explicit Cell(const Value& value);
    Value copy() const;
};

/// The type of a field, or of a column that shows one; none for a computed column.
using CellType = std::optional<FieldType>;

QString textOf(const Cell& cell, CellType type);
qint64 integerOf(const Cell& cell);
double realOf(const Cell& cell);
QVariant variantOf(const Cell& cell, CellType type);

/// Shortest decimal text that reads back as the same number: "12.5", "1000000".
QString numberText(double number);

} // namespace store
