#include "platform/text/Utf8.h"

#include <array>

void utf8::hängeAn(std::string& ziel, char32_t zeichen)
{
    constexpr std::array<char32_t, 4> vorsätze{0x00, 0xC0, 0xE0, 0xF0};
    unsigned folgebytes = zeichen < 0x80 ? 0 : zeichen < 0x800 ? 1 : zeichen < 0x10000 ? 2 : 3;
    ziel.push_back(static_cast<char>(vorsätze[folgebytes] | (zeichen >> (6 * folgebytes))));
    while (folgebytes-- > 0) {
        ziel.push_back(static_cast<char>(0x80U | ((zeichen >> (6 * folgebytes)) & 0x3FU)));
    }
}
