#include "sprache/Schreibhand.h"

#include "platform/bildschirm/Bildschirm.h"

#include <gtest/gtest.h>

namespace {

class SchreibhandTest : public testing::Test {
protected:
    void tippe(Textfeld& feld, std::u32string_view tasten)
    {
        const auto folge = liesTastenfolge(tasten);
        ASSERT_TRUE(folge.has_value());
        for (const auto& druck : *folge) {
            hand.drücke(feld, druck);
        }
    }

    Bildschirm schirm{"frmProbe"};
    Textfeld zeile{schirm, "zeile"};
    Textfeld block{schirm, "block", Mehrzeilig};
    Textfeld kurzes{schirm, "kurzes", Einzeilig, 2};
    Schreibhand hand;
};

TEST_F(SchreibhandTest, TastenÄndernDenTextAmCursor)
{
    tippe(zeile, U"Muster{Pos1}{Entf}m{Ende}{Rück}");
    EXPECT_EQ(zeile.text(), "muste");
    EXPECT_FALSE(hand.drücke(zeile, {.art = Taste::Art::Eingabe}));
}

TEST_F(SchreibhandTest, UmbruchIstEinSchritt)
{
    block.gibEin("ab", 1);
    hand.drücke(block, {.art = Taste::Art::Eingabe});
    EXPECT_EQ(block.text(), "a\r\nb");
    hand.drücke(block, {.art = Taste::Art::Rück});
    EXPECT_EQ(block.text(), "ab");
}

TEST_F(SchreibhandTest, HöchstlängeGiltBeimTippen)
{
    tippe(kurzes, U"abc");
    EXPECT_EQ(kurzes.text(), "ab");
}

TEST_F(SchreibhandTest, WerDasFeldLässtHatNichtsMehrAusgewählt)
{
    tippe(zeile, U"ab{Strg+a}");
    hand.lass();
    zeile.fokusGewechselt(true);
    tippe(zeile, U"c");
    EXPECT_EQ(zeile.text(), "abc");
}

TEST_F(SchreibhandTest, WasDasProgrammSetztHatDieSchreibmarkeVorn)
{
    tippe(zeile, U"ab");
    zeile.setzeText("xy");
    tippe(zeile, U"c");
    EXPECT_EQ(zeile.text(), "cxy");
}

} // namespace
