#include "platform/dateien/Wegwerfordner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace {

namespace fs = std::filesystem;

/// A prefix that no other test that runs at the same time has.
std::string vorsilbe()
{
    static const Wegwerfordner eigener("tolvek7-wegwerf-");
    return eigener.pfad().filename().string() + "-";
}

TEST(Wegwerfordner, GehörtDemBesitzerUndVerschwindetMitDemObjekt)
{
    std::optional<Wegwerfordner> ordner(std::in_place, vorsilbe());
    const auto pfad = ordner->pfad();
    EXPECT_TRUE(pfad.filename().string().starts_with(vorsilbe()));
#ifndef _WIN32
    EXPECT_EQ(fs::status(pfad).permissions(), fs::perms::owner_all);
#endif
    fs::create_directories(pfad / "a" / "b");
    ordner.reset();
    EXPECT_FALSE(fs::exists(pfad));
}

TEST(Wegwerfordner, AuchSchreibgeschütztesVerschwindet)
{
    std::optional<Wegwerfordner> ordner(std::in_place, vorsilbe());
    const auto pfad = ordner->pfad();
    for (const auto* name : {"a", "z"}) {
        std::ofstream(pfad / name) << "Inhalt";
        fs::permissions(pfad / name, fs::perms::owner_read);
    }
    ordner.reset();
    EXPECT_FALSE(fs::exists(pfad));
}

TEST(Wegwerfordner, WasBehaltenWirdRäumtDerNächsteAuf)
{
    std::optional<Wegwerfordner> ordner(std::in_place, vorsilbe());
    const auto pfad = ordner->pfad();
    ordner->behalte();
    Wegwerfordner::räumeAuf(vorsilbe());
    EXPECT_TRUE(fs::exists(pfad)) << "held";
    ordner.reset();
    EXPECT_TRUE(fs::exists(pfad)) << "kept";
    Wegwerfordner::räumeAuf(vorsilbe());
    EXPECT_FALSE(fs::exists(pfad));
}

TEST(Wegwerfordner, AufräumenLäßtStehenWasEinerHält)
{
    const Wegwerfordner gehalten(vorsilbe());
    const fs::path verlassen = gehalten.pfad().string() + "verlassen";
    const fs::path fremd = gehalten.pfad().parent_path() / ("x" + gehalten.pfad().filename().string());
    fs::create_directories(verlassen / "Tolvek7");
    fs::create_directory(fremd);
    Wegwerfordner::räumeAuf(vorsilbe());
    EXPECT_TRUE(fs::exists(gehalten.pfad()));
    EXPECT_FALSE(fs::exists(verlassen));
    EXPECT_TRUE(fs::exists(fremd)) << "another prefix";
    fs::remove(fremd);
}

} // namespace
