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
    const int letzte = 1000 + static_cast<int>(nationen().size());
    EXPECT_EQ(*ressourcen.finde(1000), std::to_string(nationen().size()));
    EXPECT_EQ(*ressourcen.finde(1001), satz({"EGY", "Aegypten"}));
    EXPECT_EQ(*ressourcen.finde(letzte), satz({"YYY", "staatenlos"}));
    EXPECT_EQ(ressourcen.finde(999), std::nullopt);
    EXPECT_EQ(ressourcen.finde(letzte + 1), std::nullopt);
}

TEST(moNationenTest, JedeZeileGehtHinUndZurück)
{
    std::set<std::string_view> codes;
    for (const auto& [code, name] : nationen()) {
        EXPECT_EQ(code.size(), 3U) << code;
        EXPECT_EQ(getCodeZuNation(name), code);
        EXPECT_EQ(getNationZuCode(code), name);
        EXPECT_TRUE(codes.insert(code).second) << code;
    }
    EXPECT_GE(codes.size(), 165U);
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
