#include "umgebung/Scheitern.h"

#include "platform/text/Eingabe.h"

#include <algorithm>

namespace {

constexpr std::size_t höchstbreite = 120;

void hängeSichtbar(std::string& ziel, char zeichen)
{
    constexpr std::string_view ziffern = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(zeichen);
    if (zeichen == '\n') {
        ziel += "\\n";
    } else if (byte < 0x20 || byte == 0x7F) {
        ziel.append("\\x").append(1, ziffern[byte / 16U]).append(1, ziffern[byte % 16U]);
    } else {
        ziel += alsUtf8(std::string_view(&zeichen, 1));
    }
}

} // namespace

std::string zeige(std::string_view text, std::size_t stelle)
{
    const bool passt = text.size() <= höchstbreite;
    const std::size_t anfang = passt || stelle < höchstbreite / 2 ? 0 : stelle - höchstbreite / 2;
    const std::string_view teil = text.substr(std::min(anfang, text.size()), höchstbreite);
    std::string ergebnis = anfang > 0 ? "»…" : "»";
    for (const char zeichen : teil) {
        hängeSichtbar(ergebnis, zeichen);
    }
    return ergebnis + (anfang + teil.size() < text.size() ? "…«" : "«");
}
