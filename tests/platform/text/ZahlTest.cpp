#include "platform/text/Zahl.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Zahl, LeerzeichenVorzeichenZiffern)
{
    EXPECT_EQ(leseGanzzahl16(" 12 "), 12);
    EXPECT_EQ(leseGanzzahl16("+7"), 7);
    EXPECT_EQ(leseGanzzahl16("-7"), -7);
    EXPECT_EQ(leseGanzzahl16("007"), 7);
}

TEST(Zahl, AllesAndereIstKeineZahl)
{
    for (const auto* text : {"", " ", "x", "1x", "1 2", "+", "-", "+-1", "-+1", "1.0", "1,0", "\t1", "0x1"}) {
        EXPECT_EQ(leseGanzzahl32(text), std::nullopt) << '"' << text << '"';
    }
}

TEST(Zahl, GrenzenDerBreite)
{
    EXPECT_EQ(leseGanzzahl16("32767"), 32767);
    EXPECT_EQ(leseGanzzahl16("-32768"), -32768);
    EXPECT_EQ(leseGanzzahl16("32768"), std::nullopt);
    EXPECT_EQ(leseGanzzahl32("2147483647"), 2147483647);
    EXPECT_EQ(leseGanzzahl32("2147483648"), std::nullopt);
    EXPECT_EQ(leseGanzzahl64("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
}

TEST(Zahl, FührendeZahlHörtAmErstenAnderenZeichenAuf)
{
    EXPECT_EQ(führendeZahl("10 (Text)"), 10);
    EXPECT_EQ(führendeZahl("  24x"), 24);
    EXPECT_EQ(führendeZahl("-3b"), -3);
    EXPECT_EQ(führendeZahl("+3"), 3);
    for (const auto* text : {"", " ", "k.A.", "-", "+x", "- 3", ".5"}) {
        EXPECT_EQ(führendeZahl(text), 0) << '"' << text << '"';
    }
}

TEST(Zahl, FührendeZahlBleibtAmRandStehen)
{
    EXPECT_EQ(führendeZahl("99999999999999999999"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(führendeZahl("-99999999999999999999"), std::numeric_limits<std::int64_t>::min());
}
