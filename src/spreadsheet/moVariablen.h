#pragma once

#include <string>
#include <string_view>
#include <vector>

class Ressourcen;

/// A variable of the annual export with the words that the core data set gives it.
struct Variable {
    std::string name;
    std::string_view erste; ///< first label
    std::string_view zweite;
    bool wiederholtÜberschrift = false; ///< the first label is that of the row before

    /// The first label, left out where it repeats the row before: a repeating group carries its heading once.
    std::string_view ersteOhneWiederholung() const { return wiederholtÜberschrift ? std::string_view{} : erste; }
};

const std::vector<Variable>& variablen();

/// The same as two tables of string resources, without and with headings left out: name, first label and second label
/// joined by the delimiter, made when they are asked for.
inline constexpr int ressourceVariablen = 6000;
inline constexpr int ressourceVariablenOhneWiederholung = 7000;

void registriereVariablen(Ressourcen& ressourcen);
