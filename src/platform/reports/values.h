#pragma once

#include <QString>
#include <QVariant>

#include <vector>

namespace reports {

/// What a pair of braces in a template stands for.
struct Reference
{
    enum class Kind
    {
        Field, ///< `index` counts in Template::fields
        Sum,   ///< `index` counts in Template::sums
        Page,  ///< number of the page within its document
        Pages, ///< how many pages its document has: known only when all is laid out
        Today, ///< dd/MM/yyyy
    };

    Kind kind = Kind::Field;
    int index = -1;
};

/// What the references of a template stand for at one place of the report.
struct Values
{
    const std::vector<QVariant>* row = nullptr;
    const std::vector<long double>* sums = nullptr;
    int page = 1;
    QString today;

    QVariant at(const Reference& reference) const;
};

/// A value as plain text, or laid into the mask when it is a number; null is an empty text.
QString displayText(const QVariant& value, const QString& mask);

} // namespace reports
