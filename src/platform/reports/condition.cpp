#include "platform/reports/condition.h"

#include "platform/reports/error.h"
#include "platform/reports/scanner.h"

#include <QDate>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

[[noreturn]] void refuse(const QString& whole)
{
    throw Error(u"Formule illisible : « %1 »"_s.arg(whole));
}

/// Keys lie far below; a greater number stays a real one.
constexpr double largestWhole = 4e15;

/// The next number as a part of a date; nothing where it cannot be one.
std::optional<int> datePart(Scanner& scanner)
{
    const auto number = scanner.number();
    if (!number || std::abs(*number) > 9999)
        return {};
    return int(*number);
}

QDate parseDate(Scanner& scanner, const QString& whole)
{
    QDate date;
    if (scanner.accept(u"#")) {
        const auto month = datePart(scanner);
        const bool firstBar = scanner.accept(u"/");
        const auto day = datePart(scanner);
        const bool secondBar = scanner.accept(u"/");
        const auto year = datePart(scanner);
        if (month && firstBar && day && secondBar && year && scanner.accept(u"#"))
            date = QDate(*year, *month, *day);
    } else if (scanner.accept(u"(")) {
        const auto year = datePart(scanner);
        const bool firstComma = scanner.accept(u",");
        const auto month = datePart(scanner);
        const bool secondComma = scanner.accept(u",");
        const auto day = datePart(scanner);
        if (year && firstComma && month && secondComma && day && scanner.accept(u")"))
            date = QDate(*year, *month, *day);
    }
    if (!date.isValid())
        refuse(whole);
    return date;
}

/// A whole number is bound as one, which is how keys are kept.
QVariant boundValue(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDate)
        return value.toDate().toString(Qt::ISODate);
    if (value.typeId() == QMetaType::Double && value.toDouble() == std::floor(value.toDouble()) &&
        std::abs(value.toDouble()) < largestWhole)
        return value.toLongLong();
    return value;
}

/// Negative, zero or positive as the value lies before, on or behind the one that it is compared with.
int compare(const QVariant& value, const QVariant& with)
{
    if (with.typeId() == QMetaType::QDate) {
        const QDate date = QDate::fromString(value.toString(), u"dd/MM/yyyy");
        return date == with.toDate() ? 0 : date < with.toDate() ? -1 : 1;
    }
    if (with.typeId() == QMetaType::QString)
        return QString::compare(value.toString().trimmed(), with.toString(), Qt::CaseInsensitive);
    const double difference = value.toDouble() - with.toDouble();
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
}

bool isFilled(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return !value.toString().trimmed().isEmpty();
    return value.toDouble() != 0; // null included
}

} // namespace

Condition Condition::parse(const QString& text)
{
    Condition condition;
    condition.m_text = text;
    Scanner scanner(text);
    if (scanner.atEnd())
        return condition;
    do {
        condition.m_terms.append(parseTerm(scanner, text));
    } while (scanner.acceptWord(u"and"));
    if (!scanner.atEnd())
        refuse(text);
    return condition;
}

Condition::Term Condition::parseTerm(Scanner& scanner, const QString& whole)
{
    Term term;
    if (scanner.acceptWord(u"not"))
        term.comparison = Operator::Blank;
    const auto name = scanner.reference();
    if (!name)
        refuse(whole);
    term.name = *name;
    if (term.comparison == Operator::Blank)
        return term;

    // The longer signs first: "<=" begins like "<".
    static const std::pair<QStringView, Operator> signs[] = {
        {u"<=", Operator::LessOrEqual}, {u">=", Operator::GreaterOrEqual},
        {u"<>", Operator::Different},   {u"=", Operator::Equal},
        {u"<", Operator::Less},         {u">", Operator::Greater}};
    for (const auto& [sign, comparison] : signs) {
        if (!scanner.accept(sign))
            continue;
        term.comparison = comparison;
        if (const auto number = scanner.number())
            term.value = *number;
        else if (const auto quoted = scanner.quoted())
            term.value = *quoted;
        else if (scanner.acceptWord(u"true"))
            term.value = 1.0;
        else if (scanner.acceptWord(u"false"))
            term.value = 0.0;
        else {
            scanner.acceptWord(u"date");
            term.value = parseDate(scanner, whole);
        }
        break;
    }
    return term;
}

QStringList Condition::names() const
{
    QStringList names;
    for (const Term& term : m_terms)
        names.append(term.name);
    return names;
}

void Condition::bind(const std::function<Reference(const QString& name)>& resolve)
{
    for (Term& term : m_terms)
        term.reference = resolve(term.name);
}

bool Condition::holds(const Values& values) const
{
    return std::all_of(m_terms.begin(), m_terms.end(), [&](const Term& term) { return holds(term, values); });
}

bool Condition::holds(const Term& term, const Values& values)
{
    const QVariant value = values.at(term.reference);
    switch (term.comparison) {
    case Operator::Filled:
        return isFilled(value);
    case Operator::Blank:
        return !isFilled(value);
    case Operator::Equal:
        return compare(value, term.value) == 0;
    case Operator::Different:
        return compare(value, term.value) != 0;
    case Operator::LessOrEqual:
        return compare(value, term.value) <= 0;
    case Operator::GreaterOrEqual:
        return compare(value, term.value) >= 0;
    case Operator::Less:
        return compare(value, term.value) < 0;
    case Operator::Greater:
        return compare(value, term.value) > 0;
    }
    return false;
}

QString Condition::toQuery(QVariantList* values) const
{
    static constexpr QStringView signs[] = {u"=", u"<>", u"<=", u">=", u"<", u">"};
    QStringList comparisons;
    for (const Term& term : m_terms) {
        if (term.comparison >= Operator::Filled || !isFieldName(term.name))
            refuse(m_text);
        comparisons.append(
            u"%1 %2 ?"_s.arg(QString(term.name).replace(u'.', u'!'), signs[static_cast<int>(term.comparison)]));
        values->append(boundValue(term.value));
    }
    return comparisons.join(u" and ");
}

} // namespace reports
