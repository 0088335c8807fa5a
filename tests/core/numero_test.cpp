#include "core/numero.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace talor;

TEST(Numero, se_compose_sans_ses_separateurs)
{
    const struct
    {
        QString tape;
        QString compose;
    } cas[] = {
        {u"021 36-45.78"_s, u"021364578"_s},
        {u"+213 (0)21.36"_s, u"+21302136"_s},
        {u"(021) 36 45"_s, u"(0213645"_s}, // the first character stays, whatever it is
        {u"  17  "_s, u"17"_s},
        {u"1 7"_s, u"1 7"_s}, // three characters and fewer are given as they are
        {u"1 77"_s, u"177"_s},
        {u"abc"_s, u"abc"_s},
        {u"abcd"_s, u"a"_s},
        {u""_s, u""_s},
    };
    for (const auto& c : cas)
        EXPECT_EQ(NumeroCompose(c.tape), c.compose) << c.tape.toStdString();
}
