#pragma once

#include "platform/reports/values.h"

#include <QList>
#include <QVariantList>

#include <functional>

namespace reports {

/// Comparisons joined by "and": what a selection formula and the `when` of a template have in common.
///
///     {Factures.num} = 12      {MVMTS.date} >= date(2026,11,1) and {MVMTS.date} <= date(2026,11,30)
///     {textes.ch10}            not {Clients.tel}
///
/// A value is a number, a text in quotes, True or False, or a date as date(yyyy,mm,dd) or #mm/dd/yyyy#. A reference
/// alone holds when it is neither blank nor zero; such terms make sense in a template only.
class Condition
{
public:
    /// Throws Error, naming the text, when it can't be read whole.
    static Condition parse(const QString& text);

    bool isEmpty() const { return m_terms.isEmpty(); }
    /// Names between the braces, in order.
    QStringList names() const;

    /// Ties the names to what they stand for, so that the condition can be tested.
    void bind(const std::function<Reference(const QString& name)>& resolve);
    bool holds(const Values& values) const;

    /// The condition in the query dialect, its values handed over to be bound. Throws Error for what is not a
    /// comparison of a field.
    QString toQuery(QVariantList* values) const;

private:
    enum class Operator
    {
        Equal,
        Different,
        LessOrEqual,
        GreaterOrEqual,
        Less,
        Greater,
        Filled,
        Blank
    };

    struct Term
    {
        QString name;
        Reference reference;
        Operator comparison = Operator::Filled;
        QVariant value; ///< double, QString or QDate
    };

    static Term parseTerm(class Scanner& scanner, const QString& whole);
    static bool holds(const Term& term, const Values& values);

    QString m_text;
    QList<Term> m_terms;
};

} // namespace reports
