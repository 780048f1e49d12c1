#include "platform/text/Zahl.h"

#include "platform/text/Text.h"

#include <charconv>
#include <limits>

namespace {

bool istZiffer(char zeichen)
{
    return zeichen >= '0' && zeichen <= '9';
}

template <class Z> std::optional<Z> leseGanzzahl(std::string_view text)
{
    auto ziffern = getrimmt(text);
    if (!ziffern.empty() && ziffern.front() == '+') {
        ziffern.remove_prefix(1);
        if (ziffern.empty() || !istZiffer(ziffern.front())) {
            return std::nullopt;
        }
    }
    Z wert = 0;
    const char* ende = ziffern.data() + ziffern.size();
    const auto [bis, fehler] = std::from_chars(ziffern.data(), ende, wert);
    if (fehler != std::errc{} || bis != ende || ziffern.empty()) {
        return std::nullopt;
    }
    return wert;
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
    const auto anfang = text.find_first_not_of(' ');
    if (anfang == std::string_view::npos) {
        return 0;
    }
    text.remove_prefix(anfang);
    std::size_t länge = (text.front() == '-' || text.front() == '+') ? 1 : 0;
    while (länge < text.size() && istZiffer(text[länge])) {
        ++länge;
    }
    const auto zahl = text.substr(0, länge);
    if (zahl.empty() || !istZiffer(zahl.back())) {
        return 0;
    }
    using Grenzen = std::numeric_limits<std::int64_t>;
    return leseGanzzahl64(zahl).value_or(zahl.front() == '-' ? Grenzen::min() : Grenzen::max());
}

std::string alsText(std::int64_t zahl)
{
    return std::to_string(zahl);
}
