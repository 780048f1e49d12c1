#include "platform/text/Text.h"

char klein(char zeichen)
{
    // those whose lower case is not 32 places behind them
    constexpr auto große = "ŠŒŽŸ"_t;
    constexpr auto kleine = "šœžÿ"_t;
    const auto byte = static_cast<unsigned char>(zeichen);
    if ((byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7)) {
        return static_cast<char>(byte + 0x20U);
    }
    const auto ort = große.find(zeichen);
    return ort == std::string_view::npos ? zeichen : kleine[ort];
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
    constexpr auto akzente = "àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþÿßšœž"_t;
    constexpr auto grundbuchstaben = "aaaaaaaceeeeiiiidnoooooouuuuypyssoz"_t;
    static_assert(akzente.size() == grundbuchstaben.size());
    const char kleines = klein(zeichen);
    const auto ort = akzente.find(kleines);
    return ort == std::string_view::npos ? kleines : grundbuchstaben[ort];
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
