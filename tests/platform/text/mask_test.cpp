#include "platform/text/mask.h"
#include "tests/support/print.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct Case
{
    double value;
    QString mask;
    QString expected;
};

void check(const QList<Case>& cases)
{
    for (const Case& c : cases)
        EXPECT_EQ(text::formatMask(c.value, c.mask), c.expected) << c.value << " with " << c.mask.toStdString();
}

TEST(Mask, WritesSignificantDigitsInGroups)
{
    check({
        {1234567.5, u"### ### ###.00"_s, u"1 234 567.50"_s},
        {123, u"### ### ###.00"_s, u"123.00"_s},
        {1000, u"### ###.00"_s, u"1 000.00"_s},
        {100000, u"### ###.00"_s, u"100 000.00"_s},
        {0.5, u"###.00"_s, u".50"_s},
        {0.07, u"# ### ###.00"_s, u".07"_s},
        {12, u"##.00"_s, u"12.00"_s},
        {1234.5, u"####0.00"_s, u"1234.50"_s},
        {45678, u"### ### ###"_s, u"45 678"_s},
        {3, u"#"_s, u"3"_s},
        {2.5, u"0.##"_s, u"2.5"_s},
        {2, u"0.0#"_s, u"2.0"_s},
    });
}

TEST(Mask, ABlankBeforeThePointIsWrittenBehindADigitOnly)
{
    check({{1234.5, u"### ### .00"_s, u"1 234 .50"_s}, {0.5, u"### ### .00"_s, u".50"_s}});
}

TEST(Mask, ZeroShowsOnlyTheDigitsThatAreAlwaysWritten)
{
    check({
        {0, u"### ###.00"_s, u".00"_s},
        {0, u"##0.00"_s, u"0.00"_s},
        {0, u"# ### ##0.00"_s, u"0.00"_s},
        {0, u"### ### ### ###"_s, QString()},
        {0, u"0000"_s, u"0000"_s},
        {37, u"0000"_s, u"0037"_s},
        {7, u"0 000"_s, u"0 007"_s},
        {0.4, u"#"_s, QString()},
    });
}

TEST(Mask, FiguresThatOutgrowTheMaskAreNotLost)
{
    check({
        {1234567.5, u"###.00"_s, u"1234567.50"_s},
        {1234567890, u"### ###"_s, u"1234567 890"_s},
        {37, u"0.00"_s, u"37.00"_s},
    });
}

TEST(Mask, RoundsHalfAwayFromZeroOnTheDecimalValue)
{
    check({
        {1.005, u"0.00"_s, u"1.01"_s}, // the double lies below 1.005: its decimal reading counts
        {2.675, u"0.00"_s, u"2.68"_s},
        {0.285, u"0.00"_s, u"0.29"_s},
        {-0.285, u"0.00"_s, u"-0.29"_s},
        {0.125, u".00"_s, u".13"_s},
        {0.5, u"0"_s, u"1"_s},
        {2.5, u"0"_s, u"3"_s},
        {999.995, u"### ##0.00"_s, u"1 000.00"_s},
        {9.9949, u"0.00"_s, u"9.99"_s},
        {1e15 + 0.5, u"#.0"_s, u"1000000000000000.5"_s},
    });
}

TEST(Mask, ANegativeHasItsSignInFrontUnlessItRoundsToNothing)
{
    check({
        {-1234.5, u"### ###.00"_s, u"-1 234.50"_s},
        {-0.5, u"###.00"_s, u"-.50"_s},
        {-0.001, u"0.00"_s, u"0.00"_s},
        {-0.0, u"0.00"_s, u"0.00"_s},
    });
}

TEST(Mask, WhatIsNoNumberIsBlank)
{
    check({{std::numeric_limits<double>::quiet_NaN(), u"0.00"_s, QString()},
           {std::numeric_limits<double>::infinity(), u"0.00"_s, QString()}});
    EXPECT_EQ(text::formatMask(1e300, u"0").size(), 301);
}

} // namespace
