#pragma once

#include "platform/text/Eingabe.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

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

inline void vergleicheOderSchreibe(const std::string& pfad, const std::string& gefunden)
{
    if (wirdAbgenommen()) {
        std::ofstream strom(pfad, std::ios::binary | std::ios::trunc);
        strom << gefunden;
        ASSERT_TRUE(strom.flush()) << pfad;
        return;
    }
    EXPECT_EQ(leseAbnahme(pfad), gefunden) << pfad << " differs; if it shall, run `make abnahme`";
}

/// The output (code page) against the whole file, which is kept as UTF-8 below tests/.
inline void vergleicheMitAbnahme(const std::string& datei, std::string_view ausgabe)
{
    vergleicheOderSchreibe(std::string(TOLVEK_QUELLEN) + "/tests/" + datei, alsUtf8(ausgabe));
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
