#include "store/Sicherungen.h"

#include "hilfen/Testumgebung.h"

#include <set>

namespace {

namespace fs = std::filesystem;

TEST(SicherungenTest, DieNeuestenSätzeBleibenUndNurSätzeGehen)
{
    Testlauf lauf;
    lauf.legeTabellenAn();
    const auto& pfade = lauf.pfade();
    constexpr int ältere = 12;
    for (int tag = 1; tag <= ältere; ++tag) {
        const auto name = "2001-01-" + std::string(tag < 10 ? "0" : "") + std::to_string(tag) + " 09.15.00";
        Testlauf::schreibe(pfade.sicherungen / name / "kernDat.bak", "x");
    }
    Testlauf::schreibe(pfade.sicherungen / "von Hand" / "kernDat.bak", "x");
    Testlauf::schreibe(pfade.kernBak, "gestern\r\n");
    Testlauf::schreibe(pfade.kernDat, "heute\r\n");
    sichereDateien(lauf.stand.bestand);

    std::set<std::string> namen;
    for (const auto& eintrag : fs::directory_iterator(pfade.sicherungen)) {
        namen.insert(eintrag.path().filename().string());
    }
    EXPECT_TRUE(namen.contains("von Hand")) << "no set of the program";
    EXPECT_EQ(namen.size(), 10U + 1U);
    // the newest is the one that was just set aside
    EXPECT_EQ(*namen.begin(), "2001-01-04 09.15.00");
}

} // namespace
