#include "Befehlszeile.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <system_error>

namespace fs = std::filesystem;

namespace {

Oberflächenwahl liesOberfläche(std::string_view wert)
{
    if (wert == "ohne") {
        return Oberflächenwahl::Ohne;
    }
    if (wert == "qt") {
        return Oberflächenwahl::Qt;
    }
    if (wert == "beide") {
        return Oberflächenwahl::Beide;
    }
    throw Aufruffehler("--oberfläche=ohne, qt oder beide statt »" + std::string(wert) + "«");
}

/// "2/3" is the second of three parts.
void liesTeil(std::string_view wert, Befehlszeile& befehlszeile)
{
    const auto strich = std::min(wert.find('/'), wert.size());
    const auto ende = wert.data() + wert.size();
    const auto erste = std::from_chars(wert.data(), wert.data() + strich, befehlszeile.teil);
    const auto zweite = std::from_chars(std::min(wert.data() + strich + 1, ende), ende, befehlszeile.teile);
    if (erste.ec != std::errc() || erste.ptr != wert.data() + strich || zweite.ec != std::errc() ||
        zweite.ptr != ende || befehlszeile.teil < 1 || befehlszeile.teil > befehlszeile.teile) {
        throw Aufruffehler("--teil=1/3, 2/3 oder 3/3 statt »" + std::string(wert) + "«");
    }
}

/// What stands behind `name=`, if the argument is this option.
std::optional<std::string_view> wertVon(std::string_view argument, std::string_view name)
{
    return argument.starts_with(name) ? std::optional(argument.substr(name.size())) : std::nullopt;
}

std::vector<fs::path> szenarienIn(const fs::path& ordner)
{
    std::vector<fs::path> dateien;
    for (const auto& eintrag : fs::recursive_directory_iterator(ordner)) {
        if (eintrag.is_regular_file() && eintrag.path().extension() == ".szenario") {
            dateien.push_back(eintrag.path());
        }
    }
    std::sort(dateien.begin(), dateien.end());
    return dateien;
}

} // namespace

std::string pfadAlsUtf8(const fs::path& pfad)
{
    const auto u8 = pfad.u8string();
    return {u8.begin(), u8.end()};
}

Befehlszeile liesBefehlszeile(const std::vector<std::string>& argumente)
{
    Befehlszeile befehlszeile;
    for (const std::string& argument : argumente) {
        if (const auto oberfläche = wertVon(argument, "--oberfläche=")) {
            befehlszeile.oberfläche = liesOberfläche(*oberfläche);
        } else if (const auto nur = wertVon(argument, "--nur=")) {
            befehlszeile.nur = *nur;
        } else if (const auto teil = wertVon(argument, "--teil=")) {
            liesTeil(*teil, befehlszeile);
        } else if (argument.starts_with("--")) {
            throw Aufruffehler("unbekannt: " + argument);
        } else {
            befehlszeile.orte.emplace_back(std::u8string(argument.begin(), argument.end()));
        }
    }
    if (befehlszeile.orte.empty()) {
        throw Aufruffehler("eine Datei oder ein Ordner fehlt");
    }
    return befehlszeile;
}

std::vector<fs::path> findeSzenarien(const Befehlszeile& befehlszeile)
{
    std::vector<fs::path> dateien;
    for (const auto& ort : befehlszeile.orte) {
        if (!fs::exists(ort)) {
            throw Aufruffehler(pfadAlsUtf8(ort) + " ist nicht da");
        }
        const auto gefunden = fs::is_directory(ort) ? szenarienIn(ort) : std::vector{ort};
        dateien.insert(dateien.end(), gefunden.begin(), gefunden.end());
    }
    std::erase_if(dateien,
                  [&](const auto& pfad) { return pfadAlsUtf8(pfad).find(befehlszeile.nur) == std::string::npos; });
    // neighbours go into different parts, since the long ones are neighbours
    std::size_t nummer = 0;
    std::erase_if(dateien, [&](const auto&) { return nummer++ % befehlszeile.teile != befehlszeile.teil - 1; });
    return dateien;
}
