#include "platform/text/Eingabe.h"

#include "platform/text/Utf8.h"
#include "platform/text/Zeichensatz.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

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

/// Letters that the code page has composed, by the mark that follows the letter.
struct Zusammensetzung {
    char32_t zeichen;
    std::u32string_view grund;
    std::u32string_view zusammen;
};

constexpr std::array<Zusammensetzung, 8> zusammensetzungen{{
    {0x0300, U"AEIOUaeiou", U"ÀÈÌÒÙàèìòù"},
    {0x0301, U"AEIOUYaeiouy", U"ÁÉÍÓÚÝáéíóúý"},
    {0x0302, U"AEIOUaeiou", U"ÂÊÎÔÛâêîôû"},
    {0x0303, U"ANOano", U"ÃÑÕãñõ"},
    {0x0308, U"AEIOUYaeiouy", U"ÄËÏÖÜŸäëïöüÿ"},
    {0x030A, U"Aa", U"Åå"},
    {0x030C, U"SZsz", U"ŠŽšž"},
    {0x0327, U"Cc", U"Çç"},
}};

bool istAkzent(char32_t zeichen)
{
    return zeichen >= 0x0300 && zeichen <= 0x036F;
}

/// The letter with the mark on it; nothing where the code page has no such letter.
std::optional<char32_t> mitAkzent(char32_t grund, char32_t akzent)
{
    for (const auto& z : zusammensetzungen) {
        const auto ort = z.zeichen == akzent ? z.grund.find(grund) : std::u32string_view::npos;
        if (ort != std::u32string_view::npos) {
            return z.zusammen[ort];
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

void nimmSteuerzeichen(char32_t zeichen, bool mehrzeilig, Eingabeergebnis& ergebnis)
{
    if (!mehrzeilig) {
        ergebnis.text.push_back(' ');
    } else if (zeichen == U'\t') {
        ergebnis.text.push_back('\t');
    } else {
        ergebnis.verweigert = true;
    }
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
        nimmSteuerzeichen(zeichen, mehrzeilig, ergebnis);
        return 1;
    }
    const bool amBuchstaben = istAkzent(zeichen) && ort > 0 && !istSteuerzeichen(eingabe[ort - 1]);
    const auto byte = nächstesZeichen(zeichen);
    if (byte) {
        ergebnis.text.push_back(*byte);
        ergebnis.ersetzt = ergebnis.ersetzt || zeichensatz::unicodeVon(*byte) != zeichen;
    } else if (amBuchstaben) {
        ergebnis.ersetzt = true; // the letter without its mark is the nearest one
    } else {
        ergebnis.verweigert = true;
    }
    return 1;
}

std::u32string zusammengesetzt(std::u32string_view text)
{
    std::u32string ergebnis;
    for (const char32_t zeichen : text) {
        const auto mit = ergebnis.empty() ? std::nullopt : mitAkzent(ergebnis.back(), zeichen);
        if (mit) {
            ergebnis.back() = *mit;
        } else {
            ergebnis.push_back(zeichen);
        }
    }
    return ergebnis;
}

/// A character of a stored text as a field shows it, and where its bytes begin.
struct Feldzeichen {
    char32_t zeichen;
    std::size_t anfang;
};

std::vector<Feldzeichen> feldzeichen(std::string_view text, bool mehrzeilig)
{
    std::vector<Feldzeichen> ergebnis;
    ergebnis.reserve(text.size());
    for (std::size_t ort = 0; ort < text.size();) {
        const bool umbruch = mehrzeilig && (text[ort] == '\r' || text[ort] == '\n');
        ergebnis.push_back({umbruch ? U'\n' : zeichensatz::unicodeVon(text[ort]), ort});
        ort += umbruch && text.substr(ort, 2) == "\r\n" ? 2 : 1;
    }
    return ergebnis;
}

/// How many characters at the start and at the end of a field were not touched.
struct Unberührt {
    std::size_t vorn;
    std::size_t hinten;
};

Unberührt vergleiche(const std::vector<Feldzeichen>& alt, std::u32string_view jetzt, std::size_t marke)
{
    const auto gleich = [&](std::size_t a, std::size_t j) { return alt[a].zeichen == jetzt[j]; };
    const std::size_t kürzere = std::min(alt.size(), jetzt.size());
    // the cursor stands behind what was typed: what follows it is the rest of the old text
    std::size_t hinten = 0;
    const std::size_t hinterDerMarke = std::min(kürzere, jetzt.size() - std::min(marke, jetzt.size()));
    while (hinten < hinterDerMarke && gleich(alt.size() - 1 - hinten, jetzt.size() - 1 - hinten)) {
        ++hinten;
    }
    std::size_t vorn = 0;
    while (vorn < kürzere - hinten && gleich(vorn, vorn)) {
        ++vorn;
    }
    return {vorn, hinten};
}

/// The bytes that were touched.
struct Stelle {
    std::size_t anfang;
    std::size_t ende;
};

Stelle bytesZu(const std::vector<Feldzeichen>& alt, std::size_t länge, const Unberührt& unberührt)
{
    return {unberührt.vorn == alt.size() ? länge : alt[unberührt.vorn].anfang,
            unberührt.hinten == 0 ? länge : alt[alt.size() - unberührt.hinten].anfang};
}

/// The old text with what is new in place of what was touched.
Feldänderung eingesetzt(std::string_view bisher, const Stelle& stelle, Eingabeergebnis neu)
{
    const std::size_t marke = stelle.anfang + neu.text.size();
    neu.text = std::string(bisher.substr(0, stelle.anfang)) + neu.text + std::string(bisher.substr(stelle.ende));
    return {std::move(neu), marke, marke};
}

void kürze(Eingabeergebnis& ergebnis, std::size_t platz)
{
    if (ergebnis.text.size() > platz) {
        ergebnis.text.resize(platz);
        ergebnis.gekürzt = true;
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
    const auto zeichen = zusammengesetzt(eingabe);
    Eingabeergebnis ergebnis;
    for (std::size_t ort = 0; ort < zeichen.size();) {
        ort += nimmZeichen(zeichen, ort, mehrzeilig, ergebnis);
    }
    if (höchstlänge > 0) {
        kürze(ergebnis, höchstlänge);
    }
    return ergebnis;
}

std::u32string alsFeldtext(std::string_view text, bool mehrzeilig)
{
    std::u32string ergebnis;
    for (const auto& zeichen : feldzeichen(text, mehrzeilig)) {
        ergebnis.push_back(zeichen.zeichen);
    }
    return ergebnis;
}

Feldänderung nimmÄnderung(std::string_view bisher, std::u32string_view jetzt, std::size_t marke, bool mehrzeilig,
                          std::size_t höchstlänge)
{
    const auto alt = feldzeichen(bisher, mehrzeilig);
    auto unberührt = vergleiche(alt, jetzt, marke);
    const auto getipptes = [&] {
        return jetzt.substr(unberührt.vorn, jetzt.size() - unberührt.vorn - unberührt.hinten);
    };
    // a mark that is typed behind a letter changes that letter
    const bool beginntMitAkzent = unberührt.vorn > 0 && !getipptes().empty() && istAkzent(getipptes().front());
    if (beginntMitAkzent && mitAkzent(jetzt[unberührt.vorn - 1], jetzt[unberührt.vorn])) {
        --unberührt.vorn;
    }
    auto getippt = nimmEingabe(getipptes(), mehrzeilig);
    if (beginntMitAkzent && getippt.verweigert) {
        getippt.verweigert = false;
        getippt.ersetzt = true;
    }
    const Stelle stelle = bytesZu(alt, bisher.size(), unberührt);
    if (höchstlänge > 0) {
        const std::size_t bleibt = stelle.anfang + bisher.size() - stelle.ende;
        kürze(getippt, höchstlänge - std::min(höchstlänge, bleibt));
    }
    if (getippt.text.empty() && !getipptes().empty()) {
        getippt.text = bisher;
        return {std::move(getippt), stelle.ende, stelle.anfang};
    }
    return eingesetzt(bisher, stelle, std::move(getippt));
}

Feldänderung übertrageÄnderung(std::string_view bisher, std::u32string_view jetzt, std::size_t marke, bool mehrzeilig)
{
    const auto alt = feldzeichen(bisher, mehrzeilig);
    const auto unberührt = vergleiche(alt, jetzt, marke);
    Eingabeergebnis neu;
    for (const char32_t zeichen : jetzt.substr(unberührt.vorn, jetzt.size() - unberührt.vorn - unberührt.hinten)) {
        if (mehrzeilig && zeichen == U'\n') {
            neu.text.append("\r\n");
        } else if (const auto byte = zeichensatz::byteVon(zeichen)) {
            neu.text.push_back(*byte);
        }
    }
    return eingesetzt(bisher, bytesZu(alt, bisher.size(), unberührt), std::move(neu));
}

std::u32string ausUtf8(std::string_view text)
{
    std::u32string ergebnis;
    for (std::size_t ort = 0; ort < text.size();) {
        const auto zeichen = utf8::lies(text, ort);
        ergebnis.push_back(zeichen.wert);
        ort += zeichen.länge;
    }
    return ergebnis;
}

std::string alsUtf8(std::string_view text)
{
    std::string ergebnis;
    for (const char zeichen : text) {
        utf8::hängeAn(ergebnis, zeichensatz::unicodeVon(zeichen));
    }
    return ergebnis;
}
