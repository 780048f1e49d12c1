#include "satz/moNationen.h"
#include "hilfen/Testumgebung.h"

#include "platform/text/Ressourcen.h"
#include "satz/moHelferlein.h"

#include <set>

namespace {

TEST(moNationenTest, TabelleInDenRessourcen)
{
    Ressourcen ressourcen;
    registriereNationen(ressourcen);
    EXPECT_EQ(*ressourcen.finde(1000), "165");
    EXPECT_EQ(*ressourcen.finde(1001), satz({"EGY", "Aegypten"}));
    EXPECT_EQ(*ressourcen.finde(1099), satz({"NPL", "Nepal"}));
    EXPECT_EQ(*ressourcen.finde(1165), satz({"YYY", "staatenlos"}));
    EXPECT_EQ(ressourcen.finde(999), std::nullopt);
    EXPECT_EQ(ressourcen.finde(1166), std::nullopt);
}

TEST(moNationenTest, JedeZeileGehtHinUndZurück)
{
    Ressourcen ressourcen;
    registriereNationen(ressourcen);
    std::set<std::string> codes;
    for (int nummer = 1001; nummer <= 1165; ++nummer) {
        const std::string zeile = *ressourcen.finde(nummer);
        const auto code = zeile.substr(0, 3);
        const auto name = zeile.substr(4);
        EXPECT_EQ(zeile[3], trenner);
        EXPECT_EQ(getCodeZuNation(name), code);
        EXPECT_EQ(getNationZuCode(code), name);
        EXPECT_TRUE(codes.insert(code).second) << code;
    }
}

TEST(moNationenTest, UnbekannteNamenUndCodes)
{
    EXPECT_EQ(getCodeZuNation("deutschland"), "");
    EXPECT_EQ(getCodeZuNation("keine Angaben"), "");
    EXPECT_EQ(getCodeZuNation(""), "");
    EXPECT_EQ(getNationZuCode(""), "keine Angaben");
    EXPECT_EQ(getNationZuCode("ABC"), "konnte Nationencode ABC nicht zuordnen");
    EXPECT_EQ(getNationZuCode("deu"), "konnte Nationencode deu nicht zuordnen");
    EXPECT_EQ(getNationZuCode("XXX"), "andere Staaten");
}

} // namespace
