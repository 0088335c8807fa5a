#include "platform/text/keys.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Keys, ADigitFieldTakesDigitsAndControlKeys)
{
    for (const int key : {8, 13, 32, int('0'), int('9')})
        EXPECT_TRUE(text::acceptsDigit(key)) << key;
    for (const int key : {int('/'), int(':'), int('a'), int('.'), int('-'), 0xE9})
        EXPECT_FALSE(text::acceptsDigit(key)) << key;
}

TEST(Keys, AnAmountTakesOnePointAndReadsTheCommaAsOne)
{
    const struct
    {
        QString current;
        int key;
        int inserted;
    } cases[] = {
        {u""_s, '5', '5'},   {u"12"_s, ',', '.'},   {u"12"_s, '.', '.'},  {u"12.5"_s, ',', 0}, {u"12.5"_s, '.', 0},
        {u"12"_s, '-', '-'}, {u"12.5"_s, '-', '-'}, {u"12"_s, ' ', 0},    {u"12"_s, 8, 8},     {u"12"_s, 13, 13},
        {u"12"_s, 'e', 0},   {u"12"_s, '+', 0},     {u"12"_s, 0x20AC, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(text::filterAmount(c.current, c.key), c.inserted) << c.current.toStdString() << ' ' << c.key;
}

TEST(Keys, ADateTakesOnEachPlaceTheDigitsThatCanStandThere)
{
    const struct
    {
        int length;
        QByteArray taken;
        QByteArray refused;
    } cases[] = {
        {0, "0123", "456789/x"}, {1, "0123456789", "/x."}, {2, "/-x5", ""},        {3, "01", "23456789/"},
        {4, "0123456789", "/x"}, {5, "0123456789", "/x"},  {9, "0123456789", "/"}, {10, "0x/", ""},
    };
    for (const auto& c : cases) {
        for (const char key : c.taken)
            EXPECT_TRUE(text::acceptsDateKey(c.length, key)) << c.length << key;
        for (const char key : c.refused)
            EXPECT_FALSE(text::acceptsDateKey(c.length, key)) << c.length << key;
        EXPECT_TRUE(text::acceptsDateKey(c.length, 8)) << c.length;
    }
}

TEST(Keys, TheBarsOfADateComeByThemselves)
{
    EXPECT_EQ(text::barDate(u"1"_s), u"1"_s);
    EXPECT_EQ(text::barDate(u"15"_s), u"15/"_s);
    EXPECT_EQ(text::barDate(u"15/"_s), u"15/"_s);
    EXPECT_EQ(text::barDate(u"15/11"_s), u"15/11/"_s);
    EXPECT_EQ(text::barDate(u"15/11/2026"_s), u"15/11/2026"_s);
}

TEST(Keys, OnlyUnaccentedLettersAreRaised)
{
    EXPECT_EQ(text::capital('a'), 'A');
    EXPECT_EQ(text::capital('z'), 'Z');
    for (const int key : {int('A'), int('{'), int('~'), 132, 0xE9, int('5')})
        EXPECT_EQ(text::capital(key), key);
    EXPECT_EQ(text::firstCapital(u""_s, 'm'), 'M');
    EXPECT_EQ(text::firstCapital(u"M"_s, 'e'), 'e');
}

TEST(Keys, APadHoldsTwelveCharactersAndOnePoint)
{
    EXPECT_EQ(text::padDisplay(u""_s, u'.'), u"."_s);
    EXPECT_EQ(text::padDisplay(u"1.5"_s, u'.'), u"1.5"_s);
    EXPECT_EQ(text::padDisplay(u"12345678901"_s, u'2'), u"123456789012"_s);
    EXPECT_EQ(text::padDisplay(u"123456789012"_s, u'3'), u"123456789012"_s);
    EXPECT_EQ(text::padDisplay(u"12"_s, u'x'), u"12"_s);
}
