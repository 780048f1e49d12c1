#include "platform/text/Text.h"

namespace {

/// The accented letters of the code page that have a lower case of their own outside the range 0xC0 to 0xDE.
struct Paar {
    char groß;
    char klein;
};
constexpr std::array<Paar, 4> sonderpaare{{{'\x8A', '\x9A'}, {'\x8C', '\x9C'}, {'\x8E', '\x9E'}, {'\x9F', '\xFF'}}};

/// Base letters of 0xE0 to 0xFF ("÷" stays itself).
constexpr std::string_view grundbuchstaben = "aaaaaaaceeeeiiiidnooooo\xF7ouuuuypy";

} // namespace

char klein(char zeichen)
{
    const auto byte = static_cast<unsigned char>(zeichen);
    if (zeichen >= 'A' && zeichen <= 'Z') {
        return static_cast<char>(zeichen + ('a' - 'A'));
    }
    if (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7) {
        return static_cast<char>(byte + 0x20U);
    }
    for (const auto& paar : sonderpaare) {
        if (paar.groß == zeichen) {
            return paar.klein;
        }
    }
    return zeichen;
}

std::string klein(std::string_view text)
{
    std::string ergebnis(text);
    for (char& zeichen : ergebnis) {
        zeichen = klein(zeichen);
    }
    return ergebnis;
}

std::string_view getrimmt(std::string_view text)
{
    const auto anfang = text.find_first_not_of(' ');
    if (anfang == std::string_view::npos) {
        return {};
    }
    return text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
}

char sortierzeichen(char zeichen)
{
    const char k = klein(zeichen);
    const auto byte = static_cast<unsigned char>(k);
    if (byte >= 0xE0) {
        return grundbuchstaben[byte - 0xE0U];
    }
    switch (k) {
    case '\xDF':
    case '\x9A':
        return 's';
    case '\x9C':
        return 'o';
    case '\x9E':
        return 'z';
    default:
        return k;
    }
}

std::string ersetzt(std::string_view text, std::string_view alt, std::string_view neu)
{
    std::string ergebnis;
    std::size_t ort = 0;
    while (!alt.empty()) {
        const auto fund = text.find(alt, ort);
        if (fund == std::string_view::npos) {
            break;
        }
        ergebnis.append(text.substr(ort, fund - ort)).append(neu);
        ort = fund + alt.size();
    }
    return ergebnis.append(text.substr(ort));
}
