#include "satz/Datumstexte.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Zeilenfelder.h"

#include <algorithm>
#include <compare>
#include <cstdint>

namespace {

/// Day, month, year as the older date texts are compared: a part that is missing is no number.
struct Datumsteile {
    std::int16_t jahr;
    std::int16_t monat;
    std::int16_t tag;

    auto operator<=>(const Datumsteile&) const = default;
};

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

/// A third point brings a part that is read but doesn't count; a fourth is too many.
Datumsteile zerlegeDatum(std::string_view datum)
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
