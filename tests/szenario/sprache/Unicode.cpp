#include "sprache/Unicode.h"

#include "platform/text/Eingabe.h"
#include "platform/text/Zeichensatz.h"

std::string alsUtf8(std::u32string_view text)
{
    std::string bytes;
    const auto hänge = [&](char32_t wert) { bytes.push_back(static_cast<char>(static_cast<unsigned char>(wert))); };
    const auto folge = [&](char32_t wert) { hänge(0x80U | (wert & 0x3FU)); };
    for (const char32_t zeichen : text) {
        if (zeichen < 0x80) {
            hänge(zeichen);
        } else if (zeichen < 0x800) {
            hänge(0xC0U | (zeichen >> 6U));
            folge(zeichen);
        } else if (zeichen < 0x10000) {
            hänge(0xE0U | (zeichen >> 12U));
            folge(zeichen >> 6U);
            folge(zeichen);
        } else {
            hänge(0xF0U | (zeichen >> 18U));
            folge(zeichen >> 12U);
            folge(zeichen >> 6U);
            folge(zeichen);
        }
    }
    return bytes;
}

std::string alsTabellentext(std::u32string_view text)
{
    std::string bytes;
    for (const char32_t zeichen : text) {
        const auto byte = zeichensatz::byteVon(zeichen);
        if (!byte) {
            throw Zeichenfehler("Zeichen »" + alsUtf8(std::u32string(1, zeichen)) + "« fehlt in der Codepage");
        }
        bytes.push_back(*byte);
    }
    return bytes;
}

bool istUtf8(std::string_view bytes)
{
    return alsUtf8(ausUtf8(bytes)) == bytes;
}
