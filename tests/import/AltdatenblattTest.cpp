#include "hilfen/Testumgebung.h"
#include "import/AltKDSRegeln.h"
#include "import/Altfelder.h"
#include "import/Anweisungsdatei.h"

#include <fstream>
#include <map>
#include <regex>
#include <set>

namespace {

using Ziele = std::set<std::string>;

/// "K95", "D170" to "D173" for "D170-D173".
Ziele genannteZiele(const std::string& zelle)
{
    static const std::regex muster("([KD])(\\d+)(?:-[KD](\\d+))?");
    Ziele ziele;
    for (auto fund = std::sregex_iterator(zelle.begin(), zelle.end(), muster); fund != std::sregex_iterator(); ++fund) {
        const int von = std::stoi((*fund)[2]);
        const int bis = (*fund)[3].matched ? std::stoi((*fund)[3]) : von;
        for (int spalte = von; spalte <= bis; ++spalte) {
            ziele.insert((*fund)[1].str() + std::to_string(spalte));
        }
    }
    return ziele;
}

/// The targets that docs/altdaten.md names for the fields of the care file, as far as a row gives their numbers.
std::map<int, Ziele> beschriebeneZiele()
{
    std::ifstream strom(std::string(TOLVEK_QUELLEN) + "/docs/altdaten.md");
    static const std::regex zeile(R"(\| ([\d, -]+) \|.*\| ([^|]*) \|)");
    static const std::regex nummern(R"((\d+)(?:-(\d+))?)");
    std::map<int, Ziele> ziele;
    bool beiBetreuungen = false;
    for (std::string text; std::getline(strom, text);) {
        beiBetreuungen = text.starts_with("#") ? text == "## Care file" : beiBetreuungen;
        std::smatch fund;
        if (!beiBetreuungen || !std::regex_match(text, fund, zeile)) {
            continue;
        }
        const std::string felder = fund[1];
        for (auto n = std::sregex_iterator(felder.begin(), felder.end(), nummern); n != std::sregex_iterator(); ++n) {
            const int bis = std::stoi((*n)[2].matched ? (*n)[2] : (*n)[1]);
            for (int feld = std::stoi((*n)[1]); feld <= bis; ++feld) {
                ziele[feld] = genannteZiele(fund[2]);
            }
        }
    }
    return ziele;
}

class Altdatenblatt : public testing::Test {
protected:
    /// Every column of the export that takes a field as its instruction gives it: the page names it for the field.
    void prüfe(const char* datei, const std::vector<Altregel>& regeln, std::size_t anzahl, char blatt)
    {
        const auto anweisungen = leseSpaltenanweisungen(
            lauf.umgebung.dateien(), std::filesystem::path(TOLVEK_QUELLEN) / "anweisungen" / datei, anzahl);
        for (std::size_t n = 0; n < regeln.size(); ++n) {
            for (const int alteSpalte : {regeln[n].spalte, regeln[n].zweite}) {
                if (alteSpalte == 0) {
                    continue;
                }
                const auto& anweisung = anweisungen.at(static_cast<std::size_t>(alteSpalte - 1));
                const auto beschrieben = ziele.find(anweisung.quelle);
                const auto ziel = blatt + std::to_string(n + 1);
                if (nimmtDasFeld(anweisung.art) && beschrieben != ziele.end()) {
                    EXPECT_TRUE(beschrieben->second.contains(ziel))
                        << "docs/altdaten.md: the row of field " << anweisung.quelle << " has to name its target "
                        << ziel;
                    ++geprüfte;
                }
            }
        }
    }

    /// The other kinds read fixed fields.
    static bool nimmtDasFeld(Spaltenanweisungsart art)
    {
        using enum Spaltenanweisungsart;
        return art == Wert || art == Option || art == Betreuungsende || art == IcdZusatz;
    }

    Testlauf lauf;
    const std::map<int, Ziele> ziele = beschriebeneZiele();
    int geprüfte = 0;
};

TEST_F(Altdatenblatt, NamesEveryTargetOfAnInstruction)
{
    prüfe(kernanweisungsdatei, kernregeln(), altspalte::kern::anzahl, 'K');
    prüfe(diagnoseanweisungsdatei, diagnoseregeln(), altspalte::diag::anzahl, 'D');
    EXPECT_GE(geprüfte, 45);
}

} // namespace
