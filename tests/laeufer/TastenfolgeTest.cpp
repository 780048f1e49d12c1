#include "sprache/Tastenfolge.h"

#include <gtest/gtest.h>

namespace {

TEST(Tastenfolge, SondertastenUndZeichenInIhrerFolge)
{
    const auto tasten = liesTastenfolge(U"{Pos1}9ä{Rück}");
    ASSERT_TRUE(tasten);
    ASSERT_EQ(tasten->size(), 4U);
    EXPECT_EQ((*tasten)[0].art, Taste::Art::Pos1);
    EXPECT_EQ((*tasten)[1].zeichen, U'9');
    EXPECT_EQ((*tasten)[2].zeichen, U'ä');
    EXPECT_EQ((*tasten)[3].art, Taste::Art::Rück);
}

TEST(Tastenfolge, EineKlammerOhneEndeIstEinZeichen)
{
    const auto tasten = liesTastenfolge(U"a{b");
    ASSERT_TRUE(tasten);
    EXPECT_EQ(tasten->size(), 3U);
    EXPECT_EQ((*tasten)[1].zeichen, U'{');
}

TEST(Tastenfolge, EinZeilenumbruchIstDieEingabetaste)
{
    EXPECT_EQ(liesTastenfolge(U"\n")->at(0).art, Taste::Art::Eingabe);
}

TEST(Tastenfolge, TastenMitZusatz)
{
    const auto tasten = liesTastenfolge(U"{Strg+Ab}{Umschalt+Tab}{Alt+5}{Strg+Umschalt+Pos1}{F1}{F4}");
    ASSERT_TRUE(tasten);
    ASSERT_EQ(tasten->size(), 6U);
    EXPECT_TRUE((*tasten)[0].strg && (*tasten)[0].art == Taste::Art::Ab);
    EXPECT_TRUE((*tasten)[1].umschalt && (*tasten)[1].art == Taste::Art::Tab);
    EXPECT_TRUE((*tasten)[2].alt && (*tasten)[2].zeichen == U'5');
    EXPECT_TRUE((*tasten)[3].strg && (*tasten)[3].umschalt && !(*tasten)[3].alt);
    EXPECT_EQ((*tasten)[4].art, Taste::Art::F1);
    EXPECT_EQ((*tasten)[5].art, Taste::Art::F4);
    EXPECT_FALSE(liesTastenfolge(U"{Strg+}"));
    EXPECT_FALSE(liesTastenfolge(U"{5}"));
    EXPECT_FALSE(liesTastenfolge(U"{Hyper+a}"));
}

TEST(Tastenfolge, EinUnbekannterNameIstKeineFolge)
{
    EXPECT_FALSE(liesTastenfolge(U"{Enter}"));
}

} // namespace
