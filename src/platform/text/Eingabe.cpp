#include "platform/text/Eingabe.h"

#include "platform/text/Zeichensatz.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

/// Nearest letters of the European letters that the code page lacks; each run starts at a code point and
/// gives one letter per code point ("?" marks a character without a nearest letter).
struct Lauf {
    char32_t anfang;
    std::string_view buchstaben;
};

constexpr std::array<Lauf, 6> läufe{{
    // Latin Extended-A
    {0x0100,
     "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi??JjKk?LlLlLlLlLlNnNnNnn??OoOoOo??RrRrRrSsSsSs??TtTtTtUuUu"
     "UuUuUuUuWwYy?ZzZz??s"},
    // Romanian s and t with comma below
    {0x0218, "SsTt"},
    // caron letters of Latin Extended-B
    {0x01CD, "AaIiOoUuUuUuUuUu"},
    // Latin Extended Additional: Welsh, then Vietnamese
    {0x1E80, "WwWwWw"},
    {0x1EA0, "AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEeEeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYy"},
    // hyphens of word processors
    {0x2010, "--"},
}};

std::optional<char> ausLauf(char32_t zeichen)
{
    for (const auto& lauf : läufe) {
        if (zeichen >= lauf.anfang && zeichen < lauf.anfang + lauf.buchstaben.size()) {
            const char buchstabe = lauf.buchstaben[zeichen - lauf.anfang];
            return buchstabe == '?' ? std::nullopt : std::optional(buchstabe);
        }
    }
    return std::nullopt;
}

bool istSteuerzeichen(char32_t zeichen)
{
    return zeichen < 0x20 || zeichen == 0x7F || zeichen == 0x2028 || zeichen == 0x2029 || zeichen == 0x85;
}

bool istZeilenumbruch(char32_t zeichen)
{
    return zeichen == U'\r' || zeichen == U'\n' || zeichen == 0x2028 || zeichen == 0x2029;
}

/// Appends what becomes of the character at `ort`; returns how many characters it took.
std::size_t nimmZeichen(std::u32string_view eingabe, std::size_t ort, bool mehrzeilig, Eingabeergebnis& ergebnis)
{
    const char32_t zeichen = eingabe[ort];
    if (istZeilenumbruch(zeichen)) {
        ergebnis.text.append(mehrzeilig ? "\r\n" : " ");
        return zeichen == U'\r' && ort + 1 < eingabe.size() && eingabe[ort + 1] == U'\n' ? 2 : 1;
    }
    if (istSteuerzeichen(zeichen)) {
        ergebnis.text.push_back(' ');
        return 1;
    }
    const auto byte = nächstesZeichen(zeichen);
    if (byte) {
        ergebnis.text.push_back(*byte);
        ergebnis.ersetzt = ergebnis.ersetzt || zeichensatz::unicodeVon(*byte) != zeichen;
    } else {
        ergebnis.verweigert = true;
    }
    return 1;
}

constexpr char32_t unlesbar = 0xFFFD;

/// Reads one UTF-8 sequence; a broken one yields `unlesbar` and takes one byte.
std::size_t liesUtf8(std::string_view text, std::size_t ort, char32_t& zeichen)
{
    const auto byte = [&](std::size_t i) { return static_cast<std::uint32_t>(static_cast<unsigned char>(text[i])); };
    const auto b0 = byte(ort);
    const std::size_t länge = b0 < 0x80 ? 1U : b0 >= 0xF0 ? 4U : b0 >= 0xE0 ? 3U : b0 >= 0xC2 ? 2U : 0U;
    zeichen = unlesbar;
    if (länge == 0 || b0 > 0xF4 || ort + länge > text.size()) {
        return 1;
    }
    char32_t wert = länge == 1 ? b0 : b0 & (0xFFU >> (länge + 1));
    for (std::size_t i = 1; i < länge; ++i) {
        if ((byte(ort + i) & 0xC0U) != 0x80U) {
            return 1;
        }
        wert = (wert << 6U) | (byte(ort + i) & 0x3FU);
    }
    zeichen = wert;
    return länge;
}

void hängeUtf8An(std::string& ziel, char32_t zeichen)
{
    const auto byte = [&](std::uint32_t wert) { ziel.push_back(static_cast<char>(static_cast<unsigned char>(wert))); };
    if (zeichen < 0x80) {
        byte(zeichen);
    } else if (zeichen < 0x800) {
        byte(0xC0U | (zeichen >> 6U));
        byte(0x80U | (zeichen & 0x3FU));
    } else {
        byte(0xE0U | (zeichen >> 12U));
        byte(0x80U | ((zeichen >> 6U) & 0x3FU));
        byte(0x80U | (zeichen & 0x3FU));
    }
}

} // namespace

std::optional<char> nächstesZeichen(char32_t zeichen)
{
    // The five unassigned bytes come from files only; nobody means to type them.
    const bool unbelegt = zeichen >= 0x80 && zeichen < 0xA0;
    if (const auto byte = zeichensatz::byteVon(zeichen); byte && !unbelegt) {
        return byte;
    }
    return ausLauf(zeichen);
}

Eingabeergebnis nimmEingabe(std::u32string_view eingabe, bool mehrzeilig, std::size_t höchstlänge)
{
    Eingabeergebnis ergebnis;
    for (std::size_t ort = 0; ort < eingabe.size();) {
        ort += nimmZeichen(eingabe, ort, mehrzeilig, ergebnis);
    }
    if (höchstlänge > 0 && ergebnis.text.size() > höchstlänge) {
        ergebnis.text.resize(höchstlänge);
    }
    return ergebnis;
}

std::u32string ausUtf8(std::string_view text)
{
    std::u32string ergebnis;
    for (std::size_t ort = 0; ort < text.size();) {
        char32_t zeichen = 0;
        ort += liesUtf8(text, ort, zeichen);
        ergebnis.push_back(zeichen);
    }
    return ergebnis;
}

std::string alsUtf8(std::string_view text)
{
    std::string ergebnis;
    for (const char zeichen : text) {
        hängeUtf8An(ergebnis, zeichensatz::unicodeVon(zeichen));
    }
    return ergebnis;
}
