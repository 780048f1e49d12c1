#include "store/Vollzugsvermerk.h"

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "satz/moHelferlein.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr auto kopfzeile = "Tolvek7: dieser Vorgang wird beim nächsten Start vollendet"_t;
constexpr std::string_view schlußwort = "Prüfsumme"_t;
constexpr std::string_view keineLänge = "-";
constexpr int hexadezimal = 16;

std::string alsZiffern(std::uint64_t zahl, int basis = 10)
{
    std::array<char, 24> ziffern{};
    const auto ende = std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl, basis).ptr;
    return {ziffern.data(), ende};
}

std::optional<std::uint64_t> zahlAus(std::string_view text, int basis = 10)
{
    std::uint64_t zahl = 0;
    const auto* const ende = text.data() + text.size();
    const auto [gelesen, fehler] = std::from_chars(text.data(), ende, zahl, basis);
    return fehler == std::errc() && gelesen == ende ? std::optional(zahl) : std::nullopt;
}

std::optional<Tabelle> tabelleZu(std::string_view name, const Bestandspfade& pfade)
{
    const auto nameVon = [&](Tabelle tabelle) { return pfadtext(pfade.von(tabelle).filename()); };
    const auto ort = std::ranges::find(alleSechs, name, nameVon);
    return ort == alleSechs.end() ? std::nullopt : std::optional(*ort);
}

std::optional<Vermerk> vermerkAus(std::string_view zeile, const Bestandspfade& pfade)
{
    const auto tabelle = tabelleZu(getFeld(zeile, 1, ';'), pfade);
    const auto alt = getFeld(zeile, 2, ';');
    const auto alteLänge = zahlAus(alt);
    const auto neueLänge = zahlAus(getFeld(zeile, 3, ';'));
    const auto prüfsumme = zahlAus(getFeld(zeile, 4, ';'), hexadezimal);
    if (!tabelle || (!alteLänge && alt != keineLänge) || !neueLänge || !prüfsumme) {
        return std::nullopt;
    }
    return Vermerk{*tabelle, alteLänge, *neueLänge, *prüfsumme};
}

} // namespace

std::string alsVermerktext(const std::vector<Vermerk>& vermerke, const Bestandspfade& pfade)
{
    auto text = verbinde(kopfzeile, "\r\n");
    for (const auto& vermerk : vermerke) {
        text += verbinde(pfadtext(pfade.von(vermerk.tabelle).filename()), ';',
                         vermerk.alteLänge ? alsZiffern(*vermerk.alteLänge) : std::string(keineLänge), ';',
                         alsZiffern(vermerk.neueLänge), ';', alsZiffern(vermerk.prüfsumme, hexadezimal), "\r\n");
    }
    return verbinde(text, schlußwort, ';', alsZiffern(Prüfsumme::von(text), hexadezimal), "\r\n");
}

std::optional<std::vector<Vermerk>> leseVermerke(std::string_view text, const Bestandspfade& pfade)
{
    std::vector<Vermerk> vermerke;
    Zeilen zeilen(text);
    if (zeilen.nächste() != kopfzeile) {
        return std::nullopt;
    }
    for (auto anfang = zeilen.position(); const auto zeile = zeilen.nächste(); anfang = zeilen.position()) {
        if (getFeld(*zeile, 1, ';') == schlußwort) {
            const bool istGanz =
                zahlAus(getFeld(*zeile, 2, ';'), hexadezimal) == Prüfsumme::von(text.substr(0, anfang));
            return istGanz ? std::optional(vermerke) : std::nullopt;
        }
        const auto vermerk = vermerkAus(*zeile, pfade);
        if (!vermerk) {
            return std::nullopt;
        }
        vermerke.push_back(*vermerk);
    }
    return std::nullopt;
}
