#include "ausfall/Vorlage.h"
#include "windows/Windowsprozess.h"

#include <gtest/gtest.h>

namespace {

/// One process works in the folder; others come.
class Windowssperre : public testing::Test {
protected:
    void SetUp() override
    {
        std::filesystem::create_directories(ordner);
        legeBestandAn(ordner);
        erster.emplace(ordner, "bleibe");
        ASSERT_TRUE(erster->warteAuf("BLEIBT")) << erster->ausgabe();
    }
    static void erwarteAbweisung(Windowsprozess& prozess)
    {
        EXPECT_NE(prozess.warte(), -1);
        EXPECT_EQ(prozess.ausgabe().find("HAUPTMENÜ"), std::string::npos) << prozess.ausgabe();
        EXPECT_NE(prozess.ausgabe().find("MELDUNG"), std::string::npos) << prozess.ausgabe();
    }
    static void erwarteEinlaß(Windowsprozess& prozess)
    {
        EXPECT_EQ(prozess.warte(), 0);
        EXPECT_NE(prozess.ausgabe().find("HAUPTMENÜ"), std::string::npos) << prozess.ausgabe();
    }

    Arbeitsplatz platz;
    std::filesystem::path ordner = platz.pfad() / "Tolvek7";
    std::optional<Windowsprozess> erster;
};

TEST_F(Windowssperre, ZweiterWirdAbgewiesenUndNachDemTodDesErstenEingelassen)
{
    {
        Windowsprozess zweiter(ordner, "start");
        erwarteAbweisung(zweiter);
    }
    erster->töte();
    Windowsprozess dritter(ordner, "start");
    erwarteEinlaß(dritter);
}

TEST_F(Windowssperre, AndereSchreibungDesselbenOrdners)
{
    Windowsprozess zweiter(platz.pfad() / "TOLVEK7" / "." / "Daten" / "..", "start");
    erwarteAbweisung(zweiter);
}

TEST_F(Windowssperre, AndererOrdnerIstFrei)
{
    const auto anderer = platz.pfad() / "Anderer";
    std::filesystem::create_directories(anderer);
    legeBestandAn(anderer);
    Windowsprozess zweiter(anderer, "start");
    erwarteEinlaß(zweiter);
}

} // namespace
