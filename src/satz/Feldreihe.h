#pragma once

#include "satz/Satzaufbau.h"

#include <span>
#include <stdexcept>
#include <string_view>

/// The numbers of a run of like fields: {1, 9} for "Kosten1" to "Kosten9".
struct Nummern {
    int von;
    int bis;
};
/// A field that stands alone, its name without a number.
inline constexpr Nummern einzeln{0, -1};

/// Where a run of fields stands in the export: the columns follow one another. Fields that share one column (options
/// of which one is marked) have `gemeinsam`.
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
    Werteliste werte{};
    std::string_view vorgabe;

    constexpr int anzahl() const { return nummern.bis < nummern.von ? 1 : nummern.bis - nummern.von + 1; }
};

/// Number of fields in the runs.
constexpr int feldzahl(std::span<const Feldreihe> reihen)
{
    int anzahl = 0;
    for (const auto& reihe : reihen) {
        anzahl += reihe.anzahl();
    }
    return anzahl;
}

/// The position of the first field of the run; a name that the table lacks does not compile.
consteval int stelleIn(std::span<const Feldreihe> reihen, std::string_view stamm)
{
    int stelle = 1;
    for (const auto& reihe : reihen) {
        if (reihe.stamm == stamm) {
            return stelle;
        }
        stelle += reihe.anzahl();
    }
    throw std::logic_error("no field has this name");
}
