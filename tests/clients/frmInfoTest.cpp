#include "clients/frmInfo.h"

#include "hilfen/Testumgebung.h"

#include <algorithm>
#include <sstream>

namespace {

/// The lines behind "Die Daten liegen in".
std::vector<std::string> pfadzeilen(const std::filesystem::path& programm)
{
    Testlauf lauf;
    lauf.stand.pfade = bildePfade(programm);
    std::istringstream text(frmInfo().lblText.text());
    std::vector<std::string> zeilen;
    for (std::string zeile; std::getline(text, zeile);) {
        zeile.erase(std::remove(zeile.begin(), zeile.end(), '\r'), zeile.end());
        zeilen.push_back(zeile);
    }
    const auto anfang = std::find(zeilen.begin(), zeilen.end(), "Die Daten liegen in");
    return anfang == zeilen.end() ? std::vector<std::string>{} : std::vector<std::string>(anfang + 1, zeilen.end());
}

TEST(frmInfoTest, NenntDenOrdnerDerDaten)
{
    EXPECT_EQ(pfadzeilen("/home/anna/Tolvek7"), std::vector<std::string>{"/home/anna/Tolvek7"});
}

TEST(frmInfoTest, EinLangerPfadWirdUmbrochen)
{
    const auto teil = std::string(40, 'a') + "/";
    EXPECT_EQ(
        pfadzeilen("/" + teil + teil + std::string(150, 'b')),
        (std::vector<std::string>{"/" + teil, teil, std::string(60, 'b'), std::string(60, 'b'), std::string(30, 'b')}));
}

} // namespace
