#pragma once

#include "platform/text/Eingabe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

/// Approved outputs: what the program makes of its tables, as files below the checkout. They are compared byte by byte;
/// with TOLVEK_ABNAHME=neu in the environment they are written instead (`make abnahme`, which shows what changed).

inline bool wirdAbgenommen()
{
    const char* wunsch = std::getenv("TOLVEK_ABNAHME");
    return wunsch != nullptr && std::string_view(wunsch) == "neu";
}

inline std::string leseAbnahme(const std::string& pfad)
{
    std::ifstream strom(pfad, std::ios::binary);
    EXPECT_TRUE(strom) << pfad;
    return {std::istreambuf_iterator<char>(strom), {}};
}

/// Line and surroundings of the first difference; whole tables of long lines would tell nothing.
inline std::string ersterUnterschied(const std::string& alt, const std::string& neu)
{
    const auto stelle =
        static_cast<std::size_t>(std::mismatch(alt.begin(), alt.end(), neu.begin(), neu.end()).first - alt.begin());
    const auto zeile = std::count(alt.begin(), alt.begin() + static_cast<std::ptrdiff_t>(stelle), '\n') + 1;
    const auto umgebung = [&](const std::string& text) {
        const auto anfang = stelle - std::min<std::size_t>(stelle, 40);
        return "\n  " + text.substr(std::min(anfang, text.size()), 100);
    };
    return "line " + std::to_string(zeile) + ", approved and found:" + umgebung(alt) + umgebung(neu);
}

inline void vergleicheOderSchreibe(const std::string& pfad, const std::string& gefunden)
{
    if (wirdAbgenommen()) {
        std::ofstream strom(pfad, std::ios::binary | std::ios::trunc);
        strom << gefunden;
        ASSERT_TRUE(strom.flush()) << pfad;
        return;
    }
    const std::string abgenommen = leseAbnahme(pfad);
    EXPECT_TRUE(abgenommen == gefunden) << pfad << " differs; if it shall, run `make abnahme`\n"
                                        << ersterUnterschied(abgenommen, gefunden);
}

/// The output (code page) against the whole file, which is kept as UTF-8 below tests/.
inline void vergleicheMitAbnahme(const std::string& datei, std::string_view ausgabe)
{
    vergleicheOderSchreibe(std::string(TOLVEK_QUELLEN) + "/tests/" + datei, alsUtf8(ausgabe));
}

/// Likewise for lines.
inline void vergleicheMitAbnahme(const std::string& datei, const std::vector<std::string>& zeilen)
{
    std::string text;
    for (const auto& zeile : zeilen) {
        text += zeile + "\n";
    }
    vergleicheMitAbnahme(datei, text);
}

/// The output (UTF-8) against the part of a document between the lines `<!-- marke …-->` and `<!-- /marke -->`.
inline void vergleicheMitAbschnitt(const std::string& datei, const std::string& marke, const std::string& ausgabe)
{
    const std::string pfad = std::string(TOLVEK_QUELLEN) + "/" + datei;
    const std::string alt = leseAbnahme(pfad);
    const auto anfang = alt.find("-->\n", alt.find("<!-- " + marke));
    const auto ende = alt.find("<!-- /" + marke + " -->");
    ASSERT_TRUE(anfang != std::string::npos && ende != std::string::npos) << pfad << " lacks the marks of " << marke;
    vergleicheOderSchreibe(pfad, alt.substr(0, anfang + 4) + "\n" + ausgabe + "\n" + alt.substr(ende));
}
