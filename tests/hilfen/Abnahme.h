#pragma once

#include "platform/text/Eingabe.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

/// Compares an output (code page) byte by byte with its approved file, kept as UTF-8 below tests/. With
/// TOLVEK_ABNAHME=neu in the environment the file is written instead; `git diff` then shows what changed.
inline void vergleicheMitAbnahme(const std::string& datei, std::string_view ausgabe)
{
    const std::string pfad = std::string(TOLVEK_QUELLEN) + "/tests/" + datei;
    const std::string gefunden = alsUtf8(ausgabe);
    const char* wunsch = std::getenv("TOLVEK_ABNAHME");
    if (wunsch != nullptr && std::string_view(wunsch) == "neu") {
        std::ofstream strom(pfad, std::ios::binary | std::ios::trunc);
        strom << gefunden;
        ASSERT_TRUE(strom.flush()) << pfad;
        return;
    }
    std::ifstream strom(pfad, std::ios::binary);
    ASSERT_TRUE(strom) << pfad;
    const std::string erwartet{std::istreambuf_iterator<char>(strom), {}};
    EXPECT_EQ(erwartet, gefunden) << pfad;
}
