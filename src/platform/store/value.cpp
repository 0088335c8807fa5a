#include "platform/store/value.h"

#include "platform/store/database.h"

#include <QDate>

#include <sqlite3.h>

#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace store {

namespace {

constexpr qsizetype isoLength = 10; ///< yyyy-MM-dd

/// Where a value is to go: into a field, or into a query where there is none.
using Place = const Field*;

[[noreturn]] void refuse(const QVariant& value, Place place)
{
    const QString shown = place ? u"au champ « %1 »"_s.arg(place->name) : u"dans une requête"_s;
    throw Error(Error::BadValue, u"La valeur « %1 » ne convient pas %2"_s.arg(value.toString(), shown));
}

bool isText(const QVariant& value)
{
    return value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QByteArray;
}

double finite(const QVariant& value, Place place)
{
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        refuse(value, place);
    return number;
}

qint64 whole(const QVariant& value, Place place)
{
    bool ok = false;
    if (value.typeId() != QMetaType::Double && value.typeId() != QMetaType::Float) {
        const qint64 number = value.toLongLong(&ok);
        if (ok)
            return number;
    }
    const double number = std::nearbyint(finite(value, place));
    if (std::abs(number) >= 9.2e18)
        refuse(value, place);
    return qint64(number);
}

/// A single-precision number keeps the decimals it shows: 19.6f is stored as 19.6, not as 19.600000381.
double single(double number)
{
    char digits[64];
    const auto written = std::to_chars(std::begin(digits), std::end(digits), float(number));
    double shown = number;
    std::from_chars(digits, written.ptr, shown);
    return std::isfinite(shown) ? shown : number;
}

Value dateValue(const QVariant& value, Place place)
{
    if (value.typeId() == QMetaType::QDate || value.typeId() == QMetaType::QDateTime)
        return value.toDate().toString(Qt::ISODate).toUtf8();
    const QString text = value.toString();
    if (text.isEmpty())
        return {};
    const QString iso = isoDate(text);
    if (iso.isEmpty())
        refuse(value, place);
    return iso.toUtf8();
}

QByteArray textValue(const QVariant& value)
{
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float)
        return numberText(value.toDouble()).toUtf8();
    return value.toString().toUtf8();
}

} // namespace

Value queryValue(const QVariant& value, bool date)
{
    constexpr Place place = nullptr;
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return {};
    case QMetaType::Bool:
        return qint64(value.toBool());
    case QMetaType::Double:
    case QMetaType::Float:
        return finite(value, place);
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return dateValue(value, place);
    case QMetaType::QString:
    case QMetaType::QByteArray: {
        const QString text = value.toString();
        const QString iso = date ? isoDate(text) : QString();
        return (iso.isEmpty() ? text : iso).toUtf8();
    }
    default:
        return whole(value, place);
    }
}

Value fieldValue(const Field& field, const QVariant& value)
{
    const Place place = &field;
    if (!value.isValid())
        return field.type == FieldType::YesNo ? Value(qint64(0)) : Value();
    switch (field.type) {
    case FieldType::Counter:
    case FieldType::Long:
    case FieldType::Integer:
        return whole(value, place);
    case FieldType::Single:
        return single(finite(value, place));
    case FieldType::Double:
        return finite(value, place);
    case FieldType::Text:
        return textValue(value);
    case FieldType::Date:
        return dateValue(value, place);
    case FieldType::YesNo:
        if (isText(value))
            refuse(value, place);
        return qint64(value.toDouble() != 0);
    }
    return {};
}

void bindValue(sqlite3_stmt* statement, int parameter, const Value& value)
{
    struct Binder
    {
        sqlite3_stmt* statement;
        int parameter;
        int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
        int operator()(qint64 number) const { return sqlite3_bind_int64(statement, parameter, number); }
        int operator()(double number) const { return sqlite3_bind_double(statement, parameter, number); }
        int operator()(const QByteArray& text) const
        {
            return sqlite3_bind_text64(statement, parameter, text.constData(), sqlite3_uint64(text.size()),
                                       SQLITE_TRANSIENT, SQLITE_UTF8);
        }
    };
    std::visit(Binder{statement, parameter}, value);
}

Cell::Cell(sqlite3_stmt* statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        break;
    case SQLITE_INTEGER:
        kind = Whole;
        whole = sqlite3_column_int64(statement, column);
        break;
    case SQLITE_FLOAT:
        kind = Real;
        real = sqlite3_column_double(statement, column);
        break;
    default:
        kind = Text;
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        bytes = QByteArrayView(text, sqlite3_column_bytes(statement, column));
    }
}

Cell::Cell(const Value& value)
{
    if (const auto* number = std::get_if<qint64>(&value)) {
        kind = Whole;
        whole = *number;
    } else if (const auto* decimal = std::get_if<double>(&value)) {
        kind = Real;
        real = *decimal;
    } else if (const auto* text = std::get_if<QByteArray>(&value)) {
        kind = Text;
        bytes = *text;
    }
}

Value Cell::copy() const
{
    switch (kind) {
    case Null:
        return {};
    case Whole:
        return whole;
    case Real:
        return real;
    case Text:
        return bytes.toByteArray();
    }
    return {};
}

QString numberText(double number)
{
    if (number == 0)
        return u"0"_s; // never "-0"
    char digits[512];
    const auto written = std::to_chars(std::begin(digits), std::end(digits), number, std::chars_format::fixed);
    return QString::fromLatin1(digits, written.ptr - digits);
}

QString textOf(const Cell& cell, CellType type)
{
    switch (cell.kind) {
    case Cell::Null:
        return {};
    case Cell::Whole:
        return QString::number(cell.whole);
    case Cell::Real:
        return numberText(cell.real);
    case Cell::Text:
        break;
    }
    if (type == FieldType::Date && cell.bytes.size() == isoLength && cell.bytes[4] == '-') {
        const char* iso = cell.bytes.data();
        const char shown[isoLength] = {iso[8], iso[9], '/', iso[5], iso[6], '/', iso[0], iso[1], iso[2], iso[3]};
        return QString::fromLatin1(shown, isoLength);
    }
    return QString::fromUtf8(cell.bytes);
}

double realOf(const Cell& cell)
{
    switch (cell.kind) {
    case Cell::Null:
        return 0;
    case Cell::Whole:
        return double(cell.whole);
    case Cell::Real:
        return cell.real;
    case Cell::Text:
        break;
    }
    // The number that a text begins with, 0 when it begins with none.
    const QByteArrayView text = cell.bytes.trimmed();
    double number = 0;
    std::from_chars(text.begin(), text.end(), number);
    return std::isfinite(number) ? number : 0;
}

qint64 integerOf(const Cell& cell)
{
    if (cell.kind == Cell::Whole)
        return cell.whole;
    const double number = realOf(cell);
    return std::abs(number) < 9.2e18 ? qint64(std::nearbyint(number)) : 0;
}

QVariant variantOf(const Cell& cell, CellType type)
{
    switch (cell.kind) {
    case Cell::Null:
        return {};
    case Cell::Whole:
        return type == FieldType::YesNo ? QVariant(cell.whole != 0) : QVariant(cell.whole);
    case Cell::Real:
        return cell.real;
    case Cell::Text:
        break;
    }
    return textOf(cell, type);
}

} // namespace store
