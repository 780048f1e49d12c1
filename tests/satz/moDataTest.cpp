#include "satz/moData.h"
#include "platform/text/Text.h"
#include "satz/Satzaufbau.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

class Katalog : public ::testing::Test {
protected:
    void SetUp() override { baueProblemKatalog(); }
};

TEST_F(Katalog, HatNeunundzwanzigGruppenUndEinenLeerenPlatz)
{
    EXPECT_EQ(aryProblem.size(), 30U);
    EXPECT_EQ(aryICD[0], "");
    EXPECT_EQ(aryProblem[0], "");
    EXPECT_EQ(aryProblem.size() - 1, static_cast<std::size_t>(höchsteGruppe));
}

TEST_F(Katalog, GrenzenDerBereicheStehenFest)
{
    EXPECT_EQ(aryICD[1], "F10");
    EXPECT_EQ(aryProblem[1], "Alkohol");
    EXPECT_EQ(aryICD[20], "F19");
    EXPECT_EQ(aryProblem[20], "andere psychotrope Substanzen");
    EXPECT_EQ(aryICD[21], "F55.0");
    EXPECT_EQ(aryProblem[21], "Missbrauch von Antidepressiva");
    EXPECT_EQ(aryICD[23], "F55.2");
    EXPECT_EQ(aryICD[29], "F50");
    EXPECT_EQ(aryProblem[29], "Essstörungen"_t);
}

TEST_F(Katalog, EinCodeBezeichnetKeineGruppe)
{
    for (std::size_t gruppe = 24; gruppe <= 28; ++gruppe) {
        EXPECT_EQ(aryICD[gruppe], "F63.0");
    }
}

TEST_F(Katalog, DerNameBezeichnetDieGruppe)
{
    const std::set<std::string> namen(aryProblem.begin() + 1, aryProblem.end());
    EXPECT_EQ(namen.size(), 29U);
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        EXPECT_EQ(gruppeZuName(aryProblem[static_cast<std::size_t>(gruppe)]), gruppe);
    }
    EXPECT_EQ(gruppeZuName("alkohol"), 0);
    EXPECT_EQ(gruppeZuName(""), 0);
}

TEST_F(Katalog, KurznameBeginntMitBlankPunktBlank)
{
    EXPECT_EQ(aryProblemKurz[1], std::string(" \x95 Alkohol"));
    EXPECT_EQ(aryProblemKurz[13], std::string(" \x95 MDMA und verwandte"));
    EXPECT_EQ(aryProblemKurz[28], verbinde(std::string(" \x95 "), "Path. Glücksspiel"_t));
}

TEST_F(Katalog, ZweiteZeileBeginntMitDreiBlanks)
{
    EXPECT_EQ(aryProblemZusatz[1], "   ");
    EXPECT_EQ(aryProblemZusatz[13], "   Substanzen (Ecstasy)");
    EXPECT_EQ(aryProblemZusatz[24], "   Geldspielautomaten in Spielhallen etc.");
    EXPECT_EQ(aryProblemZusatz[27], "   Wetten");
}

TEST_F(Katalog, LangnameIstGanz)
{
    EXPECT_EQ(aryProblem[13], "MDMA und verwandte Substanzen (Ecstasy)");
    EXPECT_EQ(aryProblem[26], "Path. Glücksspiel - Großes Spiel der Spielbank"_t);
}

TEST_F(Katalog, EinZweiterBauÄndertNichts)
{
    const auto vorher = aryProblemKurz;
    baueProblemKatalog();
    EXPECT_EQ(aryProblemKurz, vorher);
}

TEST(Gruppencode, StehtInDerReihenfolgeDesKatalogs)
{
    EXPECT_EQ(gruppencode(1), "100");
    EXPECT_EQ(gruppencode(5), "114");
    EXPECT_EQ(gruppencode(20), "190");
    EXPECT_EQ(gruppencode(23), "552");
    EXPECT_EQ(gruppencode(28), "635");
    EXPECT_EQ(gruppencode(29), "500");
}

} // namespace
