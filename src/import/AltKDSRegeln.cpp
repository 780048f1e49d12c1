#include "import/AltKDSRegeln.h"

#include "export/Diagnosezeile.h"
#include "export/Kernzeile.h"
#include "platform/text/Text.h"

#include <array>

namespace {

constexpr auto null = "0"_t;
constexpr auto fehler = "FEHLER"_t;

constexpr std::array<Altcode, 13> vermittCodes{{{"0", "0"},
                                                {"1", "1"},
                                                {"2", "2"},
                                                {"3", "3"},
                                                {"15", "4"},
                                                {"18", "5"},
                                                {"9", "7"},
                                                {"6", "11"},
                                                {"19", "13"},
                                                {"20", "20"},
                                                {"21", "25"},
                                                {"16", "26"},
                                                {"17", "27"}}};
constexpr std::array<Altcode, 6> auflagenCodes{
    {{"0", "0"}, {"4", "0"}, {"1", "1"}, {"2", "2"}, {"5", "3"}, {"3", "4"}}};
constexpr std::array<Altcode, 8> schuleCodes{
    {{"0", "0"}, {"2", "2"}, {"3", "3"}, {"4", "4"}, {"5", "5"}, {"6", "6"}, {"7", "6"}, {"8", "7"}}};
constexpr std::array<Altcode, 8> wohnungCodes{
    {{"0", "0"}, {"1", "1"}, {"2", "2"}, {"3", "3"}, {"4", "4"}, {"5", "6"}, {"8", "8"}, {"9", "9"}}};
constexpr std::array<Altcode, 13> erwerbCodes{{{"0", "0"},
                                               {"1", "1"},
                                               {"15", "2"},
                                               {"16", "2"},
                                               {"6", "3"},
                                               {"7", "4"},
                                               {"8", "5"},
                                               {"9", "6"},
                                               {"10", "8"},
                                               {"11", "9"},
                                               {"12", "10"},
                                               {"13", "11"},
                                               {"14", "0"}}};
constexpr std::array<Altcode, 8> artEndeCodes{
    {{"0", "0"}, {"10", "0"}, {"1", "1"}, {"6", "4"}, {"7", "5"}, {"8", "6"}, {"2", "7"}, {"9", "8"}}};
constexpr std::array<Altcode, 6> problEndeCodes{
    {{"0", "0"}, {"1", "0"}, {"2", "1"}, {"3", "2"}, {"4", "3"}, {"5", "4"}}};
/// Main diagnoses that have no group in the new layout.
constexpr std::array<Altcode, 5> ohneGruppe{{{"553", {}}, {"554", {}}, {"555", {}}, {"556", {}}, {"558", {}}}};

Altregel fest(std::string_view text)
{
    return {.art = Regelart::Fest, .sonst = text};
}

Altregel kopie(int spalte)
{
    return {.art = Regelart::Spalte, .spalte = spalte};
}

Altregel codes(int spalte, std::span<const Altcode> liste, std::string_view sonst = fehler)
{
    return {.art = Regelart::Codes, .spalte = spalte, .codes = liste, .sonst = sonst};
}

Altregel beide(int spalte, int zweite = 0)
{
    return {.art = Regelart::Beide, .spalte = spalte, .zweite = zweite};
}

/// A rule at its column, or the same rule at several.
struct Eintrag {
    int von;
    int bis;
    Altregel regel;
};

void trageEin(std::vector<Altregel>& regeln, const std::vector<Eintrag>& einträge)
{
    for (const auto& [von, bis, regel] : einträge) {
        for (int spalte = von; spalte <= bis; ++spalte) {
            regeln.at(static_cast<std::size_t>(spalte - 1)) = regel;
        }
    }
}

/// Columns next to each other that copy columns of the older row at a constant distance.
void trageKopienEin(std::vector<Altregel>& regeln, int von, int bis, int spalte, int abstand = 1)
{
    for (int i = von; i <= bis; ++i) {
        regeln.at(static_cast<std::size_t>(i - 1)) = kopie(spalte + (i - von) * abstand);
    }
}

std::vector<Altregel> baueKernregeln()
{
    std::vector<Altregel> regeln(kernspalten().size(), fest(null)); // what the older layout does not know is 0
    trageKopienEin(regeln, 1, 5, 1);
    trageEin(regeln, {
                         {6, 6, kopie(163)},
                         {7, 7, kopie(7)},
                         {8, 8, kopie(6)},
                         {9, 9, kopie(16)},
                         {12, 12, kopie(18)},
                         {13, 13, kopie(11)},
                         {14, 14, codes(17, vermittCodes, null)},
                         {24, 24, codes(14, auflagenCodes)},
                         {26, 43, fest({})},
                         {27, 27, kopie(30)},
                         {30, 30, kopie(25)},
                         {32, 32, kopie(36)},
                         {34, 34, kopie(46)},
                         {44, 44, kopie(60)},
                         {45, 45, kopie(61)},
                         {52, 54, fest({})},
                         {58, 58, codes(77, schuleCodes)},
                         {60, 60, codes(75, wohnungCodes)},
                         {62, 62, codes(76, wohnungCodes)},
                         {63, 63, codes(78, erwerbCodes)},
                         {94, 94, beide(93)},
                         {95, 95, beide(87, 112)},
                         {97, 97, beide(84)},
                         {98, 98, beide(87)},
                         {101, 101, beide(92)},
                         {111, 111, beide(112)},
                         {112, 112, beide(106, 93)},
                         {114, 114, beide(103)},
                         {115, 115, beide(106)},
                         {118, 118, beide(111)},
                         {154, 154, {.art = Regelart::OhneNull, .spalte = 160}},
                         {155, 155, codes(161, artEndeCodes)},
                         {156, 156, {.art = Regelart::FührendeAcht, .spalte = 161}},
                         {181, 181, codes(162, problEndeCodes)},
                     });
    trageKopienEin(regeln, 46, 51, 63, 2);
    for (int position = 1; position <= 9; ++position) {
        regeln.at(static_cast<std::size_t>(13 + position)) = {
            .art = Regelart::Kosten, .spalte = 12, .position = position};
    }
    return regeln;
}

std::vector<Altregel> baueDiagnoseregeln()
{
    constexpr std::array ersteSpalten{19, 25, 32, 39,  46,  53,  59,  65,  71,  77,
                                      83, 89, 95, 101, 107, 113, 119, 125, 131, 137};
    std::vector<Altregel> regeln(diagnosespalten().size(), fest(null));
    trageKopienEin(regeln, 1, 3, 1);
    std::size_t ort = 3;
    for (const int spalte : ersteSpalten) { // kind of consumption, and the digits behind the class
        regeln.at(ort) = kopie(spalte);
        regeln.at(ort + 3) = kopie(spalte + 2);
        ort += 6;
    }
    trageEin(regeln, {
                         {127, 127, kopie(147)},
                         {131, 131, kopie(153)},
                         {135, 135, kopie(159)},
                         {139, 139, fest({})},
                         {157, 157, kopie(142)},
                         {159, 159, {.art = Regelart::Auszunehmen, .spalte = 4, .codes = ohneGruppe, .sonst = null}},
                         {160, 160, fest({})},
                         {162, 162, kopie(204)},
                         {163, 163, kopie(205)},
                         {164, 165, fest({})},
                         {166, 166, kopie(208)},
                         {167, 167, kopie(209)},
                         {168, 169, fest({})},
                     });
    trageKopienEin(regeln, 170, 173, 212);
    return regeln;
}

} // namespace

const std::vector<Altregel>& kernregeln()
{
    static const auto regeln = baueKernregeln();
    return regeln;
}

const std::vector<Altregel>& diagnoseregeln()
{
    static const auto regeln = baueDiagnoseregeln();
    return regeln;
}
