#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Numbers read from text: blanks around, an optional sign, digits. Anything else, or a number out of
/// the range of the type, is no number.
std::optional<std::int16_t> leseGanzzahl16(std::string_view text);
std::optional<std::int32_t> leseGanzzahl32(std::string_view text);
std::optional<std::int64_t> leseGanzzahl64(std::string_view text);

/// The number at the start of a text: blanks skipped, an optional sign, digits up to the first other
/// character; 0 where there is none. Saturates at the limits of 64 bits.
std::int64_t führendeZahl(std::string_view text);

/// The number in plain decimal.
std::string alsText(std::int64_t zahl);
