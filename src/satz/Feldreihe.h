#pragma once

#include "satz/Satzaufbau.h"

#include <string_view>
#include <vector>

/// The numbers of a run of like fields: {1, 9} for "Kosten1" to "Kosten9".
struct Nummern {
    int von;
    int bis;
};
/// A field that stands alone, its name without a number.
inline constexpr Nummern einzeln{0, -1};

/// Where a run of fields stands in the export: `Blatt` is 'K' (core row) or 'D' (diagnosis row), the columns
/// follow one another. Fields that share one column (options of which one is marked) have `gemeinsam`.
struct Spalten {
    char blatt = 0;
    int erste = 0;
    bool gemeinsam = false;
};
inline constexpr Spalten ohneSpalte{};

/// A run of like fields, the unit in which the record layouts are written down.
struct Feldreihe {
    std::string_view stamm; ///< name without number; empty: the fields have no name
    Nummern nummern = einzeln;
    Spalten spalten;
    Feldart art = Feldart::text;
    Werteliste werte;
    std::string_view vorgabe;
};

std::vector<Feldreihe> klientenreihen();
std::vector<Feldreihe> betreuungsreihen();
std::vector<Feldreihe> diagnosereihen();

/// The fields of the runs, one by one. `anzahl` is the number that must come out; another one is a mistake
/// in the tables (std::logic_error).
std::vector<Satzfeld> entfalte(const std::vector<Feldreihe>& reihen, std::size_t anzahl);
