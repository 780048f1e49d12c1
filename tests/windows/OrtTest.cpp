#include "ausfall/Vorlage.h"
#include "windows/Windowsprozess.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

/// What a program that lies in this folder says of it.
std::string urteilIn(const fs::path& programmordner, const fs::path& datenordner)
{
    fs::create_directories(programmordner);
    fs::create_directories(datenordner);
    legeBestandAn(datenordner);
    const auto treiber = programmordner / "treiber.exe";
    fs::copy_file(TOLVEK_HANDLUNG, treiber);
    Windowsprozess prozess(datenordner, "ort", 0, treiber);
    prozess.warte();
    return prozess.ausgabe();
}

TEST(Windowsort, NebenDemProgrammLiegenSätze)
{
    const Arbeitsplatz platz(fs::temp_directory_path());
    const auto ausgabe = urteilIn(platz.pfad() / "Tolvek7", platz.pfad() / "Daten");
    EXPECT_TRUE(ausgabe.starts_with("FÜR SÄTZE") || ausgabe.find("\nFÜR SÄTZE") != std::string::npos) << ausgabe;
}

TEST(Windowsort, AberNichtNebenEinemAusDemOffenenArchivGestarteten)
{
    const Arbeitsplatz platz(fs::temp_directory_path());
    const auto ausgabe = urteilIn(platz.pfad() / "Temp1_Tolvek7-windows.zip" / "Tolvek7", platz.pfad() / "Daten");
    EXPECT_NE(ausgabe.find("NICHT FÜR SÄTZE"), std::string::npos) << ausgabe;
}

} // namespace
