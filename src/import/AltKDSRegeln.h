#pragma once

#include "satz/Wertelisten.h"

#include <string_view>
#include <vector>

/// How one column of the new row arises from the older row.
enum class Regelart {
    Fest,         ///< the text `wert`
    Spalte,       ///< the column as it stands
    Codes,        ///< by `codes`, older code and new; a text that is in none gives `wert`
    Gleich,       ///< 2 if the column (and `zweite`, if there is one) is exactly `wert`, else 0
    OhneNull,     ///< trimmed, a 0 turned to empty
    FührendeAcht, ///< 2 if the number at the start is 8, else 0
    Auszunehmen,  ///< the column, unless it is one of `codes`, which give `wert`
};

struct Altregel {
    Regelart art = Regelart::Fest;
    int spalte = 0;
    Werteliste codes{};
    std::string_view wert{};
    int zweite = 0; ///< second column of Gleich
};

/// Rule n-1 makes column n; made at each call.
std::vector<Altregel> kernregeln();
std::vector<Altregel> diagnoseregeln();
