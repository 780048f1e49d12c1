#include "platform/text/Zahl.h"

#include "platform/text/Text.h"

#include <charconv>
#include <limits>
#include <system_error>

namespace {

/// The text as from_chars takes it, which knows no plus.
std::string_view ohnePlus(std::string_view text)
{
    const bool hatPlus = text.size() > 1 && text[0] == '+' && text[1] >= '0' && text[1] <= '9';
    return text.substr(hatPlus ? 1 : 0);
}

template <class Z> std::optional<Z> leseGanzzahl(std::string_view text)
{
    const auto ziffern = ohnePlus(getrimmt(text));
    Z wert = 0;
    const char* ende = ziffern.data() + ziffern.size();
    const auto [bis, fehler] = std::from_chars(ziffern.data(), ende, wert);
    return fehler == std::errc{} && bis == ende ? std::optional(wert) : std::nullopt;
}

} // namespace

std::optional<std::int16_t> leseGanzzahl16(std::string_view text)
{
    return leseGanzzahl<std::int16_t>(text);
}

std::optional<std::int32_t> leseGanzzahl32(std::string_view text)
{
    return leseGanzzahl<std::int32_t>(text);
}

std::optional<std::int64_t> leseGanzzahl64(std::string_view text)
{
    return leseGanzzahl<std::int64_t>(text);
}

std::int64_t führendeZahl(std::string_view text)
{
    using Grenzen = std::numeric_limits<std::int64_t>;
    const auto zahl = ohnePlus(getrimmt(text));
    std::int64_t wert = 0;
    if (std::from_chars(zahl.data(), zahl.data() + zahl.size(), wert).ec == std::errc::result_out_of_range) {
        wert = zahl.front() == '-' ? Grenzen::min() : Grenzen::max();
    }
    return wert;
}

std::string alsText(std::int64_t zahl)
{
    return std::to_string(zahl);
}
