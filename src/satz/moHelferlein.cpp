#include "satz/moHelferlein.h"

#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Klientenfelder.h"

#include <algorithm>
#include <array>
#include <compare>
#include <cstdint>
#include <filesystem>

namespace {

[[noreturn]] void keinDatum(std::string_view text)
{
    throw Laufzeitfehler(verbinde("\""_t, text, "\" ist kein gültiges Datum"_t));
}

std::int16_t datumsteil(std::string_view datum, int nummer)
{
    const auto teil = leseGanzzahl16(getFeld(datum, nummer, '.'));
    if (!teil) {
        keinDatum(datum);
    }
    return *teil;
}

/// Year, month, day as the older date texts are compared: a part that is missing is no number. A third point brings a
/// part that is read but doesn't count; a fourth is too many.
std::array<std::int16_t, 3> zerlegeDatum(std::string_view datum)
{
    const auto punkte = std::ranges::count(datum, '.');
    if (punkte > 3) {
        keinDatum(datum);
    }
    if (punkte == 3) {
        datumsteil(datum, 4);
    }
    return {datumsteil(datum, 3), datumsteil(datum, 2), datumsteil(datum, 1)};
}

} // namespace

bool vergleicheDatum(std::string_view a, std::string_view op, std::string_view b)
{
    const auto ordnung = zerlegeDatum(a) <=> zerlegeDatum(b);
    return (op == ">" && ordnung > 0) || (op == "<" && ordnung < 0) || (op == ">=" && ordnung >= 0) ||
           (op == "<=" && ordnung <= 0);
}

std::optional<Datum> datumAusText(std::string_view text)
{
    if (text.empty() || text == "." || text == "..") {
        return std::nullopt;
    }
    const auto datum = leseDatum(text);
    if (!datum) {
        keinDatum(text);
    }
    return datum;
}

std::string klientenname(std::string_view kernDS)
{
    return verbinde(getFeld(kernDS, feld::kern::nachname), ", "_t, getFeld(kernDS, feld::kern::vorname));
}

std::string pfadVon(std::string_view pfad)
{
    constexpr std::array ende{':', static_cast<char>(std::filesystem::path::preferred_separator)};
    const auto ort = pfad.find_last_of(std::string_view(ende.data(), ende.size()));
    return std::string(pfad.substr(0, ort == std::string_view::npos ? 0 : ort));
}
