#pragma once

#include "platform/text/Eingabe.h"

#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

/// The lines of a test's data file (UTF-8, path relative to the sources) in the code page.
inline std::vector<std::string> leseTextdatei(const std::string& pfad)
{
    std::ifstream strom(std::string(TOLVEK_QUELLEN) + "/" + pfad, std::ios::binary);
    if (!strom) {
        throw std::runtime_error("cannot read " + pfad);
    }
    std::vector<std::string> zeilen;
    for (std::string zeile; std::getline(strom, zeile);) {
        zeilen.push_back(nimmEingabe(ausUtf8(zeile), false).text);
    }
    return zeilen;
}
