#pragma once

#include "satz/Problemgruppen.h"
#include "satz/WeitereDiagnosen.h"

/// Positions in the diagnosis record, from 1: two ids, a block of eight answers for each of the groups, the further
/// diagnoses, the bit field.
namespace feld::diag {

inline constexpr int kernID = 1;
inline constexpr int betrID = 2;
inline constexpr int ersteAntwort = betrID + 1;

/// Answer `platz` (1 to 8) of the group (1 to 29).
constexpr int antwort(int gruppe, int platz)
{
    return ersteAntwort + felderJeGruppe * (gruppe - 1) + platz - 1;
}
/// Further diagnosis `nummer` (1 to 12).
constexpr int weitere(int nummer)
{
    return antwort(höchsteGruppe, felderJeGruppe) + nummer;
}
inline constexpr int bitfeld = weitere(anzahlWeitereDiagnosen) + 1;
inline constexpr int anzahl = bitfeld;

/// Whether the field is an answer of a block; then `gruppeVon` and `platzVon` say which.
constexpr bool istAntwort(int feld)
{
    return feld >= ersteAntwort && feld < weitere(1);
}
constexpr int gruppeVon(int feld)
{
    return (feld - ersteAntwort) / felderJeGruppe + 1;
}
constexpr int platzVon(int feld)
{
    return (feld - ersteAntwort) % felderJeGruppe + 1;
}

} // namespace feld::diag
