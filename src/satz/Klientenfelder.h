#pragma once

#include "platform/text/Text.h"
#include "satz/Feldreihe.h"

// The client record: its table and the names of its positions.

namespace kliententabelle {

using enum Feldart;

/// Field 1 has no name and is always empty.
inline constexpr Feldreihe reihen[]{
    {""_t, einzeln, ohneSpalte, klient, {}, ""_t},
    {"kernID"_t, einzeln, ohneSpalte, klient, {}, ""_t},
    {"betrao"_t, einzeln, ohneSpalte, klient, {}, ""_t},
    {"Nachname"_t, einzeln, ohneSpalte, klient, {}, ""_t},
    {"Vorname"_t, einzeln, ohneSpalte, klient, {}, ""_t},
    {"Strasse"_t, einzeln, ohneSpalte, klient, {}, ""_t},
    {"PLZ"_t, einzeln, ohneSpalte, klient, {}, ""_t},
    {"Ort"_t, einzeln, ohneSpalte, klient, {}, ""_t},
    {"Geschlecht"_t, einzeln, {'K', 8}, klient, werte::geschlecht, "keine Angaben"_t},
    {"Geburtsdatum"_t, einzeln, {'K', 7}, klient, {}, "unbekannt"_t},
    {"memoK"_t, einzeln, ohneSpalte, klient, {}, ""_t},
};

} // namespace kliententabelle

/// Positions in the client record, from 1.
namespace feld::kern {

consteval int stelle(std::string_view name)
{
    return stelleIn(kliententabelle::reihen, name);
}

inline constexpr int leer = stelle(""_t);
inline constexpr int kernID = stelle("kernID"_t);
inline constexpr int betrao = stelle("betrao"_t); ///< "o" with an open episode, "a" with ended ones
inline constexpr int nachname = stelle("Nachname"_t);
inline constexpr int vorname = stelle("Vorname"_t);
inline constexpr int straße = stelle("Strasse"_t);
inline constexpr int plz = stelle("PLZ"_t);
inline constexpr int ort = stelle("Ort"_t);
inline constexpr int geschlecht = stelle("Geschlecht"_t);
inline constexpr int geburtsdatum = stelle("Geburtsdatum"_t);
inline constexpr int memo = stelle("memoK"_t);
inline constexpr int anzahl = feldzahl(kliententabelle::reihen);

} // namespace feld::kern
