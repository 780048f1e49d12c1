#include "Worte.h"

#include "sprache/Unicode.h"

#include "platform/text/Eingabe.h"
#include "platform/text/Zeichensatz.h"

namespace {

/// Characters that a scenario can only say by their code: control characters, and those without a place in
/// Unicode.
bool brauchtCode(unsigned char byte)
{
    const bool unbelegt = byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
    return byte < 0x20 || byte == 0x7F || unbelegt;
}

std::string alsCode(unsigned char byte)
{
    constexpr std::string_view ziffern = "0123456789ABCDEF";
    return std::string("\\x") + ziffern[byte / 16U] + ziffern[byte % 16U];
}

std::string verhüllt(char zeichen)
{
    const auto byte = static_cast<unsigned char>(zeichen);
    if (brauchtCode(byte)) {
        return alsCode(byte);
    }
    const auto klar = alsUtf8(std::string_view(&zeichen, 1));
    return zeichen == '"' || zeichen == '\\' ? '\\' + klar : klar;
}

} // namespace

std::string alsArgument(std::u32string_view text)
{
    std::string ergebnis = "\"";
    for (const char32_t zeichen : text) {
        if (zeichen == U'\n') {
            ergebnis += "\\n";
        } else if (zeichen < 0x80) {
            ergebnis += verhüllt(static_cast<char>(zeichen));
        } else {
            ergebnis += alsUtf8(std::u32string_view(&zeichen, 1));
        }
    }
    return ergebnis + '"';
}

std::string alsArgument(std::string_view tabellentext)
{
    std::string ergebnis = "\"";
    for (const char zeichen : tabellentext) {
        ergebnis += zeichen == '\n' ? "\\n" : verhüllt(zeichen);
    }
    return ergebnis + '"';
}

std::string alsZeile(std::string_view tabellentext)
{
    std::string ergebnis = "|";
    for (const char zeichen : tabellentext) {
        ergebnis += verhüllt(zeichen);
    }
    return ergebnis;
}
