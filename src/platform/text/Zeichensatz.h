#pragma once

#include <array>
#include <cstddef>
#include <optional>

/// The code page of the tables (Windows-1252) as data. The records are bytes in this code page;
/// the five unassigned bytes keep their own value, so that every byte survives a round trip.
namespace zeichensatz {

/// Unicode of the bytes 0x80 to 0x9F; all other bytes are their own code point.
inline constexpr std::array<char32_t, 32> sonderbereich{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The Unicode code point of a byte of the code page.
constexpr char32_t unicodeVon(char zeichen)
{
    const auto byte = static_cast<unsigned char>(zeichen);
    if (byte >= 0x80 && byte <= 0x9F) {
        return sonderbereich[byte - 0x80U];
    }
    return byte;
}

/// The byte of a Unicode code point, or nothing when the code page lacks the character.
constexpr std::optional<char> byteVon(char32_t zeichen)
{
    if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) {
        return static_cast<char>(static_cast<unsigned char>(zeichen));
    }
    for (std::size_t i = 0; i < sonderbereich.size(); ++i) {
        if (sonderbereich[i] == zeichen) {
            return static_cast<char>(static_cast<unsigned char>(0x80U + i));
        }
    }
    return std::nullopt;
}

} // namespace zeichensatz
