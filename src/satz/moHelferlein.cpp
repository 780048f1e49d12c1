#include "satz/moHelferlein.h"

#include "platform/text/Text.h"
#include "satz/Klientenfelder.h"

#include <array>
#include <filesystem>

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
