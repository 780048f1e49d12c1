#pragma once

#include "satz/Wertelisten.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
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
    char blatt = 0;      ///< 'K': it stands in the core row of the export, 'D': in the diagnosis row, 0: in neither
    int spalte = 0;      ///< there, from 1
    Werteliste werte;    ///< for Feldart::option
    std::string vorgabe; ///< value in a new record

    bool hatListe(Werteliste liste) const { return werte.data() == liste.data(); }
};

const std::vector<Satzfeld>& klientenfelder();   ///< 11, named in Klientenfelder.h
const std::vector<Satzfeld>& betreuungsfelder(); ///< 192, named in Betreuungsfelder.h
const std::vector<Satzfeld>& diagnosefelder();   ///< 247, named in Diagnosefelder.h

/// Field `feld`, from 1.
inline const Satzfeld& feldAus(const std::vector<Satzfeld>& felder, int feld)
{
    return felder.at(static_cast<std::size_t>(feld - 1));
}

/// The number of the care field with the name (exact), 0 for none.
int betreuungsfeld(std::string_view name);

/// Fields of a block of the diagnosis record.
inline constexpr int felderJeGruppe = 8;

/// The default records: all fields' values joined by the delimiter.
std::string erstelleDefaultKernDS(); ///< with its 11 delimiters: reads as 12 fields
std::string erstelleDefaultBetrDS(); ///< 192 fields
std::string erstelleDefaultDiagDS(); ///< 246 delimiters

/// What a screen offers for a field, so that none names a value list a second time: the texts with the one for no
/// answer first, of the value list, of the states, or the field's default and the numbers of its range. Empty for other
/// kinds.
///
///     comboGeschlecht.setzeListe(auswahlliste(feldAus(klientenfelder(), feld::kern::geschlecht)));
std::vector<std::string> auswahlliste(const Satzfeld& feld);
/// The numbers that a care field of the kind takes beside its default; none where it is not one of numbers.
std::optional<werte::Zahlenbereich> zahlenbereich(Feldart art);
