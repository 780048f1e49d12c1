#include "hilfen/Testumgebung.h"
#include "import/AltKDSRegeln.h"
#include "import/Altfelder.h"
#include "import/Anweisungsdatei.h"

#include <fstream>
#include <map>
#include <set>

namespace {

using Ziele = std::set<std::string>;

/// The numbers of a text, each with the letter before it and the last of its range: 170 to 173 for "D170-D173", 3 to 5
/// for "3-5".
struct Bereich {
    char blatt;
    int von, bis;
};

/// Whether the letter names a file of the export.
bool istBlatt(char zeichen)
{
    return zeichen == 'K' || zeichen == 'D';
}

std::vector<Bereich> bereiche(const std::string& text)
{
    std::vector<Bereich> alle;
    constexpr auto ziffern = "0123456789";
    std::size_t dahinter = 0; // behind the number before
    for (auto ort = text.find_first_of(ziffern); ort != std::string::npos;
         ort = text.find_first_of(ziffern, dahinter)) {
        const char blatt = ort > 0 ? text[ort - 1] : ' ';
        const auto dazwischen = text.substr(dahinter, ort - dahinter);
        std::size_t länge = 0;
        const int zahl = std::stoi(text.substr(ort), &länge);
        if (!alle.empty() && dazwischen == (istBlatt(alle.back().blatt) ? std::string{'-', alle.back().blatt} : "-")) {
            alle.back().bis = zahl;
        } else {
            alle.push_back({blatt, zahl, zahl});
        }
        dahinter = ort + länge;
    }
    return alle;
}

/// "K95", "D170" to "D173" for "D170-D173".
Ziele genannteZiele(const std::string& zelle)
{
    Ziele ziele;
    for (const auto& bereich : bereiche(zelle)) {
        for (int spalte = bereich.von; istBlatt(bereich.blatt) && spalte <= bereich.bis; ++spalte) {
            ziele.insert(bereich.blatt + std::to_string(spalte));
        }
    }
    return ziele;
}

/// The targets that docs/altdaten.md names for the fields of the care file, as far as a row gives their numbers.
std::map<int, Ziele> beschriebeneZiele()
{
    std::ifstream strom(std::string(TOLVEK_QUELLEN) + "/docs/altdaten.md");
    std::map<int, Ziele> ziele;
    bool beiBetreuungen = false;
    for (std::string text; std::getline(strom, text);) {
        beiBetreuungen = text.starts_with("#") ? text == "## Care file" : beiBetreuungen;
        const auto felder = text.starts_with("| ") ? text.substr(2, text.find(" |", 2) - 2) : "";
        if (!beiBetreuungen || felder.find_first_not_of("0123456789, -") != std::string::npos) {
            continue;
        }
        for (const auto& bereich : bereiche(felder)) {
            for (int feld = bereich.von; feld <= bereich.bis; ++feld) {
                ziele[feld] = genannteZiele(text.substr(text.rfind('|', text.size() - 2)));
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
