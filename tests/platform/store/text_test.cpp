#include "platform/store/text.h"

#include "store_test.h"

using namespace Qt::StringLiterals;
using store::FrenchOrder;
using store::Pattern;

namespace {

TEST(Text, FoldsCaseAccentsAndLigatures)
{
    const std::pair<QString, QString> table[] = {
        {u"Œil-de-bœuf"_s, u"OEIL-DE-BOEUF"_s},
        {u"l'Étoile"_s, u"L’ETOILE"_s},
        {u"ÇA çà"_s, u"ca ca"_s},
        {u"e\u0301te\u0301"_s, u"Été"_s},
        {u"Noe\u0308l"_s, u"noël"_s},
        {u"\u0623\u064e\u062d\u0645\u062f"_s,
         u"\u0627\u062d\u0645\u062f"_s}, // the name Ahmed with and without its signs
    };
    for (const auto& [left, right] : table) {
        EXPECT_EQ(store::fold(left), store::fold(right)) << left.toStdString();
        EXPECT_EQ(FrenchOrder().compare(left.toUtf8(), right.toUtf8()), 0) << left.toStdString();
    }
    EXPECT_NE(store::fold(u"\u0645\u062d\u0645\u062f"_s), store::fold(u"\u0623\u062d\u0645\u062f"_s));
}

TEST(Text, SortsAsAFrenchReaderExpects)
{
    const QStringList sorted = {
        u""_s,
        u" a"_s,
        u"10"_s,
        u"9"_s,
        u"abdi"_s,
        u"De La Mer"_s,
        u"Delamer"_s,
        u"Eau"_s,
        u"émir"_s,
        u"ÉTOILE"_s,
        u"étoile 2"_s,
        u"Œil"_s,
        u"Oeuf"_s,
        u"Ouest"_s,
        u"Zidane"_s,
        u"\u0623\u062d\u0645\u062f"_s,
        u"\u0645\u062d\u0645\u062f"_s,
    };
    const FrenchOrder order;
    for (qsizetype i = 0; i < sorted.size(); ++i) {
        for (qsizetype j = 0; j < sorted.size(); ++j) {
            const int compared = order.compare(sorted[i].toUtf8(), sorted[j].toUtf8());
            EXPECT_EQ((compared > 0) - (compared < 0), (i > j) - (i < j))
                << sorted[i].toStdString() << " and " << sorted[j].toStdString();
        }
    }
}

TEST(Text, TheQuickOrderIsTheCollators)
{
    QCollator collator(QLocale(QLocale::French, QLocale::France));
    const FrenchOrder order;
    const QString letters = u"abAB'- .,09(éÉœç_&"_s;
    quint32 seed = 1;
    const auto text = [&] {
        QString made;
        for (int length = 1 + seed % 5; length > 0; --length) {
            seed = seed * 1664525 + 1013904223;
            made += letters[(seed >> 16) % letters.size()];
        }
        return made;
    };
    for (int i = 0; i < 20000; ++i) {
        const QString left = text();
        const QString right = text();
        const int quick = order.compare(left.toUtf8(), right.toUtf8());
        const int slow = collator.compare(store::fold(left), store::fold(right));
        ASSERT_EQ((quick > 0) - (quick < 0), (slow > 0) - (slow < 0))
            << left.toStdString() << '|' << right.toStdString();
    }
}

TEST(Text, PatternsMatchAsLikeDoes)
{
    struct Case
    {
        QString pattern, text;
        bool matches;
    };
    const Case table[] = {
        {u"o'br*"_s, u"O'Brien"_s, true},
        {u"*étoile"_s, u"L'Etoile"_s, true},
        {u"oeil*"_s, u"Œil-de-bœuf"_s, true},
        {u"*bœuf"_s, u"OEIL-DE-BOEUF"_s, true},
        {u"\u0645\u062d*"_s, u"\u0645\u064f\u062d\u0645\u062f"_s, true},
        {u"a?c"_s, u"abc"_s, true},
        {u"a?c"_s, u"ac"_s, false},
        {u"n° #"_s, u"N° 7"_s, true},
        {u"#"_s, u"x"_s, false},
        {u"[a-c]*"_s, u"Bateau"_s, true},
        {u"[!a-c]*"_s, u"Bateau"_s, false},
        {u"[é-g]*"_s, u"Farid"_s, true},
        {u"[*]"_s, u"*"_s, true},
        {u"[*]"_s, u"x"_s, false},
        {u"[ouvert"_s, u"[OUVERT"_s, true},
        {u"*a*b*c*"_s, u"xaxbxbxc"_s, true},
        {u"*a*b"_s, u"ab ba"_s, false},
        {u"100%"_s, u"1000"_s, false},
        {u"a_c"_s, u"abc"_s, false},
        {u""_s, u""_s, true},
        {u"*"_s, u""_s, true},
        {u""_s, u"a"_s, false},
        {u"abc"_s, u"abcd"_s, false},
    };
    for (const Case& each : table)
        EXPECT_EQ(Pattern(each.pattern).matches(each.text), each.matches)
            << each.pattern.toStdString() << " on " << each.text.toStdString();
    EXPECT_EQ(store::likeLiteral(u"5*[a]?#"_s), u"5[*][[]a][?][#]"_s);
}

TEST(Text, DatesTurnByTheirCharacters)
{
    const std::pair<QString, QString> table[] = {
        {u"15/11/2026"_s, u"2026-11-15"_s}, {u"29/02/2100"_s, u"2100-02-29"_s}, // no such day, kept as it was typed
        {u"99/99/0000"_s, u"0000-99-99"_s}, {u"1/1/2026"_s, QString()},         {u"15-11-2026"_s, QString()},
        {u"15/11/26"_s, QString()},         {u"  /  /    "_s, QString()},       {QString(), QString()},
        {u"٠١/٠١/٢٠٢٦"_s, QString()},
    };
    for (const auto& [shown, stored] : table) {
        EXPECT_EQ(store::isoDate(shown), stored) << shown.toStdString();
        EXPECT_EQ(store::displayDate(stored), stored.isEmpty() ? QString() : shown);
    }
    EXPECT_EQ(store::displayDate(u"2026/11/15"), QString());
}

} // namespace
