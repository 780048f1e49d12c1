#include "platform/text/Utf8.h"

void utf8::hängeAn(std::string& ziel, char32_t zeichen)
{
    if (zeichen < 0x80) {
        ziel.push_back(static_cast<char>(zeichen));
        return;
    }
    const int folgebytes = zeichen < 0x800 ? 1 : zeichen < 0x10000 ? 2 : 3;
    const auto byte = [&](char32_t wert) { ziel.push_back(static_cast<char>(static_cast<unsigned char>(wert))); };
    byte((folgebytes == 1   ? 0xC0U
          : folgebytes == 2 ? 0xE0U
                            : 0xF0U) |
         (zeichen >> (6U * static_cast<unsigned>(folgebytes))));
    for (int rest = folgebytes - 1; rest >= 0; --rest) {
        byte(0x80U | ((zeichen >> (6U * static_cast<unsigned>(rest))) & 0x3FU));
    }
}
