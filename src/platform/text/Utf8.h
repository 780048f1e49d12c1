#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// UTF-8, the coding of the source files, of the system's messages and of file names: one decoder and one encoder.
namespace utf8 {

/// What a broken sequence is read as; the code page lacks it, so no field takes it and no literal holds it.
inline constexpr char32_t unlesbar = 0xFFFD;

struct Zeichen {
    char32_t wert;
    std::size_t länge; ///< in bytes
};

/// The character at the place; a broken sequence is `unlesbar` and takes one byte.
constexpr Zeichen lies(std::string_view text, std::size_t ort)
{
    const auto b0 = static_cast<unsigned char>(text[ort]);
    const std::size_t länge = b0 < 0x80 ? 1U : b0 >= 0xF0 ? 4U : b0 >= 0xE0 ? 3U : b0 >= 0xC2 ? 2U : 0U;
    if (länge == 0 || b0 > 0xF4 || ort + länge > text.size()) {
        return {unlesbar, 1};
    }
    char32_t wert = länge == 1 ? b0 : b0 & (0xFFU >> (länge + 1));
    for (std::size_t i = 1; i < länge; ++i) {
        const auto byte = static_cast<unsigned char>(text[ort + i]);
        if ((byte & 0xC0U) != 0x80U) {
            return {unlesbar, 1};
        }
        wert = (wert << 6U) | (byte & 0x3FU);
    }
    return {wert, länge};
}

/// Appends the character.
void hängeAn(std::string& ziel, char32_t zeichen);

} // namespace utf8
