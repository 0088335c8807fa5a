#include "platform/text/mask.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace text {

namespace {

bool isDigitPlace(QChar c)
{
    return c == u'#' || c == u'0';
}

/// A number's decimal digits: the whole part without leading zeros, and exactly the decimals asked for.
struct Digits
{
    std::string whole;
    std::string decimals;
};

/// The shortest digits that read back as the number, which are those that a person typed, rounded to `decimals`.
Digits roundedDigits(double magnitude, std::size_t decimals)
{
    char buffer[400]; // 309 digits before the point at most
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, magnitude, std::chars_format::fixed).ptr;
    const auto point = std::find(buffer, end, '.');
    std::string whole(buffer, point);
    std::string fraction(point == end ? end : point + 1, end);

    const bool up = fraction.size() > decimals && fraction[decimals] >= '5';
    fraction.resize(decimals, '0');
    std::string all = whole + fraction;
    if (up) {
        auto digit = all.rbegin();
        for (; digit != all.rend() && *digit == '9'; ++digit)
            *digit = '0';
        if (digit != all.rend())
            ++*digit;
        else
            all.insert(all.begin(), '1');
    }
    fraction = all.substr(all.size() - decimals);
    all.erase(all.size() - decimals);
    all.erase(0, std::min(all.find_first_not_of('0'), all.size()));
    return {all, fraction};
}

/// The whole part laid into its half of the mask, from the right.
QString layWhole(const std::string& digits, QStringView mask)
{
    QString reversed;
    auto digit = digits.rbegin();
    auto placesLeft = std::count_if(mask.begin(), mask.end(), isDigitPlace);
    qsizetype zerosLeft = mask.count(u'0');
    for (auto c = mask.rbegin(); c != mask.rend(); ++c) {
        if (isDigitPlace(*c)) {
            if (digit != digits.rend())
                reversed += QLatin1Char(*digit++);
            else if (zerosLeft > 0) // a "0" here or further left keeps its digit
                reversed += u'0';
            zerosLeft -= *c == u'0';
            if (--placesLeft == 0)
                for (; digit != digits.rend(); ++digit)
                    reversed += QLatin1Char(*digit);
        } else if (*c != u' ' || digit != digits.rend() || zerosLeft > 0) {
            reversed += *c;
        }
    }
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

QString layDecimals(const std::string& digits, QStringView mask)
{
    QString result;
    std::size_t next = 0;
    const std::size_t significant = digits.find_last_not_of('0') + 1;
    const qsizetype lastZero = mask.lastIndexOf(u'0');
    for (qsizetype i = 0; i < mask.size(); ++i) {
        if (!isDigitPlace(mask[i]))
            result += mask[i];
        else if (next < significant || i <= lastZero)
            result += QLatin1Char(digits[next++]);
    }
    return result;
}

} // namespace

QString formatMask(double value, QStringView mask)
{
    if (!std::isfinite(value))
        return {};
    const qsizetype point = mask.indexOf(u'.');
    const QStringView wholeMask = point < 0 ? mask : mask.first(point);
    const QStringView decimalMask = point < 0 ? QStringView() : mask.sliced(point + 1);

    const auto decimals = std::count_if(decimalMask.begin(), decimalMask.end(), isDigitPlace);
    const Digits digits = roundedDigits(std::abs(value), static_cast<std::size_t>(decimals));
    const bool isZero = digits.whole.empty() && digits.decimals.find_first_not_of('0') == std::string::npos;

    QString result;
    if (value < 0 && !isZero)
        result += u'-';
    result += layWhole(digits.whole, wholeMask);
    if (point >= 0)
        result += u'.' + layDecimals(digits.decimals, decimalMask);
    return result;
}

} // namespace text
