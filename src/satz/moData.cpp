#include "satz/moData.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <cstddef>

std::array<std::string, höchsteGruppe + 1> aryICD;
std::array<std::string, höchsteGruppe + 1> aryProblem;
std::array<std::string, höchsteGruppe + 1> aryProblemKurz;
std::array<std::string, höchsteGruppe + 1> aryProblemZusatz;

namespace {

struct Problembereich {
    std::string_view icd;
    std::string_view problem;
    std::string_view kurz; ///< empty: the same as `problem`
    std::string_view zusatz;
    std::string_view code;
};

/// Element g-1 is group g.
constexpr std::array<Problembereich, höchsteGruppe> katalog{{
    {"F10"_t, "Alkohol"_t, {}, {}, "100"_t},
    {"F11"_t, "Heroin"_t, {}, {}, "111"_t},
    {"F11"_t, "Methadon"_t, {}, {}, "112"_t},
    {"F11"_t, "Buprenorphin"_t, {}, {}, "113"_t},
    {"F11"_t, "andere opiathaltige Mittel"_t, {}, {}, "114"_t},
    {"F12"_t, "Cannabis"_t, {}, {}, "120"_t},
    {"F13"_t, "Barbiturate"_t, {}, {}, "131"_t},
    {"F13"_t, "Benzodiazepine"_t, {}, {}, "132"_t},
    {"F13"_t, "andere Sedativa/Hypnotika"_t, {}, {}, "133"_t},
    {"F14"_t, "Kokain"_t, {}, {}, "141"_t},
    {"F14"_t, "Crack"_t, {}, {}, "142"_t},
    {"F15"_t, "Amphetamine"_t, {}, {}, "151"_t},
    {"F15"_t, "MDMA und verwandte Substanzen (Ecstasy)"_t, "MDMA und verwandte"_t, "Substanzen (Ecstasy)"_t, "152"_t},
    {"F15"_t, "andere Stimulantien"_t, {}, {}, "153"_t},
    {"F16"_t, "LSD"_t, {}, {}, "161"_t},
    {"F16"_t, "Mescalin"_t, {}, {}, "162"_t},
    {"F16"_t, "sonstige Halluzinogene"_t, {}, {}, "163"_t},
    {"F17"_t, "Tabak"_t, {}, {}, "170"_t},
    {"F18"_t, "Flüchtige Lösungsmittel"_t, {}, {}, "180"_t},
    {"F19"_t, "andere psychotrope Substanzen"_t, {}, {}, "190"_t},
    {"F55.0"_t, "Missbrauch von Antidepressiva"_t, {}, {}, "550"_t},
    {"F55.1"_t, "Missbrauch von Laxantien"_t, {}, {}, "551"_t},
    {"F55.2"_t, "Missbrauch von Analgetika"_t, {}, {}, "552"_t},
    {"F63.0"_t, "Path. Glücksspiel - Geldspielautomaten in Spielhallen etc."_t, "Path. Glücksspiel"_t,
     "Geldspielautomaten in Spielhallen etc."_t, "631"_t},
    {"F63.0"_t, "Path. Glücksspiel - Kleines Spiel der Spielbank"_t, "Path. Glücksspiel"_t,
     "Kleines Spiel der Spielbank"_t, "632"_t},
    {"F63.0"_t, "Path. Glücksspiel - Großes Spiel der Spielbank"_t, "Path. Glücksspiel"_t,
     "Großes Spiel der Spielbank"_t, "633"_t},
    {"F63.0"_t, "Path. Glücksspiel - Wetten"_t, "Path. Glücksspiel"_t, "Wetten"_t, "634"_t},
    {"F63.0"_t, "Path. Glücksspiel - Andere"_t, "Path. Glücksspiel"_t, "Andere"_t, "635"_t},
    {"F50"_t, "Essstörungen"_t, {}, {}, "500"_t},
}};

} // namespace

std::string_view gruppenname(int gruppe)
{
    const auto ort = static_cast<std::size_t>(gruppe - 1);
    return gruppe < 1 || ort >= katalog.size() ? std::string_view() : katalog[ort].problem;
}

std::string gruppencode(int gruppe)
{
    return std::string(katalog.at(static_cast<std::size_t>(gruppe - 1)).code);
}

void baueProblemKatalog()
{
    for (std::size_t gruppe = 1; gruppe < aryProblem.size(); ++gruppe) {
        const Problembereich& bereich = katalog[gruppe - 1];
        aryICD[gruppe] = bereich.icd;
        aryProblem[gruppe] = bereich.problem;
        aryProblemKurz[gruppe] = verbinde(" • "_t, bereich.kurz.empty() ? bereich.problem : bereich.kurz);
        aryProblemZusatz[gruppe] = verbinde("   "_t, bereich.zusatz);
    }
}

int gruppeZuName(std::string_view name)
{
    const auto ort = std::ranges::find(katalog, name, &Problembereich::problem);
    return ort == katalog.end() ? 0 : static_cast<int>(ort - katalog.begin()) + 1;
}
