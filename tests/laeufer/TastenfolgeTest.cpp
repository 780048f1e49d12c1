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

TEST(Tastenfolge, EinUnbekannterNameIstKeineFolge)
{
    EXPECT_FALSE(liesTastenfolge(U"{Enter}"));
}

} // namespace
