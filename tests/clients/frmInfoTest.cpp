#include "clients/frmInfo.h"

#include "hilfen/Testumgebung.h"

#include <sstream>

namespace {

/// The lines of the folder of the records.
std::vector<std::string> pfadzeilen(const std::filesystem::path& programm)
{
    Testlauf lauf;
    lauf.stand.pfade = bildePfade(programm);
    auto text = frmInfo().lblOrdner.text();
    constexpr std::string_view anfang = "Ordner der Daten: ";
    EXPECT_TRUE(text.starts_with(anfang)) << text;
    std::istringstream strom(text.substr(anfang.size(), text.find("Stand beim Start") - anfang.size()));
    std::vector<std::string> zeilen;
    for (std::string zeile; std::getline(strom, zeile);) {
        std::erase(zeile, '\r');
        zeilen.push_back(zeile);
    }
    return zeilen;
}

TEST(frmInfoTest, NenntDenOrdnerDerDaten)
{
    EXPECT_EQ(pfadzeilen("/home/anna/Tolvek7"),
              std::vector<std::string>{pfadtext(std::filesystem::path("/home/anna/Tolvek7") / "Daten")});
}

TEST(frmInfoTest, EinLangerPfadWirdUmbrochen)
{
    const auto teil = std::string(40, 'a') + "/";
    EXPECT_EQ(pfadzeilen("/" + teil + teil + std::string(150, 'b')),
              (std::vector<std::string>{"/" + teil, teil, std::string(60, 'b'), std::string(60, 'b'),
                                        pfadtext(std::filesystem::path(std::string(30, 'b')) / "Daten")}));
}

} // namespace
