#pragma once

#include <span>
#include <string_view>
#include <vector>

/// How one column of the new row arises from the older row.
enum class Regelart {
    Fest,         ///< the text `sonst`
    Spalte,       ///< the column as it stands
    Codes,        ///< by `codes`; a text that is in none gives `sonst`
    Kosten,       ///< 2 if the column names the bearer of this position, else 0
    Beide,        ///< 2 if the column (and `zweite`, if there is one) is exactly "2", else 0
    OhneNull,     ///< trimmed, a 0 turned to empty
    FührendeAcht, ///< 2 if the number at the start is 8, else 0
    Auszunehmen,  ///< the column, unless it is one of `codes`, which give `sonst`
};

struct Altcode {
    std::string_view alt;
    std::string_view neu;
};

struct Altregel {
    Regelart art = Regelart::Fest;
    int spalte = 0;
    std::span<const Altcode> codes{};
    std::string_view sonst{};
    int zweite = 0;   ///< second column of Beide
    int position = 0; ///< of the bearer, from 1
};

/// Rule n-1 makes column n.
const std::vector<Altregel>& kernregeln();
const std::vector<Altregel>& diagnoseregeln();
