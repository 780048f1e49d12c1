#pragma once

#include "satz/Wertelisten.h"

#include <string>
#include <vector>

/// The layout of the three records as one table each: every field with its name, its kind, where it stands
/// in the yearly export, its value list and its value in a new record. Default records, export rows, import
/// instructions and column headers are derived from these tables. Field numbers count from 1; field n is
/// element n-1.
enum class Feldart {
    idKern,
    idBetr,
    datum,
    option,
    zuvor,
    kinder,
    zahl,
    kontakte,
    nation,
    hdOhne,
    ivKonsum,
    memo, // care
    hdAlter,
    icd0000,
    icdPsy,
    icdNeu,
    text,
    leer,  // diagnosis
    klient // client, free of coding
};

struct Satzfeld {
    std::string name; ///< "Kosten2"; empty where the field has none
    Feldart art = Feldart::text;
    std::string quelle;  ///< "K16": column 16 of the core row; "D124": of the diagnosis row; empty: none
    Werteliste werte;    ///< for Feldart::option
    std::string vorgabe; ///< value in a new record
};

const std::vector<Satzfeld>& klientenfelder();   ///< 11
const std::vector<Satzfeld>& betreuungsfelder(); ///< 192
const std::vector<Satzfeld>& diagnosefelder();   ///< 247

/// The number of the care field with the name (exact), 0 for none.
int betreuungsfeld(std::string_view name);

/// A diagnosis block: 29 groups of 8 fields from field 3 on.
inline constexpr int diagnosegruppen = 29;
inline constexpr int felderJeGruppe = 8;
/// The record field of slot 1 to 8 of group 1 to 29.
constexpr int diagnosefeld(int gruppe, int platz)
{
    return 2 + felderJeGruppe * (gruppe - 1) + platz;
}

/// The default records: all fields' values joined by the delimiter.
std::string erstelleDefaultKernDS(); ///< with its 11 delimiters: reads as 12 fields
std::string erstelleDefaultBetrDS(); ///< 192 fields
std::string erstelleDefaultDiagDS(); ///< 246 delimiters
