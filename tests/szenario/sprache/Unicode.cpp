#include "sprache/Unicode.h"

#include "platform/text/Eingabe.h"
#include "platform/text/Utf8.h"
#include "platform/text/Zeichensatz.h"

std::string alsUtf8(std::u32string_view text)
{
    std::string bytes;
    for (const char32_t zeichen : text) {
        utf8::hängeAn(bytes, zeichen);
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
