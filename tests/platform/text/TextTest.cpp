#include "platform/text/Text.h"

#include <gtest/gtest.h>

TEST(Text, LiteralGibtBytesDerCodepage)
{
    EXPECT_EQ("männlich"_t, "m\xE4nnlich");
    EXPECT_EQ("€ · ¶ „ß“"_t, "\x80 \xB7 \xB6 \x84\xDF\x93");
    EXPECT_EQ(""_t, "");
}

TEST(Text, JedesByteGehtHinUndZurück)
{
    for (int byte = 0; byte < 256; ++byte) {
        const auto zeichen = static_cast<char>(static_cast<unsigned char>(byte));
        EXPECT_EQ(zeichensatz::byteVon(zeichensatz::unicodeVon(zeichen)), zeichen) << byte;
    }
}

TEST(Text, KleinFolgtDerCodepage)
{
    EXPECT_EQ(klein("ÄÖÜ Éÿ ŠŒŽ OFFEN"_t), "äöü éÿ šœž offen"_t);
    EXPECT_EQ(klein("Ÿ×ß÷"_t), "ÿ×ß÷"_t);
    EXPECT_EQ(klein('I'), 'i'); // also under a Turkish locale
}

TEST(Text, GetrimmtNimmtNurLeerzeichen)
{
    EXPECT_EQ(getrimmt("  a b  "), "a b");
    EXPECT_EQ(getrimmt("\ta\n"), "\ta\n");
    EXPECT_EQ(getrimmt("   "), "");
    EXPECT_EQ(getrimmt(""), "");
}

TEST(Text, SortierzeichenSindGrundbuchstaben)
{
    std::string ergebnis;
    for (const char zeichen : "ÄäÖöÜüßÉçñšŽø÷"_t) {
        ergebnis.push_back(sortierzeichen(zeichen));
    }
    EXPECT_EQ(ergebnis, verbinde("aaoouusecnszo"_t, '\xF7'));
}

TEST(Text, ErsetztJedesVorkommen)
{
    EXPECT_EQ(ersetzt("a·b·"_t, "·"_t, "; "_t), "a; b; "_t);
    EXPECT_EQ(ersetzt("abc", "", "x"), "abc");
    EXPECT_EQ(ersetzt("aaa", "aa", "b"), "ba");
}

TEST(Text, VerbindeNimmtTexteUndZeichen)
{
    EXPECT_EQ(verbinde("a"_t, '-', std::string("b"), "c"), "a-bc");
}
