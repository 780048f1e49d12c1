#pragma once

#include "satz/Satzaufbau.h"

#include <string>
#include <string_view>
#include <vector>

/// A row of an instruction table: where the field's value comes from and what it becomes.
struct Feldanweisung {
    char blatt = 0; ///< 'K': core row, 'D': diagnosis row, 0: no source
    int spalte = 0;
    Feldart art = Feldart::leer;
    struct Paar {
        std::string ergebnis;
        std::string code;
    };
    std::vector<Paar> paare{}; ///< of the kinds that look the value up
    std::string vorgabe{};     ///< what a field without source holds
};

/// The result for the code; "<leer>" and "<text>" are resolved. An empty value that the row lacks stays empty; another
/// one gives the text "'…' nicht gefunden", which stays in the record.
std::string_view schlageNach(const Feldanweisung& anweisung, std::string_view wert, std::string& ablage);
